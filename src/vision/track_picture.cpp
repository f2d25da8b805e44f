#include "vision/track_picture.h"

#include "video/av_handles.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr int ColourWeight = 2;

/// The mean of a square of samples; the edge of the plane goes on for ever.
int squareMean(const TrackPicture::Plane& plane, int column, int row, int factor) {
    int sum = 0;
    for (int y = row * factor; y < (row + 1) * factor; ++y) {
        const std::uint8_t* const line = plane.row(std::clamp(y, 0, plane.height - 1));
        for (int x = column * factor; x < (column + 1) * factor; ++x)
            sum += line[std::clamp(x, 0, plane.width - 1)];
    }
    return sum * 16 / (factor * factor);
}

/// Where a sample lies between two squares, and by how much.
struct BetweenSquares {
    int first = 0;
    int share = 0; ///< of the second one, 0 to 256
};

std::vector<BetweenSquares> placesAlong(double middle, double step, int count, int factor) {
    std::vector<BetweenSquares> places;
    for (int i = 0; i < count; ++i) {
        const double at = (middle + (i + 0.5 - count / 2.0) * step) / factor - 0.5;
        const double whole = std::floor(at);
        places.push_back({static_cast<int>(whole), static_cast<int>((at - whole) * 256)});
    }
    return places;
}

/// Squares of whole pixels first, so that nothing is left out, then between them, so that the
/// places can be as fine as one likes.
void sampleChannel(const TrackPicture::Plane& plane, const PicturePlace& middle, double step,
                   int weight, const SampledPatch& size, std::vector<std::int16_t>& samples) {
    const int factor = std::max(static_cast<int>(step), 1);
    const auto columns = placesAlong(middle.x, step, size.width, factor);
    const auto rows = placesAlong(middle.y, step, size.height, factor);
    const int left = columns.front().first;
    const int top = rows.front().first;
    const int across = columns.back().first + 2 - left;
    const int down = rows.back().first + 2 - top;
    std::vector<int> squares(static_cast<std::size_t>(across) * static_cast<std::size_t>(down));
    for (int y = 0; y < down; ++y)
        for (int x = 0; x < across; ++x)
            squares[static_cast<std::size_t>(y * across + x)] =
                squareMean(plane, left + x, top + y, factor);
    samples.resize(static_cast<std::size_t>(size.count()));
    std::int16_t* to = samples.data();
    for (const BetweenSquares& row : rows) {
        const int* const upper = squares.data() + std::ptrdiff_t{row.first - top} * across;
        const int* const lower = upper + across;
        for (const BetweenSquares& column : columns) {
            const int x = column.first - left;
            const int above = upper[x] * (256 - column.share) + upper[x + 1] * column.share;
            const int below = lower[x] * (256 - column.share) + lower[x + 1] * column.share;
            const int mean =
                (above / 16 * (256 - row.share) + below / 16 * row.share + (1 << 15)) >> 16;
            *to++ = static_cast<std::int16_t>((mean - 128) * weight);
        }
    }
}

} // namespace

TrackPicture trackPictureOf(const AVFrame& planes) {
    TrackPicture picture;
    for (int i = 0; i < 3; ++i) {
        const int part = i == 0 ? 1 : 2;
        picture.planes[static_cast<std::size_t>(i)] = {planes.data[i], planes.linesize[i],
                                                       (planes.width + part - 1) / part,
                                                       (planes.height + part - 1) / part};
    }
    return picture;
}

SmallPlane smallPlane(const TrackPicture::Plane& plane, int factor) {
    SmallPlane small{plane.width / factor, plane.height / factor, {}};
    small.samples.resize(static_cast<std::size_t>(small.width) *
                         static_cast<std::size_t>(small.height));
    std::vector<std::uint16_t> sums(static_cast<std::size_t>(small.width * factor));
    const int square = factor * factor;
    for (int y = 0; y < small.height; ++y) {
        std::ranges::fill(sums, std::uint16_t{0});
        for (int i = 0; i < factor; ++i) {
            const std::uint8_t* const from = plane.row(y * factor + i);
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x] = static_cast<std::uint16_t>(sums[x] + from[x]);
        }
        for (int x = 0; x < small.width; ++x) {
            int sum = square / 2;
            for (int i = 0; i < factor; ++i)
                sum += sums[static_cast<std::size_t>(x * factor + i)];
            small.samples[static_cast<std::size_t>(y * small.width + x)] =
                static_cast<std::uint8_t>(sum / square);
        }
    }
    return small;
}

void samplePatch(const TrackPicture& picture, const PicturePlace& middle, double step, int width,
                 int height, SampledPatch& patch) {
    patch.width = width;
    patch.height = height;
    sampleChannel(picture.planes[0], middle, step, 1, patch, patch.channels[0]);
    for (std::size_t colour : {1U, 2U})
        sampleChannel(picture.planes[colour], {middle.x / 2, middle.y / 2}, step / 2, ColourWeight,
                      patch, patch.channels[colour]);
}

} // namespace kavela
