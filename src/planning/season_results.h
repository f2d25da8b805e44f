#pragma once

#include "planning/planning_records.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Ranking lists and races of a season row by row. The arrays of a file may be of different
/// lengths; what one of them does not reach is not known.
namespace kavela {

/// An entry of the ranking list.
struct RankingEntry {
    std::optional<std::int64_t> release;
    std::optional<double> points;
    std::optional<std::int64_t> position;
};

[[nodiscard]] std::vector<RankingEntry> rankingEntries(const icfdataplanning_v1& ranking);

/// Writes what is known in `entry` and leaves alone what is not. An array that ends before the row
/// is filled up with zeros. A row behind the last one adds an entry.
void setRankingEntry(icfdataplanning_v1& ranking, std::size_t row, const RankingEntry& entry);

/// Takes a row out of those arrays that reach it.
void removeRankingEntry(icfdataplanning_v1& ranking, std::size_t row);

/// A race run of the season.
struct SeasonRace {
    std::optional<ReferenceDate> date;
    std::string event;
    std::string phase;
    std::string location;
    std::optional<std::int64_t> position; ///< none where it is 0 too
    std::optional<double> time;           ///< seconds, without penalties; none where it is 0 too
    std::optional<std::int64_t> penalty;  ///< seconds
    std::optional<std::int64_t> gates;
    std::optional<double> percentBehind; ///< the best of its category, penalties included
};

[[nodiscard]] std::vector<SeasonRace> seasonRaces(const racedataplanning_v3& races);

/// How many runs a season's penalties are told of.
[[nodiscard]] std::size_t runCount(const penaltydataplanning_v1& penalties);

} // namespace kavela
