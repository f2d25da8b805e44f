#include "desktop/cross/trials/trial_marks.h"

#include <QObject>

#include <algorithm>

namespace kavela::desktop {

namespace {

void addList(std::vector<TrialMark>& marks, const GateMarks& list, TrialMark like) {
    for (std::size_t entry = 0; entry < list.size(); ++entry) {
        if (!isTaken(list[entry]))
            continue;
        like.entry = entry;
        like.which = markAtPlace(entry, list.size());
        like.stamp = list[entry];
        marks.push_back(like);
    }
}

} // namespace

bool isSameMark(const TrialMark& a, const TrialMark& b) {
    return a.mode == b.mode && a.place == b.place && a.gate == b.gate && a.entry == b.entry;
}

std::vector<TrialMark> marksOfTrial(const ttdata030& trial, const RunMarks& splits) {
    std::vector<TrialMark> marks;
    const auto addSplit = [&](std::size_t place, const Stamps& stamps) {
        if (!stamps.empty())
            marks.push_back({.place = place, .which = {}, .stamp = stamps.front()});
    };
    if (splits.start)
        addSplit(0, *splits.start);
    for (std::size_t k = 0; k < splits.marks.size(); ++k)
        addSplit(k + 1, splits.marks[k]);
    for (std::size_t place = 0; place < trial.upstreams.size(); ++place) {
        const ttupstream030& upstream = trial.upstreams[place];
        addList(marks, upstream.cmtimes,
                {.mode = TrialMode::Upstreams,
                 .place = place,
                 .gate = upstream.gateNum,
                 .which = {},
                 .stamp = {}});
    }
    addList(marks, trial.roll.cmtimes, {.mode = TrialMode::Roll, .which = {}, .stamp = {}});
    return marks;
}

GateMarks& listOf(ttdata030& trial, const TrialMark& mark) {
    return mark.mode == TrialMode::Roll
               ? trial.roll.cmtimes
               : entryOf(trial.upstreams, mark.place, "upstream gate").cmtimes;
}

void moveGateMark(ttdata030& trial, const TrialMark& mark, const CMTime& moment) {
    entryOf(listOf(trial, mark), mark.entry, "mark") = moment;
}

void removeGateMark(ttdata030& trial, const TrialMark& mark) {
    GateMarks& list = listOf(trial, mark);
    if (const auto which = markAtPlace(mark.entry, list.size()))
        clearMark(list, *which);
    else
        eraseEntry(list, mark.entry);
}

std::vector<std::int64_t> upstreamGates(const crossdata030& cross,
                                        std::span<const std::int64_t> upGates) {
    const auto isUpstream = [&](std::int64_t gate) {
        return std::ranges::find(upGates, gate) != upGates.end() ||
               std::ranges::any_of(cross.timetrials, [gate](const ttdata030& trial) {
                   return upstreamAt(trial, gate).has_value();
               });
    };
    std::vector<std::int64_t> gates;
    std::ranges::copy_if(cross.crossinfo.gates, std::back_inserter(gates), isUpstream);
    return gates;
}

QString rollMarkText(GateMark which) {
    switch (which) {
    case GateMark::Entrance:
        return QObject::tr("start of the roll");
    case GateMark::Middle:
        return QObject::tr("boat upside down");
    case GateMark::Exit:
        break;
    }
    return QObject::tr("boat up again");
}

} // namespace kavela::desktop
