#include "desktop/splitfile/taking_state.h"

#include "splittaking/perfect_time.h"

namespace kavela::desktop {

TakingState stateOf(splittakerdata031 document) {
    TakingState state;
    state.info = std::make_shared<infodata031>(std::move(document.info));
    for (athletedata031& run : document.athletes)
        state.runs.push_back({std::make_shared<athletedata031>(std::move(run)), std::nullopt});
    state.cross = std::make_shared<crossdata030>(std::move(document.crossracedata));
    return state;
}

splittakerdata031 documentOf(const TakingState& state) {
    splittakerdata031 document{*state.info, {}, *state.cross};
    for (const TakenRun& run : state.runs)
        document.athletes.push_back(*run.record);
    return document;
}

splittakerdata031 timesOf(const TakingState& state) {
    splittakerdata031 document{*state.info, {}, {}};
    for (const TakenRun& taken : state.runs) {
        const std::shared_ptr<const athletedata031>& run = taken.record;
        athletedata031 light;
        light.names = run->names;
        light.hand = run->hand;
        light.phase = run->phase;
        light.cat = run->cat;
        light.pos = run->pos;
        light.videoname = run->videoname;
        light.sectioninfo = run->sectioninfo;
        document.athletes.push_back(std::move(light));
    }
    return document;
}

splittakerdata031 finishedDocument(const TakingState& state, ReferenceDate now,
                                   const DiagnosticLog& log) {
    splittakerdata031 document = documentOf(state);
    recomputeExpected(document, log);
    document.info.lastSavedDate = now;
    return document;
}

} // namespace kavela::desktop
