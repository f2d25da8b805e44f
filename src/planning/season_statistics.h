#pragma once

#include "planning/planning_records.h"
#include "splitdata/document.h"

#include <chrono>
#include <span>
#include <string_view>

/// Statistics of an athlete's season, from the split files of its races and trainings.
namespace kavela {

/// The runs of an athlete as the planning keeps them, in order of the files' dates. `name` is found
/// whatever the case and accents, surname or given name first, alone or in a crew.
///
/// A race is a file whose session is labelled "Race". Its time is `realtime` with `realpen` where
/// there is one, otherwise `totaltime` with `totalpen`; the best is that of the whole run of the
/// same category and phase with the least sum of both. Percentages are those of the section times
/// behind the best one of that section in the same category and phase, 0 for a section without a
/// time. Every run, of a race or a training, tells its touches and missed gates.
[[nodiscard]] statisticsplanning_v3 seasonStatistics(std::string_view name,
                                                     std::span<const splittakerdata031> files);

/// Files dated in a calendar year.
[[nodiscard]] bool isOfYear(const splittakerdata031& file, std::chrono::year year);

/// What the penalties of a season come to.
struct PenaltySummary {
    std::int64_t runs = 0;
    std::int64_t cleanRuns = 0; ///< without a touch and a missed gate
    std::int64_t gates = 0;
    std::int64_t touches = 0;
    std::int64_t fifties = 0;

    [[nodiscard]] double touchesPerRun() const;
    [[nodiscard]] double fiftiesPerRun() const;
};

[[nodiscard]] PenaltySummary penaltySummary(const penaltydataplanning_v1& penalties);

} // namespace kavela
