#pragma once

#include "sample/athletes.h"
#include "sample/film.h"
#include "splitdata/document.h"

#include <string_view>
#include <vector>

/// A sprint of a few metres that one camera on a tripod films for everybody: boats cross its start
/// and its finish one after the other, and nobody has marked them yet.
namespace kavela::sample {

inline constexpr std::string_view SprintFilm = "sprint finish.MOV";
inline constexpr Frames SprintFilmLength = 45 * FramesPerSecond;

/// A boat before the camera.
struct SprintPassage {
    Boat boat;
    Frames start = 0;  ///< the first frame on which its bow is over the line of the start
    Frames finish = 0; ///< the same of the finish
    double lane = 0;   ///< of the water's width from the middle, -0.5 to 0.5
};

/// In the order of their starts. No two are before the camera at once.
[[nodiscard]] std::vector<SprintPassage> sprintPassages();

/// The session: a run for each passage, all with the one film, without a mark.
[[nodiscard]] splittakerdata031 sprintSession();

} // namespace kavela::sample
