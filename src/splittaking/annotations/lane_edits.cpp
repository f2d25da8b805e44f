#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/lanes.h"
#include "splittaking/annotations/strokes.h"
#include "splittaking/annotations/time_losses.h"
#include "splittaking/annotations/upstream_gates.h"
#include "splittaking/marking.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela {

namespace {

/// A mark on all cameras after its stamp on one of them was moved: the cameras stay in step.
Stamps inStep(Stamps stamps, std::size_t camera, const CMTime& moment) {
    CMTime& moved = entryOf(stamps, camera, "camera");
    const double seconds = secondsFrom(moved, moment);
    for (CMTime& stamp : stamps)
        if (isTaken(stamp))
            stamp = later(stamp, seconds);
    moved = moment;
    return stamps;
}

Stamps& stampsOf(RunMarks& marks, const MarkHandle& handle) {
    if (handle.kind == MarkKind::Split)
        return entryOf(marks.marks, handle.record, "split");
    if (!marks.start)
        throw std::out_of_range("the run has no start mark");
    return *marks.start;
}

/// Writes the marks into the run. Times that the edit does not concern keep their last digit: the
/// file may have measured them in another way.
void apply(const RunMarks& marks, athletedata031& run, const infodata031& info) {
    constexpr double SameTime = 1e-9;
    const auto keep = [](double& time, double before) {
        if (std::abs(time - before) < SameTime)
            time = before;
    };
    sectiondata030& timing = run.sectioninfo;
    const std::vector<double> before = timing.times;
    const double totalBefore = timing.totaltime;
    applyMarks(marks, run, info.totalsplits);
    for (std::size_t k = 0; k < std::min(before.size(), timing.times.size()); ++k)
        keep(timing.times[k], before[k]);
    timing.totaltime = std::accumulate(timing.times.begin(), timing.times.end(), 0.0);
    keep(timing.totaltime, totalBefore);
}

MarkHandle moveTiming(athletedata031& run, const infodata031& info, const MarkHandle& handle,
                      const CMTime& moment) {
    RunMarks marks = marksOf(run.sectioninfo);
    Stamps& stamps = stampsOf(marks, handle);
    stamps = inStep(stamps, handle.entry, moment);
    apply(marks, run, info);
    if (handle.kind == MarkKind::Start)
        retimeNotes(run);
    return handle;
}

void removeTiming(athletedata031& run, const infodata031& info, const MarkHandle& handle) {
    RunMarks marks = marksOf(run.sectioninfo);
    (void)entryOf(stampsOf(marks, handle), handle.entry, "camera");
    if (handle.kind == MarkKind::Start)
        marks.start.reset();
    else
        removeMark(marks, handle.record + 1);
    apply(marks, run, info);
    if (handle.kind == MarkKind::Start)
        retimeNotes(run);
}

MarkHandle moveStrokeMark(athletedata031& run, const MarkHandle& handle, const CMTime& moment) {
    const Stamps& stamps = entryOf(run.strokes, handle.record, "stroke").cmtimes;
    return {MarkKind::Stroke, moveStroke(run, handle.record, inStep(stamps, handle.entry, moment)),
            handle.entry};
}

CMTime& upstreamMark(athletedata031& run, const MarkHandle& handle) {
    return entryOf(entryOf(run.upstreams, handle.record, "upstream gate").cmtimes, handle.entry,
                   "mark of the gate");
}

CMTime& lossMark(athletedata031& run, const MarkHandle& handle) {
    const std::size_t side = handle.film == FilmKind::Versus ? VersusSide : OwnSide;
    timeloss031& loss = entryOf(run.timeslosses, handle.record, "time loss");
    return entryOf(entryOf(loss.cmtimes, side, "run"), handle.entry, "mark of the time loss");
}

void setTagMoment(athletedata031& run, const MarkHandle& handle, const CMTime& moment) {
    const TagHandle tag{handle.record, handle.entry};
    if (handle.film != FilmKind::Fixed) {
        moveTag(run, tag, moment);
        return;
    }
    const customData020& record = entryOf(run.customData, tag.record, "record of tags");
    if (const auto date = syncDateOf(run, tag)) {
        const double moved = secondsFrom(record.fixCMTimes.at(tag.entry), moment);
        const ReferenceDate before = fixMarksOf(run, date->camera).at(date->mark);
        moveFixMark(run, date->camera, date->mark, {before.seconds + moved});
    }
    setFixedMoment(run, tag, record.fixInt, moment);
}

void removeTagMark(athletedata031& run, const MarkHandle& handle) {
    const TagHandle tag{handle.record, handle.entry};
    if (handle.film == FilmKind::Fixed || syncDateOf(run, tag))
        removeSync(run, tag);
    else
        removeTag(run, tag);
}

/// Marks of a gate beyond entrance, middle and exit have no name to be cleared by.
void removeUpstreamMark(athletedata031& run, const MarkHandle& handle) {
    CMTime& mark = upstreamMark(run, handle);
    upstreamdata025& upstream = run.upstreams[handle.record];
    const auto which = markAtPlace(handle.entry, upstream.cmtimes.size());
    if (which)
        clearMark(upstream.cmtimes, *which);
    else
        mark = NotMarked;
    recompute(upstream);
}

} // namespace

MarkHandle moveLaneMark(athletedata031& run, const infodata031& info, const MarkHandle& handle,
                        const CMTime& moment) {
    if (!isTaken(moment))
        throw std::invalid_argument("a mark must lie at a moment of a film");
    switch (handle.kind) {
    case MarkKind::Start:
    case MarkKind::Split:
        return moveTiming(run, info, handle, moment);
    case MarkKind::MicroSplit:
        return {MarkKind::MicroSplit, moveMicroSplit(run, handle.record, moment)};
    case MarkKind::Stroke:
        return moveStrokeMark(run, handle, moment);
    case MarkKind::Upstream:
        upstreamMark(run, handle) = moment;
        recompute(run.upstreams[handle.record]);
        break;
    case MarkKind::TimeLoss:
        lossMark(run, handle) = moment;
        recompute(run.timeslosses[handle.record]);
        break;
    case MarkKind::Tag:
        setTagMoment(run, handle, moment);
        break;
    }
    return handle;
}

void removeLaneMark(athletedata031& run, const infodata031& info, const MarkHandle& handle) {
    switch (handle.kind) {
    case MarkKind::Start:
    case MarkKind::Split:
        return removeTiming(run, info, handle);
    case MarkKind::MicroSplit:
        return removeMicroSplit(run, handle.record);
    case MarkKind::Stroke:
        return removeStroke(run, handle.record);
    case MarkKind::Upstream:
        return removeUpstreamMark(run, handle);
    case MarkKind::TimeLoss:
        lossMark(run, handle) = NotMarked;
        return recompute(run.timeslosses[handle.record]);
    case MarkKind::Tag:
        return removeTagMark(run, handle);
    }
}

} // namespace kavela
