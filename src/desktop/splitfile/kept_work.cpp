#include "desktop/splitfile/kept_work.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/record_equality.h"

#include <algorithm>
#include <ranges>

namespace kavela::desktop {

namespace {

/// A start mark of a run, counted from 0.
struct KeptStart {
    std::int64_t run;
    std::vector<CMTime> stamps;
};
BOOST_DESCRIBE_STRUCT(KeptStart, (), (run, stamps))

struct KeptStarts {
    std::vector<KeptStart> starts;
};
BOOST_DESCRIBE_STRUCT(KeptStarts, (), (starts))

/// That of a time trial, counted from 0.
struct KeptTrialStart {
    std::int64_t trial;
    CMTime stamp;
};
BOOST_DESCRIBE_STRUCT(KeptTrialStart, (), (trial, stamp))

struct KeptTrialStarts {
    std::vector<KeptTrialStart> trialStarts;
};
BOOST_DESCRIBE_STRUCT(KeptTrialStarts, (), (trialStarts))

struct KeptTaking : splittakerdata031 {
    std::vector<KeptStart> starts;
    std::vector<KeptTrialStart> trialStarts;
};
BOOST_DESCRIBE_STRUCT(KeptTaking, (splittakerdata031), (starts, trialStarts))

/// What was kept beside the split file; nothing where an earlier release kept none.
template <class Kept>
Kept keptBeside(const JsonDocument& kept) {
    try {
        return decode<Kept>(kept);
    } catch (const DecodeError&) {
        return {};
    }
}

bool hasStartAlone(const TakenRun& run) {
    return run.start && !run.start->empty() && marksOf(run.record->sectioninfo).marks.empty();
}

} // namespace

std::string keptWork(const TakingState& state) {
    KeptTaking kept{documentOf(state), {}, {}};
    for (std::size_t run = 0; run < state.runs.size(); ++run)
        if (hasStartAlone(state.runs[run]))
            kept.starts.push_back({static_cast<std::int64_t>(run), *state.runs[run].start});
    for (const auto& [trial, stamp] : state.trialStarts)
        kept.trialStarts.push_back({static_cast<std::int64_t>(trial), stamp});
    return encode(kept);
}

void takeStarts(TakingState& state, const JsonDocument& kept) {
    for (KeptStart& start : keptBeside<KeptStarts>(kept).starts)
        if (start.run >= 0 && std::cmp_less(start.run, state.runs.size()) && !start.stamps.empty())
            state.runs[static_cast<std::size_t>(start.run)].start = std::move(start.stamps);
    for (const KeptTrialStart& start : keptBeside<KeptTrialStarts>(kept).trialStarts)
        if (start.trial >= 0 && std::cmp_less(start.trial, state.cross->timetrials.size()))
            state.trialStarts[static_cast<std::size_t>(start.trial)] = start.stamp;
}

int startsWithoutSplit(const TakingState& state) {
    return static_cast<int>(std::ranges::count_if(state.runs, hasStartAlone)) +
           static_cast<int>(state.trialStarts.size());
}

std::optional<std::size_t> firstOtherRun(const TakingState& state, const TakingState& other) {
    const auto isUntouched = [](const TakenRun& a, const TakenRun& b) {
        return isSame(*a.record, *b.record);
    };
    const auto changed = std::ranges::mismatch(state.runs, other.runs, isUntouched).in1;
    if (changed == state.runs.end())
        return std::nullopt;
    return static_cast<std::size_t>(changed - state.runs.begin());
}

} // namespace kavela::desktop
