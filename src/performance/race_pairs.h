#pragma once

#include "performance/season_data.h"
#include "statistics/intervals.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// What changes from one phase of a race to a later one, and how often an athlete gets that far.
namespace kavela {

enum class RacePair {
    Heats,            ///< the first run to the second, by the time
    SemifinalToFinal, ///< by the time: the course is the same
    HeatsToFinal      ///< by the percentage behind the winner, the course being another one
};

/// "heats12", "semifinalToFinal" and "heatsToFinal".
[[nodiscard]] std::string_view nameOf(RacePair pair);

/// Of 100·(ln later − ln earlier), so about percent; below 0 is faster.
struct PairChange {
    MeanOf change;
    std::optional<double> typicalError; ///< of a single run: SD/√2; none below two races
};

enum class PairFigure { Change, TypicalError };

/// Over the races that have both phases without a missed gate. The heats of a final are the first
/// run, or the second where there is no first.
[[nodiscard]] PairChange pairChange(const SeasonMember& member, RacePair pair,
                                    PairFigure figure = PairFigure::Change, Why* why = nullptr);

enum class RaceRate {
    Medals,     ///< of the races with a final position
    Finals,     ///< of the races with phases
    Semifinals, ///< the same
};

/// Nothing where there are no such races. A position of 0 is not known and counts nowhere.
[[nodiscard]] std::optional<RateOf> raceRate(const SeasonMember& member, RaceRate rate,
                                             Why* why = nullptr);

} // namespace kavela
