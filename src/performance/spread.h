#pragma once

#include "performance/season_data.h"
#include "statistics/two_way_fit.h"

#include <cstddef>
#include <optional>

/// How much runs vary by chance, everybody's on all courses taken together: what a difference must
/// exceed to mean something. Runs with a missed gate stay out and are counted beside.
namespace kavela {

struct SeasonSpread {
    TwoWayFit fit;        ///< of 100·ln T by boat and race phase; a boat may lie behind its end
    std::size_t runs = 0; ///< in it
    std::size_t df = 0;
    std::optional<double> cv;         ///< percent; none without a degree of freedom
    std::optional<Interval> interval; ///< of it
    std::optional<double> worthwhile; ///< percent: the least gain that matters
};

/// Which number of the spread is asked for.
enum class SpreadFigure { Variation, Worthwhile };

[[nodiscard]] SeasonSpread seasonSpread(const SeasonData& data,
                                        SpreadFigure figure = SpreadFigure::Variation,
                                        Why* why = nullptr);

/// One boat's.
struct BoatSpread {
    std::size_t runs = 0;     ///< in the fit
    std::size_t missed = 0;   ///< left out for a missed gate
    std::optional<double> cv; ///< percent; none without runs or without a common spread
    std::optional<double> shrunk;
};

enum class BoatSpreadFigure { Own, Shrunk };

[[nodiscard]] BoatSpread boatSpread(const SeasonData& data, const SeasonSpread& spread,
                                    std::size_t boat,
                                    BoatSpreadFigure figure = BoatSpreadFigure::Own,
                                    Why* why = nullptr);

} // namespace kavela
