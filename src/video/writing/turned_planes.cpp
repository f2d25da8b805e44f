#include "video/writing/turned_planes.h"

#include "video/writing/plane_scaler.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace kavela {

namespace {

constexpr int QuarterOfTurn = 90;

struct BytePlane {
    std::uint8_t* data = nullptr;
    std::ptrdiff_t line = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] std::uint8_t& at(int x, int y) const { return data[y * line + x]; }
};

BytePlane bytePlane(const AVFrame& frame, int number) {
    const int part = number == 0 ? 1 : 2;
    return {frame.data[number], frame.linesize[number], frame.width / part, frame.height / part};
}

/// Tile by tile: a tile's lines and columns both stay in the processor's cache.
void turnPlane(const BytePlane& from, const BytePlane& to, int rotation) {
    constexpr int Tile = 32;
    const auto source = [&](int x, int y) {
        if (rotation == QuarterOfTurn)
            return from.at(y, from.height - 1 - x);
        if (rotation == 2 * QuarterOfTurn)
            return from.at(from.width - 1 - x, from.height - 1 - y);
        return from.at(from.width - 1 - y, x);
    };
    for (int top = 0; top < to.height; top += Tile)
        for (int left = 0; left < to.width; left += Tile)
            for (int y = top; y < std::min(top + Tile, to.height); ++y)
                for (int x = left; x < std::min(left + Tile, to.width); ++x)
                    to.at(x, y) = source(x, y);
}

} // namespace

AvOwner<AVFrame> turnedPlanes(const AVFrame& planes, int rotation) {
    const bool isSideways = rotation % (2 * QuarterOfTurn) != 0;
    AvOwner<AVFrame> turned = newPlanes(isSideways ? VideoSize{planes.height, planes.width}
                                                   : VideoSize{planes.width, planes.height});
    for (int number = 0; number < 3; ++number)
        turnPlane(bytePlane(planes, number), bytePlane(*turned, number), rotation);
    return turned;
}

} // namespace kavela
