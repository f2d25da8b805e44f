#pragma once

#include "performance/spread.h"
#include "statistics/places.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// Which places boats may expect of one another at the next race, from what they did.
namespace kavela {

struct ExpectedPlace {
    std::size_t boat = 0; ///< of SeasonData::boats
    std::size_t runs = 0; ///< in the fit
    double mean = 0;      ///< 100·ln T against the field's
    double sd = 0;        ///< the shrunk spread with what is not known of the mean
    double fail = 0;      ///< chance of a missed gate
    PlaceChances chances;
};

/// A boat needs so many runs without a missed gate to be told anything of.
inline constexpr std::size_t LeastRunsForPlaces = 3;
/// Without a field named, so many boats at most.
inline constexpr std::size_t LargestField = 30;

struct SeasonPlaces {
    std::vector<ExpectedPlace> boats; ///< the best expected place first
    std::vector<std::size_t> leftOut; ///< named, but with too few runs, or never met the others
    std::size_t more = 0; ///< boats that come into question, but for which the field was too large
};

/// The chances within a field of boats; those of an empty one are the team's, without whoever has
/// retired, and those who have raced most often beside them. Boats that never met, not even through
/// others, cannot be compared: the part with most of the field stays.
[[nodiscard]] SeasonPlaces seasonPlaces(const SeasonData& data, const SeasonSpread& spread,
                                        std::span<const std::size_t> field = {});

enum class PlaceFigure { Expected, Medal, MissedGate };

/// How a boat's figure of these came about; nothing where it is not among them.
[[nodiscard]] std::optional<double> placeFigure(const SeasonData& data, const SeasonPlaces& places,
                                                std::size_t boat, PlaceFigure figure,
                                                Why* why = nullptr);

} // namespace kavela
