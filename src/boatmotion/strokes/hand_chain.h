#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Hands of strokes as a chain: what each stroke shows, and how likely hands change between two.
namespace kavela::strokes {

/// What is known of a stroke before its hand is decided.
struct HandLink {
    /// Signed measures in any unit, about 0 between the hands, with the variances of their errors;
    /// a variance below 0 stands for a measure that is missing. Of the first one it is known that a
    /// right blade makes it greater.
    std::array<double, 2> measures{};
    std::array<double, 2> variances{-1, -1};
    double turning = 0; ///< 0 straight on to 1 in a turn: there hands and measures are less regular
    double follows = 1; ///< 1 it is the next stroke after the one before; 0 nobody knows
    double isReal = 1;  ///< 1 it is a stroke; 0 it may be none, and hands did not change for it
};

/// What is learned about a paddler from the strokes themselves.
struct HandModel {
    /// For each measure, straight on and in turns: how much a right blade adds, and the variance.
    std::array<std::array<double, 2>, 2> shift{};
    std::array<std::array<double, 2>, 2> spread{};
    std::array<double, 2> offset{}; ///< of each measure, between the hands
    std::array<double, 2> change{}; ///< chance of another hand, straight on and in turns
};

/// Learns the model by expectation and maximisation: beginning with what is known of the first
/// measure, the chain of hands explains the measures, and these in turn the hands.
[[nodiscard]] HandModel learnHands(std::span<const HandLink> links, bool changesMostly);

/// Log-odds of a right hand of each stroke by its own measures.
[[nodiscard]] std::vector<double> handOdds(std::span<const HandLink> links, const HandModel& model);

/// The chance of a right hand of each stroke, within the chain.
[[nodiscard]] std::vector<double> rightHandChances(std::span<const HandLink> links,
                                                   const HandModel& model,
                                                   std::span<const double> odds);

/// The likeliest chain of hands: 0 left, 1 right.
[[nodiscard]] std::vector<std::uint8_t> likeliestHands(std::span<const HandLink> links,
                                                       const HandModel& model,
                                                       std::span<const double> odds);

} // namespace kavela::strokes
