#pragma once

#include "performance/benchmarks.h"
#include "performance/head_to_head.h"
#include "performance/race_pairs.h"
#include "performance/season_places.h"
#include "performance/season_trend.h"
#include "performance/spread.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// How the athletes of a team stand over seasons: against the winners, against one another, and
/// against what chance alone would do.
namespace kavela {

/// An athlete of the team.
struct SeasonAthlete {
    std::size_t member = 0; ///< of SeasonData::members
    std::optional<RateOf> medals;
    std::optional<RateOf> finals;
    std::optional<RateOf> semifinals;
    BoatSpread spread;
    SeasonTrend toWinner;
    SeasonTrend toSplits;
    PairChange heats;
    PairChange semifinalToFinal;
    PairChange heatsToFinal;
    std::vector<HeadToHead> heads;
};

struct Season {
    SeasonData data;
    SeasonSpread spread;
    std::vector<SeasonAthlete> athletes; ///< by member
    std::vector<Benchmark> benchmarks;
    SeasonPlaces places;
};

/// All figures. `field` holds boats of the data whose places are asked for; empty for the usual
/// ones.
[[nodiscard]] Season seasonOf(SeasonData data, std::span<const std::size_t> field = {});

/// The median percentage behind the winner in a phase, without missed gates; nothing where none is
/// known. Of the last so many where `last` is above 0.
[[nodiscard]] std::optional<double> medianPercent(const SeasonMember& member,
                                                  std::string_view phase, std::size_t last = 0,
                                                  Why* why = nullptr);
/// The same of one year.
[[nodiscard]] std::optional<double> medianPercentOfYear(const SeasonMember& member,
                                                        std::string_view phase, std::int64_t year,
                                                        Why* why = nullptr);

/// The few figures that matter of an athlete, for where there is room for a line or four.
struct SeasonFigures {
    std::string phase;             ///< the last of the team's phases with a known percentage
    std::optional<double> percent; ///< median behind the winner in it
    std::size_t runs = 0;          ///< that it comes from
    std::optional<double> spread;  ///< percent, drawn towards the common one
    SeasonTrend trend;
    std::optional<RateOf> medals;
    std::optional<RateOf> finals;

    /// "2.1 % behind the winner in finals (median of 8)" and so on; a line for each that is known,
    /// or one that says that nothing is.
    [[nodiscard]] std::vector<std::string> lines() const;
    /// The ids of their explanations, line by line; empty for the line that nothing is known.
    [[nodiscard]] std::vector<std::string> ids(std::string_view athlete) const;
};

[[nodiscard]] SeasonFigures seasonFigures(const SeasonData& data, const SeasonSpread& spread,
                                          const SeasonMember& member);

/// The same from the team alone, whose splits and winners are then all that is known.
[[nodiscard]] SeasonFigures seasonFigures(const myTeamToSaveStruct& team, std::string_view athlete,
                                          std::string_view category);

} // namespace kavela
