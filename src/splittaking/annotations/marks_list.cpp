#include "splittaking/annotations/marks_list.h"

#include "splittaking/marking.h"

#include <algorithm>
#include <limits>

namespace kavela {

namespace {

/// Whether a mark repeats one of the first camera on another one.
bool isRepeated(const LaneMark& mark) {
    const bool isOfAllCameras = mark.kind == MarkKind::Start || mark.kind == MarkKind::Split ||
                                mark.kind == MarkKind::Stroke;
    return isOfAllCameras && mark.handle.entry > 0;
}

/// The moment of the first camera at a moment of another one: the first mark on both tells.
std::optional<double> onFirstCamera(const athletedata031& run, const LaneMark& mark) {
    const RunMarks marks = marksOf(run.sectioninfo);
    std::vector<Stamps> all = marks.marks;
    all.insert(all.begin(), marks.start.value_or(Stamps{}));
    const auto camera = static_cast<std::size_t>(std::max<std::int64_t>(mark.film.number, 0));
    for (const Stamps& stamps : all)
        if (camera < stamps.size() && isTaken(stamps.front()) && isTaken(stamps[camera]))
            return mark.seconds - secondsFrom(stamps.front(), stamps[camera]);
    return std::nullopt;
}

/// This run's mark of the stretch that a mark on the other run answers to.
std::optional<double> counterpart(const athletedata031& run, const LaneMark& mark) {
    if (mark.handle.record >= run.timeslosses.size())
        return std::nullopt;
    const auto& sides = run.timeslosses[mark.handle.record].cmtimes;
    const bool isThere = !sides.empty() && mark.handle.entry < sides.front().size() &&
                         isTaken(sides.front()[mark.handle.entry]);
    return isThere ? std::optional(runSecondsAt(run, sides.front()[mark.handle.entry]))
                   : std::nullopt;
}

std::optional<double> runSecondsOf(const athletedata031& run, const LaneMark& mark,
                                   const OwnSeconds& ownSeconds) {
    if (mark.film == FilmOfRun{})
        return runSecondsAt(run, mark.time);
    if (mark.film.kind == FilmKind::Versus)
        return counterpart(run, mark);
    const auto own = mark.film.kind == FilmKind::Fixed ? ownSeconds(mark.film.number, mark.seconds)
                                                       : onFirstCamera(run, mark);
    const auto start = startOf(run);
    return own ? std::optional(*own - (start ? start->seconds() : 0)) : std::nullopt;
}

} // namespace

std::vector<ListedMark> marksList(const athletedata031& run, std::span<const LaneMark> marks,
                                  const OwnSeconds& ownSeconds) {
    std::vector<ListedMark> list;
    for (const LaneMark& mark : marks)
        if (!isRepeated(mark))
            list.push_back({mark, runSecondsOf(run, mark, ownSeconds),
                            mark.film == FilmOfRun{} ? std::nullopt : std::optional(mark.seconds)});
    const auto place = [](const ListedMark& listed) {
        return listed.seconds.value_or(std::numeric_limits<double>::infinity());
    };
    // A mark of this run comes before what stands beside it.
    std::ranges::stable_sort(list, [&](const ListedMark& a, const ListedMark& b) {
        return place(a) != place(b) ? place(a) < place(b)
                                    : !a.filmSeconds && b.filmSeconds.has_value();
    });
    return list;
}

} // namespace kavela
