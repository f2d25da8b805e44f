#include "splitdata/film_marks.h"

#include "splitdata/run_marks.h"

namespace kavela {

namespace {

/// Wide enough for the product of a stamp and a time scale.
__extension__ using WideMark = __int128;

constexpr std::uint32_t Unbounded = 4 | 8 | 16;

WideMark crossed(const CMTime& stamp, const CMTime& other) {
    return static_cast<WideMark>(stamp.value) * other.timescale;
}

} // namespace

bool isTaken(const CMTime& stamp) {
    return stamp.timescale > 0 && (stamp.flags & Unbounded) == 0;
}

std::strong_ordering orderOf(const CMTime& a, const CMTime& b) {
    return crossed(a, b) <=> crossed(b, a);
}

double secondsFrom(const CMTime& from, const CMTime& to) {
    if (!isTaken(from) || !isTaken(to))
        return 0;
    if (from.timescale == to.timescale)
        return static_cast<double>(static_cast<WideMark>(to.value) - from.value) / from.timescale;
    return static_cast<double>(crossed(to, from) - crossed(from, to)) /
           (static_cast<double>(from.timescale) * to.timescale);
}

std::optional<CMTime> startOf(const athletedata031& run, std::size_t camera) {
    const RunMarks marks = marksOf(run.sectioninfo);
    if (!marks.start || camera >= marks.start->size() || !isTaken((*marks.start)[camera]))
        return std::nullopt;
    return (*marks.start)[camera];
}

double runSecondsAt(const athletedata031& run, const CMTime& moment) {
    const std::optional<CMTime> start = startOf(run);
    return start ? secondsFrom(*start, moment) : moment.seconds();
}

} // namespace kavela
