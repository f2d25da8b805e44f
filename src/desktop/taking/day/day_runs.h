#pragma once

#include "desktop/splitfile/taking_state.h"

#include <string>
#include <vector>

/// The runs of a split file that belong to the films of a race day. A film of several boats has a
/// run for each of them, in the order of the boats.
namespace kavela::desktop {

/// The places of the runs whose first film has a name.
[[nodiscard]] std::vector<std::size_t> runsOfFilm(const TakingState& state,
                                                  const std::string& film);

/// The run that a start makes on a film.
[[nodiscard]] athletedata031 runOf(const DayStart& start, const std::string& film);

/// Takes over another day. Runs whose films have other names have these too. A run whose boat is
/// another one now, or none, is called after that, where it was called after the one before or by
/// no name: a name that the coach gave it stays.
void setDay(TakingState& state, RaceDay day);

} // namespace kavela::desktop
