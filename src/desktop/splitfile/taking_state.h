#pragma once

#include "common/cm_time.h"
#include "common/log.h"
#include "common/reference_date.h"
#include "splitdata/document.h"
#include "splittaking/marking.h"
#include "splittaking/race_day/race_day.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

using RunIdentity = std::shared_ptr<const char>;

/// A run in the making. The record has no place for a start mark before the first split.
struct TakenRun {
    std::shared_ptr<const athletedata031> record;
    std::optional<Stamps> start;
    /// Which run it is: the same through all its edits, wherever it stands in the list.
    RunIdentity identity = std::make_shared<const char>();
};

/// The start marks of time trials that have no split yet, by the trial's place in the file. A file
/// tells the start of a trial only by its time up to the last split.
using TrialStarts = std::map<std::size_t, CMTime>;

/// A split file in the making, at one moment. Copies share what they have in common, so that every
/// step of the undo stack may hold one.
struct TakingState {
    std::shared_ptr<const infodata031> info = std::make_shared<infodata031>();
    std::vector<TakenRun> runs;
    std::shared_ptr<const crossdata030> cross = std::make_shared<crossdata030>();
    TrialStarts trialStarts;
    /// Has a file of its own beside the split file. Never null.
    std::shared_ptr<const RaceDay> day = std::make_shared<RaceDay>();
};

[[nodiscard]] TakingState stateOf(splittakerdata031 document);

/// The whole document; without the recordings of sensors where only times are asked for.
[[nodiscard]] splittakerdata031 documentOf(const TakingState& state);
[[nodiscard]] splittakerdata031 timesOf(const TakingState& state);
/// The document as it is written at a moment: with the perfect time and the expected times of its
/// runs, whose computation is logged.
[[nodiscard]] splittakerdata031 finishedDocument(const TakingState& state, ReferenceDate now,
                                                 const DiagnosticLog& log);

} // namespace kavela::desktop
