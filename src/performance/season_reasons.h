#pragma once

#include "performance/season.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Why a figure of a season is what it is, by the figure's id:
///
///     spread                          of all; worthwhile the same
///     spread/ATHLETE                  shrunk/…, trend/…, splitstrend/…, medal/…, final/…,
///                                     semifinal/…, place/…, podium/…, missed/… the same
///     heats12/ATHLETE                 semifinalToFinal/…, heatsToFinal/… the same
///     error/PAIR/ATHLETE              PAIR being one of those three
///     percent/ATHLETE/YEAR/EVENT/PHASE          behindsplits/… the same; /LOCATION behind it
///                                     where a season has several races of one event
///     won/ATHLETE/VERSUS              headgap/… the same
///     benchmark/PHASE/RANK
///     median/ATHLETE/PHASE            /YEAR behind it for one year alone
///
/// Athletes are named as the team or the split files write them, or otherwise the same.
namespace kavela {

/// Of "spread", "trend" and whatever else has one athlete behind it.
[[nodiscard]] std::string seasonId(std::string_view figure, std::string_view athlete);
/// Of "percent" and "behindsplits"; with the location where the season has several such races.
[[nodiscard]] std::string seasonPhaseId(std::string_view figure, const SeasonMember& member,
                                        const RaceResult& race, const PhaseResult& phase);
/// Of "won" and "headgap".
[[nodiscard]] std::string seasonHeadId(std::string_view figure, std::string_view athlete,
                                       std::string_view versus);
/// Of "median", of all years.
[[nodiscard]] std::string medianId(std::string_view athlete, std::string_view phase);
[[nodiscard]] std::string benchmarkId(std::string_view phase, std::size_t rank);

/// How a figure came about; nothing when the id is none or the figure is not known. `facts` are
/// those that the season was made from.
[[nodiscard]] std::optional<Reason> explainSeason(const Season& season, const FactStore& facts,
                                                  std::string_view id);

} // namespace kavela
