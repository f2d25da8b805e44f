#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// What looks random in drawn rivers, and is always the same.
namespace kavela {

/// A number that is always the same for the same place.
[[nodiscard]] std::uint32_t scrambled(std::uint32_t value);

/// 0 to 1.
[[nodiscard]] double chance(std::uint32_t seed, std::uint32_t number);

/// 0 is low, 1 is high.
[[nodiscard]] double between(double part, double low, double high);

/// Smooth random ground that repeats, −1 to 1, with hills of some size.
class Ground {
public:
    Ground(std::uint32_t seed, int hills);

    [[nodiscard]] float at(int x, int y) const {
        return m_values[std::size_t(y & (Tile - 1)) * Tile + std::size_t(x & (Tile - 1))];
    }
    /// Between the places along a row.
    [[nodiscard]] float at(double x, int y) const;

private:
    static constexpr int Tile = 256;

    std::vector<float> m_values;
};

} // namespace kavela
