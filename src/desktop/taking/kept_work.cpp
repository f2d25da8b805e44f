#include "desktop/taking/kept_work.h"

#include "common/json_decode.h"
#include "common/json_encode.h"

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

struct KeptTaking : splittakerdata031 {
    std::vector<KeptStart> starts;
};
BOOST_DESCRIBE_STRUCT(KeptTaking, (splittakerdata031), (starts))

bool hasStartAlone(const TakenRun& run) {
    return run.start && !run.start->empty() && marksOf(run.record->sectioninfo).marks.empty();
}

} // namespace

std::string keptWork(const TakingState& state) {
    KeptTaking kept{documentOf(state), {}};
    for (std::size_t run = 0; run < state.runs.size(); ++run)
        if (hasStartAlone(state.runs[run]))
            kept.starts.push_back({static_cast<std::int64_t>(run), *state.runs[run].start});
    return encode(kept);
}

void takeStarts(TakingState& state, const JsonDocument& kept) {
    std::vector<KeptStart> starts;
    try {
        starts = decode<KeptStarts>(kept).starts;
    } catch (const DecodeError&) {
        return; // kept without any, by an earlier release
    }
    for (KeptStart& start : starts)
        if (start.run >= 0 && std::cmp_less(start.run, state.runs.size()) && !start.stamps.empty())
            state.runs[static_cast<std::size_t>(start.run)].start = std::move(start.stamps);
}

int startsWithoutSplit(const TakingState& state) {
    return static_cast<int>(std::ranges::count_if(state.runs, hasStartAlone));
}

} // namespace kavela::desktop
