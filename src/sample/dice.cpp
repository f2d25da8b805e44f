#include "sample/dice.h"

namespace kavela::sample {

namespace {

/// The 64-bit FNV-1a hash.
std::uint64_t hashOf(std::string_view label) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char letter : label)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3U;
    return hash;
}

} // namespace

Dice::Dice(std::string_view label) : m_engine(hashOf(label)) {}

double Dice::between(double low, double high) {
    constexpr double Step = 1.0 / (1ULL << 53U);
    return low + (high - low) * (static_cast<double>(m_engine() >> 11U) * Step);
}

double Dice::bell(double deviation) {
    // The sum of twelve even throws has variance 1.
    double sum = -6;
    for (int i = 0; i < 12; ++i)
        sum += between(0, 1);
    return sum * deviation;
}

bool Dice::chance(double probability) {
    return between(0, 1) < probability;
}

std::size_t Dice::below(std::size_t count) {
    return static_cast<std::size_t>(m_engine() % count);
}

std::int64_t Dice::code(std::int64_t count) {
    return static_cast<std::int64_t>(below(static_cast<std::size_t>(count)));
}

} // namespace kavela::sample
