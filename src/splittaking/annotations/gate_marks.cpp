#include "splittaking/annotations/gate_marks.h"

#include "common/text.h"

#include <algorithm>

namespace kavela {

namespace {

std::optional<std::size_t> placeOf(GateMark which, std::size_t count) {
    for (std::size_t place = 0; place < count; ++place)
        if (markAtPlace(place, count) == which)
            return place;
    return std::nullopt;
}

double secondsBetween(std::span<const CMTime> marks, GateMark from, GateMark to) {
    const auto begin = markOf(marks, from);
    const auto end = markOf(marks, to);
    return begin && end ? secondsFrom(*begin, *end) : 0;
}

} // namespace

std::optional<GateMark> markAtPlace(std::size_t place, std::size_t count) {
    if (place == 0)
        return GateMark::Entrance;
    if (place + 1 == count)
        return GateMark::Exit;
    return place == 1 ? std::optional(GateMark::Middle) : std::nullopt;
}

std::optional<CMTime> markOf(std::span<const CMTime> marks, GateMark which) {
    const auto place = placeOf(which, marks.size());
    return place && isTaken(marks[*place]) ? std::optional(marks[*place]) : std::nullopt;
}

void setMark(GateMarks& marks, GateMark which, const CMTime& moment) {
    if (marks.empty())
        marks.push_back(NotMarked);
    if (which != GateMark::Entrance && marks.size() < 2)
        marks.push_back(NotMarked);
    if (which == GateMark::Middle && marks.size() < 3)
        marks.insert(marks.begin() + 1, NotMarked);
    marks[*placeOf(which, marks.size())] = moment;
}

void clearMark(GateMarks& marks, GateMark which) {
    const auto place = placeOf(which, marks.size());
    if (!place)
        return;
    const bool closesUp = which == GateMark::Middle ? marks.size() == 3 : marks.size() <= 2;
    if (closesUp && which != GateMark::Entrance)
        eraseEntry(marks, *place);
    else
        marks[*place] = NotMarked;
    if (std::ranges::none_of(marks, isTaken))
        marks.clear();
}

std::optional<GateMark> nextMark(std::span<const CMTime> marks, bool withMiddle) {
    if (!markOf(marks, GateMark::Entrance))
        return GateMark::Entrance;
    if (markOf(marks, GateMark::Exit))
        return std::nullopt;
    return withMiddle && !markOf(marks, GateMark::Middle) ? GateMark::Middle : GateMark::Exit;
}

GateTimes timesOf(std::span<const CMTime> marks) {
    return {secondsBetween(marks, GateMark::Entrance, GateMark::Exit),
            secondsBetween(marks, GateMark::Entrance, GateMark::Middle),
            secondsBetween(marks, GateMark::Middle, GateMark::Exit)};
}

std::optional<std::string> faultOfMarks(std::span<const CMTime> marks) {
    const GateTimes times = timesOf(marks);
    if (times.total < 0)
        return say("The exit is marked before the entrance.");
    if (times.entrance < 0)
        return say("The middle is marked before the entrance.");
    if (times.exit < 0)
        return say("The exit is marked before the middle.");
    return std::nullopt;
}

} // namespace kavela
