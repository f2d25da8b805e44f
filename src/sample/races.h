#pragma once

#include "sample/courses.h"
#include "splitdata/document.h"

#include <chrono>
#include <span>
#include <string>
#include <vector>

namespace kavela::sample {

struct Phase {
    std::string name;
    std::size_t boats = 0; ///< of each category, at most: the best of the phase before
    double effort = 1;     ///< 1 flat out, more for slower runs
};

/// A race before it is run.
struct RacePlan {
    std::string title;
    std::string event;
    std::string prefix; ///< of the films' names
    Course course;
    std::chrono::year_month_day day;
    std::vector<std::string> categories;
    std::vector<Phase> phases;
    std::int32_t timescale = 600; ///< of the films
};

/// Runs, films, times and annotates a whole race.
[[nodiscard]] splittakerdata031 holdRace(const RacePlan& plan);

/// An official list as organisers publish it: semicolon-separated, with a header line.
[[nodiscard]] std::string officialList(std::span<const allresultsdata030> results);

/// The start list of the phase that the official list is of: by bibs, a boat each minute from a
/// time of day on, which is in seconds since midnight. Comma-separated, with titles.
[[nodiscard]] std::string startList(const splittakerdata031& race, int firstStart);

/// The races of the season.
[[nodiscard]] RacePlan springOpener();
[[nodiscard]] RacePlan riversideCup();
[[nodiscard]] RacePlan highlandOpen();
[[nodiscard]] RacePlan harbourNight();

} // namespace kavela::sample
