#pragma once

#include "performance/season_data.h"
#include "statistics/intervals.h"

#include <cstddef>
#include <optional>
#include <vector>

/// Who was ahead of whom in the phases of races that both were in.
namespace kavela {

/// One boat against another. Runs with a missed gate count: that is how races are lost.
struct HeadToHead {
    std::size_t versus = 0; ///< of SeasonData::boats
    std::size_t met = 0;    ///< phases that both have a total in
    double won = 0;         ///< ties, to the hundredth, count half
    Interval interval;      ///< of the rate
    MeanOf gap;             ///< of 100·ln(own/rival's); below 0 is ahead

    [[nodiscard]] double rate() const { return won / static_cast<double>(met); }
};

/// All that a boat met: the team's in their order, then the others, those met most often first.
[[nodiscard]] std::vector<HeadToHead> headToHeads(const SeasonData& data, std::size_t boat);

enum class HeadFigure { Won, Gap };

/// One boat against one other; nothing where they never met. Of several runs of one boat in one
/// phase the best counts.
[[nodiscard]] std::optional<HeadToHead> headToHead(const SeasonData& data, const FactStore& facts,
                                                   std::size_t boat, std::size_t versus,
                                                   HeadFigure figure = HeadFigure::Won,
                                                   Why* why = nullptr);

} // namespace kavela
