#pragma once

#include "sample/run.h"
#include "splitdata/document.h"

#include <chrono>
#include <string>
#include <vector>

/// What races and trainings have in common.
namespace kavela::sample {

/// A run, and what it was made from.
struct FilmedRun {
    Boat boat;
    Passage passage;
    Filming filming;
    athletedata031 record;
};

/// Sends a boat down the course and times the film of it.
[[nodiscard]] FilmedRun filmRun(const Course& course, const Boat& boat, const std::string& phase,
                                const Conditions& conditions, const Filming& filming, Dice& dice);

/// The race record of a session, all but what only some sessions have. `kind` is "Race", "Training"
/// or "Test".
[[nodiscard]] infodata031 sessionInfo(const Course& course, const std::string& title,
                                      const std::string& kind, std::chrono::year_month_day day);

} // namespace kavela::sample
