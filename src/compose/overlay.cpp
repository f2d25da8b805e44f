#include "compose/overlay.h"

#include "video/av_handles.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

constexpr int Opaque = 255;

/// Shares of blue, green, red and opacity in one plane in parts of 65536, for colours of high
/// definition from 16 to 235 and around 128.
struct PlaneShares {
    int blue = 0;
    int green = 0;
    int red = 0;
    int opacity = 0; ///< so much is black, for all of it
};

constexpr int WholeShare = 65536;
constexpr PlaneShares BrightnessShares{4063, 40254, 11966, 16 * WholeShare / Opaque};
constexpr PlaneShares BlueShares{28785, -22189, -6596, 128 * WholeShare / Opaque};
constexpr PlaneShares RedShares{-2639, -26146, 28785, 128 * WholeShare / Opaque};

/// Blue, green, red, opacity: the mean of `step` by `step` pixels.
std::array<int, 4> meanOf(const std::uint8_t* pixels, std::ptrdiff_t bytesPerLine, int x, int y,
                          int step) {
    std::array<int, 4> sum{};
    for (int row = 0; row < step; ++row) {
        const std::uint8_t* pixel = pixels + (y + row) * bytesPerLine + std::ptrdiff_t{x} * 4;
        for (int column = 0; column < step; ++column)
            for (int& value : sum)
                value += *pixel++;
    }
    for (int& value : sum)
        value = (value + step * step / 2) / (step * step);
    return sum;
}

template <class Plane>
Plane planeOf(VideoSize size, const std::uint8_t* pixels, std::ptrdiff_t bytesPerLine, int step,
              const PlaneShares& shares) {
    Plane plane;
    plane.width = size.width / step;
    plane.height = size.height / step;
    const auto count =
        static_cast<std::size_t>(plane.width) * static_cast<std::size_t>(plane.height);
    plane.shades.reserve(count);
    plane.rest.reserve(count);
    for (int y = 0; y < plane.height; ++y)
        for (int x = 0; x < plane.width; ++x) {
            const auto mean = meanOf(pixels, bytesPerLine, x * step, y * step, step);
            const int shade = mean[0] * shares.blue + mean[1] * shares.green +
                              mean[2] * shares.red + mean[3] * shares.opacity + WholeShare / 2;
            plane.shades.push_back(
                static_cast<std::uint8_t>(std::clamp(shade / WholeShare, 0, Opaque)));
            plane.rest.push_back(static_cast<std::uint8_t>(Opaque - mean[3]));
        }
    return plane;
}

} // namespace

Overlay::Overlay(VideoSize size, const std::uint8_t* pixels, std::ptrdiff_t bytesPerLine)
    : m_size(size),
      m_brightness(planeOf<Plane>(size, pixels, bytesPerLine, 1, BrightnessShares)),
      m_blue(planeOf<Plane>(size, pixels, bytesPerLine, 2, BlueShares)),
      m_red(planeOf<Plane>(size, pixels, bytesPerLine, 2, RedShares)) {}

void Overlay::layOver(AVFrame& planes, int x, int y) const {
    layPlane(m_brightness, planes, 0, x, y);
    layPlane(m_blue, planes, 1, x / 2, y / 2);
    layPlane(m_red, planes, 2, x / 2, y / 2);
}

void Overlay::layPlane(const Plane& plane, AVFrame& planes, int number, int x, int y) {
    const int width = number == 0 ? planes.width : planes.width / 2;
    const int height = number == 0 ? planes.height : planes.height / 2;
    const int left = std::max(-x, 0);
    const int right = std::min(plane.width, width - x);
    for (int row = std::max(-y, 0); row < std::min(plane.height, height - y); ++row) {
        std::uint8_t* const target =
            planes.data[number] + std::ptrdiff_t{y + row} * planes.linesize[number] + x;
        const auto line = static_cast<std::size_t>(row) * static_cast<std::size_t>(plane.width);
        const std::uint8_t* const shades = plane.shades.data() + line;
        const std::uint8_t* const rest = plane.rest.data() + line;
        for (int i = left; i < right; ++i) {
            constexpr unsigned Half = 128; // with the shift below: division by 255, rounded
            const unsigned product = target[i] * unsigned{rest[i]} + Half;
            const unsigned sum = shades[i] + ((product + (product >> 8U)) >> 8U);
            target[i] = static_cast<std::uint8_t>(std::min(sum, unsigned{Opaque}));
        }
    }
}

} // namespace kavela
