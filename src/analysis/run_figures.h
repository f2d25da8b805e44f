#pragma once

#include "analysis/race_set.h"
#include "common/why.h"

#include <cstdint>
#include <optional>

/// The numbers of one run of a race set beside those of its sections.
namespace kavela {

enum class RunFigure {
    Total,         ///< seconds of all its sections, without penalties
    Penalties,     ///< seconds, of the video
    Real,          ///< official seconds
    RealPenalties, ///< seconds of the official list
    Expected,      ///< seconds, as they were stored
    Potential,     ///< seconds of the crew's own best sections, where it has several runs
};

/// A number of a run, by its place in the set. Nothing for a time that the run does not have;
/// penalties of 0 are a number. Told with the places that it is made of.
[[nodiscard]] std::optional<double> runFigure(const RaceSet& set, std::size_t run, RunFigure figure,
                                              Why* why = nullptr);

/// Penalty seconds of a run in a section, counted from 0; 0 beyond its last one.
[[nodiscard]] std::int64_t sectionPenalty(const RaceSet& set, std::size_t run, std::size_t section,
                                          Why* why = nullptr);

/// Why a number of a run is what it is, by the same function; nothing where there is none.
[[nodiscard]] std::optional<Reason> explainRunFigure(const RaceSet& set, std::size_t run,
                                                     RunFigure figure);

} // namespace kavela
