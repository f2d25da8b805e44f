#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kavela {

/// A picture at half its width and height: brightness and the two differences of colour, a byte
/// each, all of the same size, the rows from the top without gaps.
struct HalfPlanes {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> luma;
    std::vector<std::uint8_t> blue; ///< 128 is without colour
    std::vector<std::uint8_t> red;  ///< 128 is without colour

    HalfPlanes() = default;
    /// A grey picture of a size.
    HalfPlanes(int wide, int high)
        : width(wide),
          height(high),
          luma(samples(), 128),
          blue(samples(), 128),
          red(samples(), 128) {}

    [[nodiscard]] std::size_t samples() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
    [[nodiscard]] std::size_t at(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
};

} // namespace kavela
