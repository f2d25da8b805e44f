#include "splittaking/film_crossings.h"

#include "common/text.h"
#include "splitdata/film_marks.h"
#include "splittaking/annotations/camera_sync.h"
#include "splittaking/marking.h"
#include "splittaking/messages.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

const Stamps* stampsOfMark(const RunMarks& marks, std::size_t mark) {
    if (mark == 0)
        return marks.start ? &*marks.start : nullptr;
    return mark <= marks.marks.size() && !marks.marks[mark - 1].empty() ? &marks.marks[mark - 1]
                                                                        : nullptr;
}

/// The moment of one of the run's own cameras at a mark.
std::optional<CMTime> ownMoment(const RunMarks& marks, std::size_t mark, std::size_t camera) {
    const Stamps* const stamps = stampsOfMark(marks, mark);
    return stamps && camera < stamps->size() && isTaken((*stamps)[camera])
               ? std::optional((*stamps)[camera])
               : std::nullopt;
}

/// Seconds from a moment of one camera to the same on another, as the mark nearest to one tells.
std::optional<double> wayBetween(const RunMarks& marks, std::size_t from, std::size_t to,
                                 std::size_t near) {
    std::optional<double> way;
    std::size_t least = marks.marks.size() + 2;
    for (std::size_t mark = 0; mark <= marks.marks.size(); ++mark) {
        const auto a = ownMoment(marks, mark, from);
        const auto b = ownMoment(marks, mark, to);
        const std::size_t distance = mark > near ? mark - near : near - mark;
        if (a && b && distance < least) {
            least = distance;
            way = secondsFrom(*a, *b);
        }
    }
    return way;
}

/// The stamps of all own cameras at a moment of one; none where the first one's is not known.
Stamps stampsAt(const athletedata031& run, const RunMarks& marks, std::size_t camera,
                std::size_t mark, const CMTime& moment) {
    Stamps stamps;
    for (std::size_t other = 0; other < std::max<std::size_t>(run.videoname.size(), camera + 1);
         ++other) {
        const auto way =
            other == camera ? std::optional(0.0) : wayBetween(marks, camera, other, mark);
        if (!way)
            break;
        stamps.push_back(other == camera ? moment : later(moment, *way));
    }
    return stamps;
}

Alert refusedOnFilm(std::string text) {
    return {"", std::move(text)};
}

} // namespace

std::optional<CameraOfRun> filmOfRun(const athletedata031& run, std::string_view film) {
    const auto placeIn = [&](const std::vector<std::string>& films) -> std::optional<std::size_t> {
        const auto found = std::ranges::find(films, film);
        if (film.empty() || found == films.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - films.begin());
    };
    if (const auto camera = placeIn(run.videoname))
        return CameraOfRun{*camera, false};
    if (const auto camera = placeIn(run.fixcameras))
        return CameraOfRun{*camera, true};
    return std::nullopt;
}

std::optional<CMTime> markOnFilm(const athletedata031& run, const RunMarks& marks,
                                 const CameraOfRun& film, std::size_t mark) {
    if (!film.isFixed) {
        if (const auto moment = ownMoment(marks, mark, film.camera))
            return moment;
        const auto first = ownMoment(marks, mark, 0);
        const auto way = wayBetween(marks, 0, film.camera, mark);
        return first && way ? std::optional(later(*first, *way)) : std::nullopt;
    }
    const auto own = ownMoment(marks, mark, 0);
    const auto lag = lagOf(run, film.camera);
    return own && lag ? std::optional(later(*own, *lag)) : std::nullopt;
}

std::optional<Alert> setMarkOnFilm(const athletedata031& run, RunMarks& marks,
                                   const CameraOfRun& film, std::size_t mark, const CMTime& moment,
                                   std::int64_t totalsplits) {
    if (std::cmp_greater(mark, totalsplits))
        return refusedOnFilm(say("The course has {}, and this line is for split {}.",
                                 sayCount(totalsplits, "{} split", "{} splits"), mark));
    const auto lag = film.isFixed ? lagOf(run, film.camera) : std::optional(0.0);
    if (!lag)
        return refusedOnFilm(
            say("This is a fixed camera beside the run's own film: synchronise the "
                "two in split taking first."));
    const CMTime own = film.isFixed ? later(moment, -*lag) : moment;
    RunMarks changed = marks;
    Stamps stamps = stampsAt(run, marks, film.isFixed ? 0 : film.camera, mark, own);
    if (stamps.empty())
        return refusedOnFilm(say("No mark tells yet how this camera's film lies beside the run's "
                                 "first one: mark one moment on both in split taking."));
    if (mark > changed.marks.size())
        changed.marks.resize(mark);
    if (auto refused = refusalToMove(changed, mark, stamps.front()))
        return refused;
    if (mark == 0)
        setStart(changed, std::move(stamps));
    else
        changed.marks[mark - 1] = std::move(stamps);
    marks = std::move(changed);
    return std::nullopt;
}

void clearMark(RunMarks& marks, std::size_t mark) {
    if (mark == 0) {
        marks.start.reset();
        return;
    }
    if (mark <= marks.marks.size())
        marks.marks[mark - 1].clear();
    while (!marks.marks.empty() && marks.marks.back().empty())
        marks.marks.pop_back();
}

void refineMark(sectiondata030& timing, std::size_t mark, double seconds) {
    const auto isTimed = [&](std::size_t section) {
        return section < timing.times.size() && timing.times[section] != 0;
    };
    if (mark > 0 && isTimed(mark - 1)) {
        timing.times[mark - 1] += seconds;
        timing.totaltime += seconds;
    }
    // The next one is measured from here, wherever it is.
    for (std::size_t section = mark; section < timing.times.size(); ++section)
        if (isTimed(section)) {
            timing.times[section] -= seconds;
            timing.totaltime -= seconds;
            return;
        }
}

std::vector<std::optional<std::size_t>>
runsOfCrossings(std::span<const double> crossings, std::span<const std::optional<double>> marked) {
    constexpr double SameCrossing = 0.5; // seconds
    std::vector<std::optional<std::size_t>> runs(crossings.size());
    std::size_t next = 0; // the first run that can still come
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        const auto isHere = [&](const std::optional<double>& mark) {
            return mark && std::abs(*mark - crossings[i]) <= SameCrossing;
        };
        if (const auto own = std::ranges::find_if(marked, isHere); own != marked.end()) {
            runs[i] = static_cast<std::size_t>(own - marked.begin());
            next = std::max(next, *runs[i] + 1);
            continue;
        }
        // Runs that were marked earlier are past, with all before them.
        for (std::size_t run = next; run < marked.size(); ++run)
            if (marked[run] && *marked[run] < crossings[i])
                next = run + 1;
        if (next < marked.size() && !marked[next])
            runs[i] = next++;
    }
    return runs;
}

} // namespace kavela
