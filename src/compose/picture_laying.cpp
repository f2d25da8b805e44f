#include "compose/picture_laying.h"

#include "video/av_handles.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kavela {

namespace {

constexpr int BlackShade = 16;
constexpr int WhiteShade = 235;
constexpr int NoColour = 128;
constexpr int PlaneCount = 3;

/// How many pixels of the picture a sample of a plane stands for, each way.
int stepOf(int plane) {
    return plane == 0 ? 1 : 2;
}

std::uint8_t* lineOf(const AVFrame& frame, int plane, int y) {
    return frame.data[plane] + std::ptrdiff_t{y} * frame.linesize[plane];
}

/// Upper over lower; an opacity of a half is the mean.
void blendLine(const std::uint8_t* upper, std::uint8_t* lower, int count, double opacity) {
    const auto share = static_cast<unsigned>(std::lround(opacity * 256));
    for (int i = 0; i < count; ++i)
        lower[i] =
            static_cast<std::uint8_t>((upper[i] * share + lower[i] * (256U - share) + 128U) >> 8U);
}

void layStraight(const FilmPlace& place, const AVFrame& picture, AVFrame& planes) {
    for (int plane = 0; plane < PlaneCount; ++plane) {
        const int step = stepOf(plane);
        const int skipped = std::max(place.firstColumn - place.picture.x, 0) / step;
        const int count = std::min(picture.width, place.picture.width) / step - skipped;
        if (count <= 0)
            continue;
        for (int y = 0; y < std::min(picture.height, place.picture.height) / step; ++y) {
            const std::uint8_t* const from = lineOf(picture, plane, y) + skipped;
            std::uint8_t* const to = lineOf(planes, plane, place.picture.y / step + y) +
                                     place.picture.x / step + skipped;
            if (place.opacity >= 1)
                std::memcpy(to, from, static_cast<std::size_t>(count));
            else
                blendLine(from, to, count, place.opacity);
        }
    }
}

/// Places in a picture as whole numbers of 1/65536 pixels, which advance by addition.
using FinePlace = std::int64_t;
constexpr int FineBits = 16;
constexpr double FineParts = 1 << FineBits;

FinePlace finePlace(double place) {
    return std::llround(place * FineParts);
}

/// Between the four samples around a place.
std::uint8_t sampleAt(const AVFrame& picture, int plane, FinePlace x, FinePlace y) {
    const auto column = static_cast<int>(x >> FineBits);
    const auto row = static_cast<int>(y >> FineBits);
    const int width = picture.width / stepOf(plane);
    const int height = picture.height / stepOf(plane);
    const int right = std::min(column + 1, width - 1);
    const std::uint8_t* const upper = lineOf(picture, plane, row);
    const std::uint8_t* const lower = lineOf(picture, plane, std::min(row + 1, height - 1));
    const auto across = static_cast<int>((x >> (FineBits - 8)) & 255);
    const auto down = static_cast<int>((y >> (FineBits - 8)) & 255);
    const int above = upper[column] * (256 - across) + upper[right] * across;
    const int below = lower[column] * (256 - across) + lower[right] * across;
    return static_cast<std::uint8_t>((above * (256 - down) + below * down + (1 << 15)) >> 16);
}

/// Seen through the alignment: for every pixel of the whole the place in the picture that lands
/// there.
void layAligned(const FilmPlace& place, const Similarity& to, const AVFrame& picture,
                AVFrame& planes) {
    const double square = to.a * to.a + to.b * to.b;
    const double a = to.a / square;
    const double b = -to.b / square;
    for (int plane = 0; plane < PlaneCount; ++plane) {
        const int step = stepOf(plane);
        const FinePlace endX = finePlace(picture.width / step - 1);
        const FinePlace endY = finePlace(picture.height / step - 1);
        const int first = place.firstColumn / step;
        for (int y = 0; y < planes.height / step; ++y) {
            // Half a sample: the middle of a pixel is what is meant by its place.
            const double fromX = (first + 0.5) - to.dx / step;
            const double fromY = (y + 0.5) - to.dy / step;
            FinePlace x2 = finePlace(a * fromX - b * fromY - 0.5);
            FinePlace y2 = finePlace(b * fromX + a * fromY - 0.5);
            std::uint8_t* const line = lineOf(planes, plane, y);
            for (int x = first; x < planes.width / step; ++x) {
                if (x2 >= 0 && y2 >= 0 && x2 <= endX && y2 <= endY) {
                    const std::uint8_t sample = sampleAt(picture, plane, x2, y2);
                    blendLine(&sample, line + x, 1, place.opacity);
                }
                x2 += finePlace(a);
                y2 += finePlace(b);
            }
        }
    }
}

} // namespace

void darken(AVFrame& planes) {
    for (int plane = 0; plane < PlaneCount; ++plane)
        for (int y = 0; y < planes.height / stepOf(plane); ++y)
            std::memset(lineOf(planes, plane, y), plane == 0 ? BlackShade : NoColour,
                        static_cast<std::size_t>(planes.width / stepOf(plane)));
}

void layPicture(const FilmPlace& place, const AVFrame& picture, AVFrame& planes) {
    if (place.alignment)
        layAligned(place, *place.alignment, picture, planes);
    else
        layStraight(place, picture, planes);
}

void drawDivider(AVFrame& planes, int column) {
    constexpr int Width = 2;
    if (column <= 0 || column + Width > planes.width)
        return;
    for (int plane = 0; plane < PlaneCount; ++plane)
        for (int y = 0; y < planes.height / stepOf(plane); ++y)
            std::memset(lineOf(planes, plane, y) + column / stepOf(plane),
                        plane == 0 ? WhiteShade : NoColour,
                        static_cast<std::size_t>(Width / stepOf(plane)));
}

} // namespace kavela
