#include "splittaking/annotations/strokes.h"

#include "common/percentile.h"

#include <algorithm>
#include <utility>

namespace kavela {

namespace {

CMTime momentOf(const microsplitsdata025& split) {
    return split.cmtime;
}

CMTime momentOf(const strokessdata025& stroke) {
    return stroke.cmtimes.empty() ? NotMarked : stroke.cmtimes.front();
}

/// Puts a mark before the first one that is later. Notes of a file without a stamp have no place
/// in time: nothing is sorted around them.
template <class T>
std::size_t insertInTime(std::vector<T>& marks, T mark) {
    const auto next = std::ranges::find_if(marks, [&](const T& other) {
        return isTaken(momentOf(other)) && orderOf(momentOf(other), momentOf(mark)) > 0;
    });
    const auto place = next - marks.begin(); // taken before the list may move
    marks.insert(next, std::move(mark));
    return static_cast<std::size_t>(place);
}

/// Takes a mark out and puts it where it now belongs.
template <class T>
std::size_t moveInTime(std::vector<T>& marks, std::size_t place, T mark) {
    eraseEntry(marks, place);
    return insertInTime(marks, std::move(mark));
}

/// The strokes' moments up to a moment, in order.
std::vector<CMTime> strokesUpTo(std::span<const strokessdata025> strokes, const CMTime& moment) {
    std::vector<CMTime> moments;
    for (const strokessdata025& stroke : strokes)
        if (isTaken(momentOf(stroke)) && orderOf(momentOf(stroke), moment) <= 0)
            moments.push_back(momentOf(stroke));
    std::ranges::sort(moments, [](const CMTime& a, const CMTime& b) { return orderOf(a, b) < 0; });
    return moments;
}

} // namespace

std::size_t addMicroSplit(athletedata031& run, const CMTime& moment) {
    return insertInTime(run.microsplits, {moment, runSecondsAt(run, moment)});
}

std::size_t moveMicroSplit(athletedata031& run, std::size_t place, const CMTime& moment) {
    (void)entryOf(run.microsplits, place, "micro split");
    return moveInTime(run.microsplits, place, {moment, runSecondsAt(run, moment)});
}

void removeMicroSplit(athletedata031& run, std::size_t place) {
    (void)entryOf(run.microsplits, place, "micro split");
    eraseEntry(run.microsplits, place);
}

std::size_t addStroke(athletedata031& run, std::vector<CMTime> stamps, HandCode hand,
                      std::int64_t style) {
    if (stamps.empty())
        throw std::invalid_argument("a stroke needs a moment on a film");
    const double seconds = runSecondsAt(run, stamps.front());
    return insertInTime(run.strokes,
                        {std::move(stamps), seconds, static_cast<std::int64_t>(hand), style});
}

std::size_t moveStroke(athletedata031& run, std::size_t place, std::vector<CMTime> stamps) {
    strokessdata025 stroke = entryOf(run.strokes, place, "stroke");
    if (stamps.empty())
        throw std::invalid_argument("a stroke needs a moment on a film");
    stroke.time = runSecondsAt(run, stamps.front());
    stroke.cmtimes = std::move(stamps);
    return moveInTime(run.strokes, place, std::move(stroke));
}

void removeStroke(athletedata031& run, std::size_t place) {
    (void)entryOf(run.strokes, place, "stroke");
    eraseEntry(run.strokes, place);
}

void swapHand(athletedata031& run, std::size_t place) {
    std::int64_t& hand = entryOf(run.strokes, place, "stroke").hand;
    const bool wasLeft = hand == static_cast<std::int64_t>(HandCode::Left);
    hand = static_cast<std::int64_t>(wasLeft ? HandCode::Right : HandCode::Left);
}

std::optional<double> strokeRateAt(std::span<const strokessdata025> strokes, const CMTime& moment) {
    constexpr std::size_t Intervals = 5;
    const std::vector<CMTime> moments = strokesUpTo(strokes, moment);
    if (moments.size() < 2 || secondsFrom(moments.back(), moment) > GlideSeconds)
        return std::nullopt;
    std::vector<double> seconds;
    for (std::size_t k = moments.size() - 1; k > 0 && seconds.size() < Intervals; --k)
        seconds.push_back(secondsFrom(moments[k - 1], moments[k]));
    std::ranges::sort(seconds);
    const double middle = percentile(seconds, 0.5);
    return middle > 0 ? std::optional(60 / middle) : std::nullopt;
}

} // namespace kavela
