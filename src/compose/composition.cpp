#include "compose/composition.h"

#include "common/error.h"
#include "common/text.h"
#include "splitdata/film_marks.h"
#include "splitdata/run_marks.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>

namespace kavela {

namespace {

constexpr double FastestComposedRate = 60;
constexpr std::array<FrameRate, 9> UsualRates{{{24000, 1001},
                                               {24, 1},
                                               {25, 1},
                                               {30000, 1001},
                                               {30, 1},
                                               {48, 1},
                                               {50, 1},
                                               {60000, 1001},
                                               {60, 1}}};

/// Seconds of run at each split, as far as every section up to it was timed.
std::vector<std::optional<double>> timesAtSplits(const sectiondata030& timing) {
    std::vector<std::optional<double>> times{0.0};
    double sum = 0;
    bool isKnown = true;
    for (std::size_t k = 0; k < timing.times.size(); ++k) {
        // A split that was not seen has the time 0; the next one is measured over both.
        const bool isTaken = isTakenTime(timing.times[k]);
        const bool isMissed = timing.times[k] == 0;
        isKnown = isKnown && (isTaken || isMissed);
        sum += isTaken ? timing.times[k] : 0;
        times.push_back(isTaken && isKnown ? std::optional(sum) : std::nullopt);
    }
    return times;
}

std::optional<double> markSeconds(const Stamps& stamps, std::size_t camera) {
    if (camera >= stamps.size() || !isTaken(stamps[camera]))
        return std::nullopt;
    return stamps[camera].seconds();
}

/// The last mark of a run.
std::optional<std::size_t> lastMark(const FilmMarks& marks) {
    for (std::size_t k = marks.size(); k-- > 0;)
        if (marks[k])
            return k;
    return std::nullopt;
}

struct Reach {
    double from = std::numeric_limits<double>::infinity();
    double to = -std::numeric_limits<double>::infinity();

    void widen(double moment) {
        from = std::min(from, moment);
        to = std::max(to, moment);
    }
};

/// When the films pass a split; none of them does where it is infinite.
Reach reachOf(const Composition& composition, const TimeMap& map,
              const std::function<std::optional<std::size_t>(const FilmMarks&)>& whichMark) {
    Reach reach;
    for (std::size_t film = 0; film < composition.films.size(); ++film) {
        const FilmMarks& marks = composition.films[film].run.marks;
        const auto mark = whichMark(marks);
        if (mark && *mark < marks.size() && marks[*mark])
            reach.widen(map.commonAt(film, *marks[*mark]));
    }
    return reach;
}

CommonRange rangeBetweenSplits(const Composition& composition, const TimeMap& map) {
    const RangeChoice& range = composition.range;
    const auto at = [](std::size_t split) {
        return [split](const FilmMarks&) { return std::optional(split); };
    };
    const Reach from = reachOf(composition, map, at(range.fromSplit));
    const Reach to = reachOf(composition, map, at(range.toSplit));
    if (!std::isfinite(from.from))
        throw DecodeError({"range.fromSplit", say("no film has a mark at this split")});
    if (!std::isfinite(to.to))
        throw DecodeError({"range.toSplit", say("no film has a mark at this split")});
    return {from.from, to.to + TailSeconds};
}

/// From the first start to the last mark; whole films where none has a mark behind its start.
CommonRange rangeOfRuns(const Composition& composition, const TimeMap& map,
                        const std::vector<double>& lengths) {
    const Reach start =
        reachOf(composition, map, [](const FilmMarks&) { return std::optional<std::size_t>(0); });
    if (!std::isfinite(start.from))
        throw DecodeError({"range.kind", say("no run is marked at its start, so the range has to "
                                             "be given in seconds")});
    const Reach end = reachOf(composition, map, lastMark);
    if (end.to > start.from)
        return {start.from, end.to + TailSeconds};
    double last = start.from;
    for (std::size_t film = 0; film < std::min(lengths.size(), composition.films.size()); ++film)
        if (lengths[film] > 0)
            last = std::max(last, map.commonAt(film, lengths[film]));
    return {start.from, last > start.from ? last : start.from + TailSeconds};
}

} // namespace

TimeMap timeMapOf(const Composition& composition) {
    std::vector<FilmMarks> marks;
    for (const ComposedFilm& film : composition.films)
        marks.push_back(film.run.marks);
    return {marks, composition.synchronise, composition.split};
}

CommonRange rangeOf(const Composition& composition, const TimeMap& map,
                    const std::vector<double>& lengths) {
    CommonRange range{composition.range.from, composition.range.to};
    if (composition.range.kind == RangeKind::Splits) {
        range = rangeBetweenSplits(composition, map);
    } else if (composition.range.kind == RangeKind::Run) {
        range = rangeOfRuns(composition, map, lengths);
    }
    if (!(range.from < range.to) || !std::isfinite(range.from) || !std::isfinite(range.to))
        throw DecodeError({"range", say("its end does not lie behind its beginning")});
    return range;
}

CaptionPlan captionsOf(const Composition& composition, const TimeMap& map) {
    std::vector<CaptionedRun> runs;
    for (const ComposedFilm& film : composition.films)
        runs.push_back(film.run);
    return {std::move(runs), composition.splitTitles, composition.captions, map};
}

CaptionedRun captionedRun(const infodata031& info, const athletedata031& run, std::size_t camera) {
    const RunMarks marks = marksOf(run.sectioninfo);
    CaptionedRun captioned;
    captioned.names = crewText(run.names);
    captioned.category = run.cat;
    if (marks.start) {
        captioned.marks.push_back(markSeconds(*marks.start, camera));
        for (const Stamps& stamps : marks.marks)
            captioned.marks.push_back(markSeconds(stamps, camera));
    }
    captioned.times = timesAtSplits(run.sectioninfo);
    // A run that was given up has fewer splits than the course; its clock never stops.
    if (info.totalsplits > 0 && info.totalsplits < 1000)
        captioned.times.resize(
            std::max(captioned.times.size(), static_cast<std::size_t>(info.totalsplits) + 1));
    captioned.penalties = sectionPenalties(info, run.sectioninfo.pens);
    return captioned;
}

FrameRate composedRate(const std::vector<double>& ratesOfFilms) {
    double fastest = 0;
    for (const double rate : ratesOfFilms)
        if (std::isfinite(rate))
            fastest = std::max(fastest, rate);
    if (fastest < 1)
        return {50, 1};
    constexpr double Near = 0.003; // of the rate: what the clocks of containers can be off
    fastest /= std::max(std::ceil(fastest / FastestComposedRate - Near), 1.0);
    const auto* const usual = std::ranges::min_element(UsualRates, {}, [&](const FrameRate& rate) {
        return std::abs(rate.perSecond() - fastest);
    });
    if (std::abs(usual->perSecond() - fastest) <= Near * fastest)
        return *usual;
    return {static_cast<int>(std::lround(std::min(fastest, FastestComposedRate))), 1};
}

bool isWithinLevel(VideoSize size, FrameRate rate) {
    // Blocks of 16 × 16, in a picture and in a second.
    constexpr std::int64_t MostBlocks = 8704;
    constexpr double MostBlocksASecond = 522'240;
    const std::int64_t blocks =
        ((std::int64_t{size.width} + 15) / 16) * ((std::int64_t{size.height} + 15) / 16);
    return blocks <= MostBlocks && double(blocks) * rate.perSecond() <= MostBlocksASecond;
}

} // namespace kavela
