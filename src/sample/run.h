#pragma once

#include "sample/athletes.h"
#include "sample/courses.h"
#include "sample/dice.h"
#include "sample/film.h"
#include "splitdata/records.h"

#include <cstddef>
#include <string>
#include <vector>

/// How a run comes about: a boat paddles the course, a film shows it, a coach times the film.
namespace kavela::sample {

/// A run as it went down the course, in frames of its film.
struct Passage {
    Frames start = 0;
    std::vector<Frames> gates;      ///< when each gate was passed; shorter when the boat gave up
    std::vector<std::int64_t> pens; ///< by gate of the course
    Frames finish = 0;              ///< 0 when the boat did not finish

    [[nodiscard]] bool isFinished() const { return finish != 0; }
};

/// What a boat's run hangs on besides the boat and the course.
struct Conditions {
    double effort = 1;             ///< 1 flat out, more for a slower run
    std::int64_t givesUpAfter = 0; ///< the last gate passed; 0 for a run to the finish
};

/// A gate in the middle of the course, to give up after.
[[nodiscard]] std::int64_t gateToGiveUpAfter(const Course& course, Dice& dice);

[[nodiscard]] Passage paddle(const Course& course, const Boat& boat, const Conditions& conditions,
                             Dice& dice);

/// Which marks could be taken from a film that does not show the whole run.
enum class FilmShows { WholeRun, NotTheFirstSection, NotTheFinish };

/// How a run was filmed.
struct Filming {
    FilmClock clock{};
    FilmShows shows = FilmShows::WholeRun;
    bool hasSecondCamera = false; ///< switched on some frames after the first
    bool hasOfficialTime = true;
    std::string prefix; ///< of the film's name: it tells the races of a folder apart
};

inline constexpr Frames SecondCameraLag = 40;

/// One stamp for each camera of a run.
[[nodiscard]] std::vector<CMTime> stamps(const Filming& filming, Frames frame);

/// The frames of the marks: the end of each section that the boat reached, the last one's being the
/// finish line.
[[nodiscard]] std::vector<Frames> sectionMarks(const Course& course, const Passage& passage);

/// Moves a run to where it lies on a film that was switched on in the middle of the first section:
/// what came before has negative frames.
void switchOnLate(const Course& course, Passage& passage);

/// The record that timing the film gives, without any annotation.
[[nodiscard]] athletedata031 timeRun(const Course& course, const Boat& boat,
                                     const std::string& phase, const Passage& passage,
                                     const Filming& filming);

} // namespace kavela::sample
