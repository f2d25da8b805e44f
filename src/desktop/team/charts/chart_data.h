#pragma once

#include "results/team_records.h"

#include <optional>
#include <string>
#include <vector>

/// What the charts of the team tool show.
namespace kavela::desktop {

/// One phase of a race in the course of a season.
struct SeasonRun {
    std::string phase;
    std::optional<double> behind; ///< percent behind the fastest
    std::int64_t penalty = 0;
    std::int64_t pos = 0;
};

struct SeasonRace {
    std::int64_t year = 0;
    std::size_t season = 0; ///< place in the record, and of the race in the season
    std::size_t race = 0;
    std::string event;
    std::string location;
    std::vector<SeasonRun> runs;
};

/// The races of a category from the earliest to the latest: by year, then by day. A race without a
/// date stays behind the one it is stored after. With a season, only its races.
[[nodiscard]] std::vector<SeasonRace> racesInTime(const mtCatsStruct& category,
                                                  std::optional<std::size_t> season);

/// A race in the progression chart: the position of each phase.
struct fullracesPhases {
    std::string phase;
    std::int64_t pos = 0;
};
struct fullracess {
    std::string event;
    std::string locationplace;
    std::vector<fullracesPhases> phases;
};

/// The phases of a race that have a position, in their order, and at the end the final position.
[[nodiscard]] fullracess progressionOf(const mtRaceStruct& race);

/// What the last point of a progression is called.
inline constexpr const char* ResultPhase = "Result";

} // namespace kavela::desktop
