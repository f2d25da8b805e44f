#include "compose/path_laying.h"

#include "video/av_handles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace kavela {

namespace {

constexpr double TrailRadius = 1.8;                     ///< pixels
constexpr double TrailRim = 1.4;                        ///< pixels of dark round it
constexpr std::array<int, 3> TrailShades{200, 44, 190}; ///< orange, on any water
constexpr std::array<int, 3> RimShades{30, 128, 128};

std::uint8_t* planeLine(const AVFrame& frame, int plane, int y) {
    return frame.data[plane] + std::ptrdiff_t{y} * frame.linesize[plane];
}

void layPartOfPlane(int plane, const PictureRect& place, const PicturePlace& corner,
                    const AVFrame& picture, AVFrame& planes) {
    const int step = plane == 0 ? 1 : 2;
    const int width = picture.width / step;
    const int height = picture.height / step;
    const double left = corner.x / step;
    const double top = corner.y / step;
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    const auto across = static_cast<int>((left - column) * 256);
    const auto down = static_cast<int>((top - row) * 256);
    for (int y = 0; y < place.height / step; ++y) {
        const std::uint8_t* const upper = planeLine(picture, plane, std::min(row + y, height - 1));
        const std::uint8_t* const lower =
            planeLine(picture, plane, std::min(row + y + 1, height - 1));
        std::uint8_t* const to = planeLine(planes, plane, place.y / step + y) + place.x / step;
        for (int x = 0; x < place.width / step; ++x) {
            const int here = std::min(column + x, width - 1);
            const int next = std::min(here + 1, width - 1);
            const int above = upper[here] * (256 - across) + upper[next] * across;
            const int below = lower[here] * (256 - across) + lower[next] * across;
            to[x] =
                static_cast<std::uint8_t>((above * (256 - down) + below * down + (1 << 15)) >> 16);
        }
    }
}

struct TrailPiece {
    PicturePlace from;
    PicturePlace to;

    [[nodiscard]] double distance(double x, double y) const {
        const double wayX = to.x - from.x;
        const double wayY = to.y - from.y;
        const double square = std::max(wayX * wayX + wayY * wayY, 1e-9);
        const double along =
            std::clamp(((x - from.x) * wayX + (y - from.y) * wayY) / square, 0.0, 1.0);
        return std::hypot(x - from.x - along * wayX, y - from.y - along * wayY);
    }
};

void drawPiece(const TrailPiece& piece, double radius, const std::array<int, 3>& shades,
               const PictureRect& within, int firstColumn, AVFrame& planes) {
    const double reach = radius + 1;
    const int left = std::max(
        {within.x, firstColumn, static_cast<int>(std::min(piece.from.x, piece.to.x) - reach)});
    const int right = std::min({within.x + within.width, planes.width,
                                static_cast<int>(std::max(piece.from.x, piece.to.x) + reach) + 1});
    const int top =
        std::max(within.y, static_cast<int>(std::min(piece.from.y, piece.to.y) - reach));
    const int bottom = std::min({within.y + within.height, planes.height,
                                 static_cast<int>(std::max(piece.from.y, piece.to.y) + reach) + 1});
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) {
            const double share =
                std::clamp(radius - piece.distance(x + 0.5, y + 0.5) + 0.5, 0.0, 1.0);
            for (int plane = 0; share > 0 && plane < (x % 2 == 0 && y % 2 == 0 ? 3 : 1); ++plane) {
                const int step = plane == 0 ? 1 : 2;
                std::uint8_t& sample = planeLine(planes, plane, y / step)[x / step];
                sample = static_cast<std::uint8_t>(
                    std::lerp(double(sample), shades[static_cast<std::size_t>(plane)], share));
            }
        }
}

} // namespace

void layPart(const PictureRect& place, const PicturePlace& corner, const AVFrame& picture,
             AVFrame& planes) {
    for (int plane = 0; plane < 3; ++plane)
        layPartOfPlane(plane, place, corner, picture, planes);
}

void drawTrail(const std::vector<PicturePlace>& line, const PictureRect& within, int firstColumn,
               AVFrame& planes) {
    for (const bool isRim : {true, false})
        for (std::size_t i = 0; i < line.size(); ++i)
            drawPiece({line[i == 0 ? 0 : i - 1], line[i]},
                      isRim ? TrailRadius + TrailRim : TrailRadius, isRim ? RimShades : TrailShades,
                      within, firstColumn, planes);
}

} // namespace kavela
