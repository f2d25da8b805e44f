#pragma once

#include "desktop/splitfile/taking_state.h"

#include <QStringList>

#include <cstdint>
#include <string>
#include <vector>

/// What a folder of films makes of a race: runs by their films, whose names tell who paddles.
namespace kavela::desktop {

class Workspace;

/// A race of today that has no runs yet, named after its folder.
[[nodiscard]] splittakerdata031 newRaceIn(const QString& folder, const Workspace& workspace);

/// A run for each film, as its name by the pattern tells, with room for the penalties of `gates`.
[[nodiscard]] std::vector<athletedata031>
runsOfFilms(const QStringList& films, const std::string& pattern, std::int64_t gates);

/// Every run as the name of its first film tells; those without a film stay as they are.
[[nodiscard]] TakingState withFilmNames(const TakingState& before, const std::string& pattern);

/// Those that no run has yet.
[[nodiscard]] QStringList filmsOfNoRun(const TakingState& state, const QStringList& names);

} // namespace kavela::desktop
