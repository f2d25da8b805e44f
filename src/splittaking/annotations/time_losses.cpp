#include "splittaking/annotations/time_losses.h"

#include "common/text.h"
#include "splitdata/run_timing.h"
#include "splittaking/marking.h"

namespace kavela {

namespace {

std::size_t sideOf(LossMark which) {
    return which == LossMark::OwnStart || which == LossMark::OwnEnd ? OwnSide : VersusSide;
}

std::size_t placeOfLoss(LossMark which) {
    return which == LossMark::OwnStart || which == LossMark::VersusStart ? 0 : 1;
}

std::optional<CMTime> markAt(const timeloss031& loss, std::size_t side, std::size_t place) {
    const CMTime moment = entryOrZero(entryOrZero(loss.cmtimes, side), place);
    return isTaken(moment) ? std::optional(moment) : std::nullopt;
}

/// The first camera's stamps before and at a split.
Stamps marksAround(const athletedata031& run, std::size_t split) {
    const RunMarks marks = marksOf(run.sectioninfo);
    Stamps around(2);
    if (split < 1 || split > marks.marks.size())
        return around;
    const auto takeFirst = [](CMTime& to, const Stamps& stamps) {
        if (!stamps.empty())
            to = stamps.front();
    };
    takeFirst(around[0], marks.start.value_or(Stamps{}));
    for (std::size_t k = 0; k + 1 < split; ++k)
        takeFirst(around[0], marks.marks[k]);
    takeFirst(around[1], marks.marks[split - 1]);
    return around;
}

} // namespace

std::optional<CMTime> markOf(const timeloss031& loss, LossMark which) {
    return markAt(loss, sideOf(which), placeOfLoss(which));
}

void setMark(timeloss031& loss, LossMark which, const CMTime& moment) {
    const std::size_t side = sideOf(which);
    if (loss.cmtimes.size() <= side)
        loss.cmtimes.resize(side + 1);
    setPadded(loss.cmtimes[side], placeOfLoss(which), moment);
    recompute(loss);
}

void clearMark(timeloss031& loss, LossMark which) {
    if (markOf(loss, which))
        setMark(loss, which, NotMarked);
}

std::optional<double> stretchSeconds(const timeloss031& loss, std::size_t side) {
    const auto start = markAt(loss, side, 0);
    const auto end = markAt(loss, side, 1);
    return start && end ? std::optional(secondsFrom(*start, *end)) : std::nullopt;
}

void recompute(timeloss031& loss) {
    const auto own = stretchSeconds(loss, OwnSide);
    const auto versus = stretchSeconds(loss, VersusSide);
    loss.timeloss = own && versus ? *own - *versus : 0;
    loss.timelossper = own && versus && *versus > 0 ? loss.timeloss / *versus * 100 : 0;
}

std::optional<std::string> faultOfMarks(const timeloss031& loss) {
    for (const std::size_t side : {OwnSide, VersusSide}) {
        const bool isOwn = side == OwnSide;
        const auto seconds = stretchSeconds(loss, side);
        if (!seconds)
            return isOwn ? say("Start and end of the stretch are not both marked in this run.")
                         : say("Start and end of the stretch are not both marked in the run of {}.",
                               loss.versus);
        if (*seconds <= 0)
            return isOwn ? say("The end of the stretch is not marked after its start in this run.")
                         : say("The end of the stretch is not marked after its start in the run of "
                               "{}.",
                               loss.versus);
    }
    return std::nullopt;
}

timeloss031 lossAgainst(const athletedata031& run, const athletedata031& versus) {
    timeloss031 loss;
    loss.versus = crewText(versus.names);
    loss.videos = {entryOrZero(run.videoname, 0), entryOrZero(versus.videoname, 0)};
    loss.cmtimes.resize(2);
    return loss;
}

timeloss031 lossOverSplit(const athletedata031& run, const athletedata031& versus,
                          std::size_t split) {
    timeloss031 loss = lossAgainst(run, versus);
    loss.cmtimes = {marksAround(run, split), marksAround(versus, split)};
    recompute(loss);
    return loss;
}

void removeTimeLoss(athletedata031& run, std::size_t loss) {
    (void)entryOf(run.timeslosses, loss, "time loss");
    eraseEntry(run.timeslosses, loss);
}

void toggleReason(timeloss031& loss, const std::string& reason) {
    if (std::erase(loss.reasons, reason) == 0)
        loss.reasons.push_back(reason);
}

} // namespace kavela
