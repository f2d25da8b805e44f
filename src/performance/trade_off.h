#pragma once

#include "common/interval.h"
#include "performance/penalty_passages.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// Risk and speed: whether the fast touch more, and how much touching speed pays for.
namespace kavela {

/// Groups of fewer whole runs are not divided into thirds.
inline constexpr std::size_t LeastDivided = 6;

/// A run of a group, against the medians of the group.
struct PacedRun {
    std::size_t run = 0; ///< of FactStore::runs()
    std::size_t touches = 0;
    std::size_t missed = 0;
    double paddling = 0; ///< percent of the group's median
    double total = 0;    ///< percent of the group's median
};

/// The runs of all groups by their third of paddling time, and the medians of the groups.
struct PacedRuns {
    std::array<std::vector<PacedRun>, 3> thirds; ///< the fastest first
    std::vector<double> medians;                 ///< of paddling, by group, in seconds
};

/// Takes the whole runs known by gate of every group that has enough of them; of equal times the
/// first in the file counts as the faster. The thirds and medians are those of the whole groups,
/// also where only some of their runs are asked for.
[[nodiscard]] PacedRuns pacedRuns(const FactStore& facts, const PenaltyChoice& choice = {});

/// A third of the field by paddling time.
struct TradeOffRow {
    int third = 0; ///< 1 for the fastest
    std::size_t runs = 0;
    double touchesPerRun = 0;
    Interval interval; ///< of the touches per run
    double missedPerRun = 0;
    double paddling = 0; ///< percent of the group's median, mean of the runs
    double total = 0;    ///< the same with penalties
};

struct TradeOff {
    std::vector<TradeOffRow> rows;   ///< without the thirds that no run is asked for of
    std::optional<double> breakEven; ///< touches per run that 1 % of speed pays for
};

[[nodiscard]] TradeOff tradeOff(const FactStore& facts, const PenaltyChoice& choice = {});

/// Which number of a third is asked for.
enum class ThirdFigure { Touches, Missed, Paddling, Total, Runs };

/// A row from its runs, of which there is at least one.
[[nodiscard]] TradeOffRow tradeOffRow(const FactStore& facts, const PacedRuns& paced, int third,
                                      ThirdFigure figure = ThirdFigure::Touches,
                                      Why* why = nullptr);

[[nodiscard]] std::optional<double> breakEvenOf(const PacedRuns& paced, Why* why = nullptr);

} // namespace kavela
