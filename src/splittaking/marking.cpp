#include "splittaking/marking.h"

#include "common/text.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/course_setup.h"
#include "splittaking/mark_order.h"
#include "splittaking/messages.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace kavela {

namespace {

Stamps& markOf(RunMarks& run, std::size_t split) {
    if (split < 1 || split > run.marks.size())
        throw std::out_of_range("split " + std::to_string(split) + " is not marked");
    return run.marks[split - 1];
}

/// The moment of a mark on the first camera: 0 is the start. Nothing when it was not taken.
std::optional<CMTime> momentOfMark(const RunMarks& run, std::size_t mark) {
    static const Stamps None;
    const Stamps& stamps = mark == 0 ? run.start ? *run.start : None : run.marks.at(mark - 1);
    return !stamps.empty() && isTaken(stamps.front()) ? std::optional(stamps.front())
                                                      : std::nullopt;
}

std::string nameOf(std::size_t mark) {
    return mark == 0 ? say("the start") : say("split {}", mark);
}

std::optional<Neighbour> neighbour(const RunMarks& run, std::size_t mark) {
    const auto moment = momentOfMark(run, mark);
    return moment ? std::optional(Neighbour{nameOf(mark), *moment}) : std::nullopt;
}

/// The first split behind a moment; one more than the splits when there is none.
std::size_t firstBehind(const RunMarks& run, const CMTime& moment) {
    std::size_t split = 1;
    for (; split <= run.marks.size(); ++split)
        if (const auto taken = momentOfMark(run, split); taken && orderOf(*taken, moment) > 0)
            break;
    return split;
}

/// The split that was not seen between a marked one and the marked one before it.
std::optional<std::size_t> unseenBefore(const RunMarks& run, std::size_t split) {
    std::optional<std::size_t> unseen;
    for (std::size_t k = split - 1; split <= run.marks.size() && k > 0 && run.marks[k - 1].empty();
         --k)
        unseen = k;
    return unseen;
}

Alert limitReached() {
    return {messages::BeCareful, messages::SplitLimitReached};
}

} // namespace

std::optional<std::size_t> markAt(const RunMarks& run, const CMTime& moment) {
    for (std::size_t mark = 0; mark <= run.marks.size(); ++mark)
        if (const auto taken = momentOfMark(run, mark); taken && orderOf(*taken, moment) == 0)
            return mark;
    return std::nullopt;
}

std::optional<Alert> refusalToMove(const RunMarks& run, std::size_t mark, const CMTime& moment) {
    std::optional<Neighbour> before;
    for (std::size_t k = mark; k-- > 0 && !before;)
        before = neighbour(run, k);
    std::optional<Neighbour> behind;
    for (std::size_t k = mark + 1; k <= run.marks.size() && !behind; ++k)
        behind = neighbour(run, k);
    const auto refusal = refusalBetween(before, behind, moment);
    return refusal ? std::optional(Alert{"", *refusal}) : std::nullopt;
}

std::optional<Alert> markSplit(RunMarks& run, Stamps stamps, std::int64_t totalsplits) {
    const bool isFull = std::cmp_greater_equal(run.marks.size(), totalsplits);
    if (stamps.empty())
        return isFull ? limitReached() : Alert{"", messages::NoVideo};
    const CMTime moment = stamps.front();
    const std::size_t next = firstBehind(run, moment);
    const auto unseen = unseenBefore(run, next);
    if (isFull && !unseen)
        return limitReached();
    if (const auto there = markAt(run, moment))
        return Alert{"", alreadyThere(nameOf(*there))};
    if (const auto refused = refusalBetween(neighbour(run, 0), std::nullopt, moment))
        return Alert{"", *refused};
    if (unseen)
        run.marks[*unseen - 1] = std::move(stamps);
    else
        run.marks.insert(run.marks.begin() + static_cast<std::ptrdiff_t>(next - 1),
                         std::move(stamps));
    return std::nullopt;
}

std::optional<Alert> markNext(RunMarks& run, Stamps stamps, std::int64_t totalsplits) {
    const bool isStart = !run.start && !stamps.empty() &&
                         (run.marks.empty() || firstBehind(run, stamps.front()) == 1) &&
                         !markAt(run, stamps.front());
    if (!isStart)
        return markSplit(run, std::move(stamps), totalsplits);
    run.start = std::move(stamps);
    return std::nullopt;
}

void setStart(RunMarks& run, Stamps stamps) {
    run.start = std::move(stamps);
}

void moveMark(RunMarks& run, std::size_t split, Stamps stamps) {
    markOf(run, split) = std::move(stamps);
}

void removeMark(RunMarks& run, std::size_t split) {
    (void)markOf(run, split);
    run.marks.erase(run.marks.begin() + static_cast<std::ptrdiff_t>(split - 1));
}

void removeLastMark(RunMarks& run) {
    if (run.marks.empty())
        run.start.reset();
    else
        run.marks.pop_back();
}

std::vector<double> splitTimes(const RunMarks& run) {
    std::vector<double> times;
    double previous = run.start && !run.start->empty() ? run.start->front().seconds() : 0;
    for (const Stamps& stamps : run.marks) {
        const double present = stamps.empty() ? previous : stamps.front().seconds();
        times.push_back(present - std::exchange(previous, present));
    }
    return times;
}

void applyMarks(const RunMarks& run, athletedata031& record, std::int64_t totalsplits) {
    sectiondata030& timing = record.sectioninfo;
    timing.times = splitTimes(run);
    timing.cmtimes = run.marks;
    const auto isTimed = [](double time) { return time != 0; };
    timing.splitnum = std::count_if(timing.times.begin(), timing.times.end(), isTimed);
    timing.totaltime = std::accumulate(timing.times.begin(), timing.times.end(), 0.0);
    // Every run has its splits at the same places: what follows the last split, the sprint, would
    // otherwise be compared with a section.
    const auto splits =
        static_cast<std::size_t>(std::clamp<std::int64_t>(totalsplits, 0, MostSplits));
    timing.times.resize(std::max(timing.times.size(), splits));
    timing.cmtimes.resize(timing.times.size());
    timing.isfullrun = isFullRun(timing.times, totalsplits);
}

} // namespace kavela
