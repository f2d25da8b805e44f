#include "splittaking/annotations/refusals.h"

#include "common/text.h"
#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/custom_tags.h"
#include "splittaking/mark_order.h"
#include "splittaking/marking.h"

#include <algorithm>

namespace kavela {

namespace {

using Refusal = std::optional<std::string>;

bool isSame(const CMTime& a, const CMTime& b) {
    return isTaken(a) && isTaken(b) && orderOf(a, b) == std::strong_ordering::equal;
}

Refusal whereThere(bool isThere, const std::string& name) {
    return isThere ? Refusal(alreadyThere(name)) : std::nullopt;
}

/// Among all but the one that is moved.
Refusal microSplitAt(const athletedata031& run, const CMTime& moment,
                     std::optional<std::size_t> moved) {
    for (std::size_t k = 0; k < run.microsplits.size(); ++k)
        if (k != moved && isSame(run.microsplits[k].cmtime, moment))
            return alreadyThere(say("a micro split"));
    return std::nullopt;
}

Refusal strokeAt(const athletedata031& run, const CMTime& moment, std::size_t camera,
                 std::int64_t hand, std::optional<std::size_t> moved) {
    for (std::size_t k = 0; k < run.strokes.size(); ++k) {
        const strokessdata025& stroke = run.strokes[k];
        if (k != moved && stroke.hand == hand && camera < stroke.cmtimes.size() &&
            isSame(stroke.cmtimes[camera], moment))
            return alreadyThere(say("a stroke of this hand"));
    }
    return std::nullopt;
}

Refusal tagAt(const athletedata031& run, std::int64_t video, const std::string& name,
              const CMTime& moment, std::optional<TagHandle> moved) {
    const auto tags = tagsOf(run);
    return whereThere(std::ranges::any_of(tags,
                                          [&](const Tag& tag) {
                                              return tag.handle != moved && tag.video == video &&
                                                     tag.name == name && tag.moment &&
                                                     isSame(*tag.moment, moment);
                                          }),
                      say("the tag {}", name));
}

/// A mark on one of several cameras: the others stay in step with the first.
Refusal refusalOfTiming(const athletedata031& run, const MarkHandle& handle, const CMTime& moment) {
    const RunMarks marks = marksOf(run.sectioninfo);
    const std::size_t mark = handle.kind == MarkKind::Start ? 0 : handle.record + 1;
    const Stamps stamps =
        mark == 0 ? marks.start.value_or(Stamps{}) : entryOf(marks.marks, handle.record, "split");
    if (handle.entry >= stamps.size())
        return std::nullopt;
    const CMTime first = handle.entry == 0
                             ? moment
                             : later(stamps.front(), secondsFrom(stamps[handle.entry], moment));
    const auto refused = refusalToMove(marks, mark, first);
    return refused ? Refusal(refused->text) : std::nullopt;
}

Refusal refusalOfUpstream(const athletedata031& run, const MarkHandle& handle,
                          const CMTime& moment) {
    const GateMarks& marks = entryOf(run.upstreams, handle.record, "upstream gate").cmtimes;
    const auto which = markAtPlace(handle.entry, marks.size());
    return which ? refusalOfGateMark(marks, *which, moment) : std::nullopt;
}

Refusal refusalOfStretch(const athletedata031& run, const MarkHandle& handle,
                         const CMTime& moment) {
    if (handle.entry > 1)
        return std::nullopt; // such a mark means nothing
    const bool isOwn = handle.film != FilmKind::Versus;
    const LossMark which = handle.entry == 0 ? isOwn ? LossMark::OwnStart : LossMark::VersusStart
                           : isOwn           ? LossMark::OwnEnd
                                             : LossMark::VersusEnd;
    return refusalOfLossMark(entryOf(run.timeslosses, handle.record, "time loss"), which, moment);
}

Refusal refusalOfTagMove(const athletedata031& run, const MarkHandle& handle,
                         const CMTime& moment) {
    const TagHandle moved{handle.record, handle.entry};
    for (const Tag& tag : tagsOf(run))
        if (tag.handle == moved && handle.film == FilmKind::Own)
            return tagAt(run, tag.video, tag.name, moment, moved);
    return std::nullopt;
}

} // namespace

Refusal refusalOfMicroSplit(const athletedata031& run, const CMTime& moment) {
    return microSplitAt(run, moment, std::nullopt);
}

Refusal refusalOfStroke(const athletedata031& run, const CMTime& moment, HandCode hand) {
    return strokeAt(run, moment, 0, static_cast<std::int64_t>(hand), std::nullopt);
}

Refusal refusalOfTag(const athletedata031& run, std::int64_t video, const std::string& name,
                     const CMTime& moment) {
    return tagAt(run, video, name, moment, std::nullopt);
}

Refusal refusalOfPenalty(const athletedata031& run, const PenaltyDetail& detail) {
    const std::array<std::int64_t, PenaltyFields> wanted{
        detail.gate,   detail.gatekind,  detail.penkind, detail.polekind, detail.penway,
        detail.moment, detail.direction, detail.style,   detail.eye};
    const auto says = [&](const PenaltyEntry& entry) {
        return std::ranges::equal(entry.codes, wanted);
    };
    const auto entries = penaltyEntries(run);
    if (std::ranges::none_of(entries, says))
        return std::nullopt;
    return say("Gate {} has this penalty already.", detail.gate);
}

Refusal refusalOfSync(const athletedata031& run, std::size_t camera, const CMTime& own,
                      const CMTime& fixed) {
    const auto marks = syncMarksOf(run, camera);
    return whereThere(std::ranges::any_of(marks,
                                          [&](const SyncMark& mark) {
                                              return isSame(mark.own, own) &&
                                                     isSame(mark.fixed, fixed);
                                          }),
                      say("this moment"));
}

Refusal refusalOfGateMark(std::span<const CMTime> marks, GateMark which, const CMTime& moment,
                          const GateMarkNames& names) {
    const auto neighbour = [&](GateMark of) {
        const auto taken = markOf(marks, of);
        return taken ? std::optional(Neighbour{names[static_cast<std::size_t>(of)], *taken})
                     : std::nullopt;
    };
    const auto before = neighbour(GateMark::Entrance);
    const auto middle = neighbour(GateMark::Middle);
    const auto behind = neighbour(GateMark::Exit);
    if (which == GateMark::Entrance)
        return refusalBetween(std::nullopt, middle ? middle : behind, moment);
    if (which == GateMark::Exit)
        return refusalBetween(middle ? middle : before, std::nullopt, moment);
    return refusalBetween(before, behind, moment);
}

Refusal refusalOfLossMark(const timeloss031& loss, LossMark which, const CMTime& moment) {
    const auto neighbour = [&](LossMark of, const std::string& name) {
        const auto taken = markOf(loss, of);
        return taken ? std::optional(Neighbour{name, *taken}) : std::nullopt;
    };
    const std::string start = say("the start of the stretch");
    const std::string end = say("the end of the stretch");
    switch (which) {
    case LossMark::OwnStart:
        return refusalBetween(std::nullopt, neighbour(LossMark::OwnEnd, end), moment);
    case LossMark::VersusStart:
        return refusalBetween(std::nullopt, neighbour(LossMark::VersusEnd, end), moment);
    case LossMark::OwnEnd:
        return refusalBetween(neighbour(LossMark::OwnStart, start), std::nullopt, moment);
    case LossMark::VersusEnd:
        break;
    }
    return refusalBetween(neighbour(LossMark::VersusStart, start), std::nullopt, moment);
}

Refusal refusalOfMove(const athletedata031& run, const MarkHandle& handle, const CMTime& moment) {
    switch (handle.kind) {
    case MarkKind::Start:
    case MarkKind::Split:
        return refusalOfTiming(run, handle, moment);
    case MarkKind::MicroSplit:
        return microSplitAt(run, moment, handle.record);
    case MarkKind::Stroke:
        return strokeAt(run, moment, handle.entry,
                        entryOf(run.strokes, handle.record, "stroke").hand, handle.record);
    case MarkKind::Upstream:
        return refusalOfUpstream(run, handle, moment);
    case MarkKind::TimeLoss:
        return refusalOfStretch(run, handle, moment);
    case MarkKind::Tag:
        break;
    }
    return refusalOfTagMove(run, handle, moment);
}

} // namespace kavela
