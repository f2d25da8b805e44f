#pragma once

#include "common/why.h"

#include <span>

namespace kavela {

/// The rules by which the numbers of the split table are made.
enum class AnalysisRule {
    SectionTime,      ///< between two marks
    SectionWithPen,   ///< with the penalties of its gates
    AccumulatedTime,  ///< from the start to a mark
    Total,            ///< of all sections
    TotalWithPen,     ///< of all sections and penalties
    SprintTime,       ///< as stored
    RealTime,         ///< as stored
    OtherTime,        ///< of a run of another race
    Band,             ///< between two tenths of its column
    BandFastest,      ///< the least of its column
    BandMarked,       ///< in a column that is not tinted
    BandClear,        ///< of a cell without a time, or beside the scale
    BestReference,    ///< the least of a column
    MedianReference,  ///< the middle of a column
    Gap,              ///< to the reference
    Rank,             ///< within a column
    PercentBehind,    ///< behind the best
    Percentile,       ///< share that is slower
    IdealSection,     ///< the best of a section
    IdealAccumulated, ///< the bests up to a mark
    IdealTotal,       ///< the bests of all sections
    Penalties,        ///< of all gates of a run
    SectionPenalty,   ///< of the gates of a section
    RealPenalties,    ///< as stored
    ExpectedTime,     ///< as stored
};

[[nodiscard]] const Rule& ruleOf(AnalysisRule rule);

/// All of them, in the order above.
[[nodiscard]] std::span<const Rule> analysisRules();

} // namespace kavela
