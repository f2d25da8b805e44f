#include "vision/river_ground.h"

#include <cmath>

namespace kavela {

namespace {

double eased(double part) {
    return part * part * (3 - 2 * part);
}

} // namespace

std::uint32_t scrambled(std::uint32_t value) {
    value ^= value >> 16;
    value *= 0x7feb352dU;
    value ^= value >> 15;
    value *= 0x846ca68bU;
    return value ^ (value >> 16);
}

double chance(std::uint32_t seed, std::uint32_t number) {
    return scrambled(seed * 7919U + scrambled(number)) / 4294967296.0;
}

double between(double part, double low, double high) {
    return low + part * (high - low);
}

Ground::Ground(std::uint32_t seed, int hills) : m_values(std::size_t(Tile) * Tile) {
    const int cells = Tile / hills;
    const auto knot = [&](int x, int y) {
        const int place = (y % cells) * cells + x % cells;
        return chance(seed, static_cast<std::uint32_t>(place)) * 2 - 1;
    };
    for (int y = 0; y < Tile; ++y)
        for (int x = 0; x < Tile; ++x) {
            const double fx = eased(double(x % hills) / hills);
            const double fy = eased(double(y % hills) / hills);
            const int left = x / hills;
            const int top = y / hills;
            const double upper = knot(left, top) * (1 - fx) + knot(left + 1, top) * fx;
            const double lower = knot(left, top + 1) * (1 - fx) + knot(left + 1, top + 1) * fx;
            m_values[std::size_t(y) * Tile + std::size_t(x)] =
                static_cast<float>(upper * (1 - fy) + lower * fy);
        }
}

float Ground::at(double x, int y) const {
    const double left = std::floor(x);
    const auto part = static_cast<float>(x - left);
    const int whole = static_cast<int>(left);
    return at(whole, y) * (1 - part) + at(whole + 1, y) * part;
}

} // namespace kavela
