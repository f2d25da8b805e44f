#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>

namespace kavela::sample {

/// Chance that falls the same way on every computer. Each piece of the season throws dice of its
/// own, seeded by a label, so that a new piece leaves the others as they were. (The distributions
/// of the standard library differ between its makers, so these are our own.)
class Dice {
public:
    explicit Dice(std::string_view label);

    /// A number from `low` up to `high`.
    [[nodiscard]] double between(double low, double high);
    /// A number around 0 with the given standard deviation, never beyond six of them.
    [[nodiscard]] double bell(double deviation);
    [[nodiscard]] bool chance(double probability);
    /// A whole number from 0 up to, not including, `count`.
    [[nodiscard]] std::size_t below(std::size_t count);
    /// The same for the codes of the records.
    [[nodiscard]] std::int64_t code(std::int64_t count);

private:
    std::mt19937_64 m_engine;
};

} // namespace kavela::sample
