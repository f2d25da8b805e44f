#pragma once

#include "common/why.h"

#include <span>

namespace kavela {

/// The rules by which losses of time are counted.
enum class LossRule {
    Loss,            ///< of a stretch
    LossPercent,     ///< of a stretch
    MergedTime,      ///< of a stretch of several sections
    IdealTime,       ///< the least of a section or gate
    MedianTime,      ///< the median of a section or gate
    Gap,             ///< of two totals
    VideoTotal,      ///< of sections and penalties
    Paddling,        ///< of all stretches
    Penalties,       ///< of two sums of penalties
    Timing,          ///< what is left
    GateLoss,        ///< of an upstream gate
    EntranceLoss,    ///< of an upstream gate
    ExitLoss,        ///< of an upstream gate
    Between,         ///< of a stretch without its gates
    Explained,       ///< by notes
    ExpectedTime,    ///< against the expected time
    Interest,        ///< against a result of interest
    NotesLost,       ///< sum of notes
    NotesGained,     ///< sum of notes
    WayCost,         ///< of the chosen way
    SeasonPercent,   ///< of a row of the season
    SeasonPerRun,    ///< of a row of the season
    SeasonShare,     ///< of a row of the season
    SeasonGap,       ///< mean of the season
    SeasonPenalties, ///< mean of the season
    GapSoFar,        ///< of the stretches up to a mark
    RunTotal,        ///< of a run, with penalties
    Place,           ///< of a run in its group
    Strokes,         ///< of a stretch
    SectionPenalty,  ///< of a stretch
    SeasonRuns,      ///< of a row of the season
    SeasonLoss,      ///< of a row of the season
    NotesCounted,    ///< number of notes
};

[[nodiscard]] const Rule& ruleOf(LossRule rule);

/// All of them, in the order above.
[[nodiscard]] std::span<const Rule> lossRules();

} // namespace kavela
