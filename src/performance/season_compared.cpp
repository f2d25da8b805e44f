#include "performance/season_compared.h"

#include "common/text.h"
#include "performance/season_reasons.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>

namespace kavela {

namespace {

constexpr double InPercent = 100;

const std::string& nameIn(const Season& season, const SeasonAthlete& athlete) {
    return season.data.members[athlete.member].name;
}

const PairChange& changeOf(const SeasonAthlete& athlete, RacePair pair) {
    switch (pair) {
    case RacePair::Heats:
        return athlete.heats;
    case RacePair::SemifinalToFinal:
        return athlete.semifinalToFinal;
    case RacePair::HeatsToFinal:
        break;
    }
    return athlete.heatsToFinal;
}

const std::optional<RateOf>& rateIn(const SeasonAthlete& athlete, RaceRate rate) {
    switch (rate) {
    case RaceRate::Medals:
        return athlete.medals;
    case RaceRate::Finals:
        return athlete.finals;
    case RaceRate::Semifinals:
        break;
    }
    return athlete.semifinals;
}

std::string_view idOf(RaceRate rate) {
    constexpr std::array<std::string_view, 3> Ids{"medal", "final", "semifinal"};
    return Ids[static_cast<std::size_t>(rate)];
}

/// Who got there most often, and how often.
std::string mostOftenSentence(RaceRate rate, const std::string& name, const RateOf& reached) {
    const double low = InPercent * reached.interval.low;
    const double high = InPercent * reached.interval.high;
    switch (rate) {
    case RaceRate::Medals:
        return say("Medals most often: {}, {} of {} ({:.0f}–{:.0f} %).", name, reached.count,
                   reached.of, low, high);
    case RaceRate::Finals:
        return say("In finals most often: {}, {} of {} ({:.0f}–{:.0f} %).", name, reached.count,
                   reached.of, low, high);
    case RaceRate::Semifinals:
        break;
    }
    return say("In semifinals most often: {}, {} of {} ({:.0f}–{:.0f} %).", name, reached.count,
               reached.of, low, high);
}

/// Of those whose change is known, how many became faster or slower in the later phase.
std::string changeSentence(RacePair pair, std::size_t known, std::size_t faster,
                           std::size_t slower) {
    if (known == 0)
        return say("Too few races with both to tell a change.");
    return pair == RacePair::Heats
               ? say("Of {} who have both often enough, beyond doubt faster in the second run: "
                     "{}, slower: {}.",
                     known, faster, slower)
               : say("Of {} who have both often enough, beyond doubt faster in the final: {}, "
                     "slower: {}.",
                     known, faster, slower);
}

} // namespace

SeasonIntervalChart pairChart(const Season& season, RacePair pair) {
    SeasonIntervalChart chart;
    chart.unit = "%";
    chart.line = 0;
    std::size_t faster = 0;
    std::size_t slower = 0;
    std::size_t known = 0;
    for (const SeasonAthlete& athlete : season.athletes) {
        const MeanOf& change = changeOf(athlete, pair).change;
        const std::string& name = nameIn(season, athlete);
        const bool isFaster = change.interval && change.interval->high < 0;
        const bool isSlower = change.interval && change.interval->low > 0;
        chart.rows.push_back({name, seasonId(nameOf(pair), name),
                              change.n > 0 ? std::optional(change.mean) : std::nullopt,
                              change.interval, change.n, isFaster || isSlower});
        known += change.interval ? 1 : 0;
        faster += isFaster ? 1 : 0;
        slower += isSlower ? 1 : 0;
    }
    chart.sentence = changeSentence(pair, known, faster, slower);
    return chart;
}

SeasonIntervalChart raceRateChart(const Season& season, RaceRate rate) {
    SeasonIntervalChart chart;
    chart.unit = "%";
    const RateOf* best = nullptr;
    const std::string* whose = nullptr;
    for (const SeasonAthlete& athlete : season.athletes) {
        const auto& reached = rateIn(athlete, rate);
        const std::string& name = nameIn(season, athlete);
        SeasonInterval row;
        row.label = name;
        row.id = seasonId(idOf(rate), name);
        if (reached) {
            row.value = InPercent * reached->rate;
            row.interval =
                Interval{InPercent * reached->interval.low, InPercent * reached->interval.high};
            row.runs = reached->of;
            if (!best || reached->rate > best->rate ||
                (reached->rate == best->rate && reached->of > best->of)) {
                best = &*reached;
                whose = &name;
            }
        }
        chart.rows.push_back(std::move(row));
    }
    chart.sentence = best ? mostOftenSentence(rate, *whose, *best)
                          : say("No race of the team has a result that says so.");
    return chart;
}

SeasonIntervalChart expectedPlaceChart(const Season& season) {
    SeasonIntervalChart chart;
    chart.unit = "place";
    for (const ExpectedPlace& place : season.places.boats) {
        const SeasonBoat& boat = season.data.boats[place.boat];
        chart.rows.push_back({boat.name, seasonId("place", boat.name), place.chances.expected,
                              placeRange(place.chances.places), place.runs,
                              boat.member.has_value()});
    }
    chart.sentence = placesChart(season).sentence;
    return chart;
}

Interval placeRange(std::span<const double> chances) {
    constexpr double Beyond = 0.05;
    if (chances.empty())
        throw std::invalid_argument("no places");
    Interval range{0, static_cast<double>(chances.size())};
    double upTo = 0;
    for (std::size_t i = 0; i < chances.size(); ++i) {
        upTo += chances[i];
        const auto place = static_cast<double>(i + 1);
        if (range.low == 0 && upTo > Beyond)
            range.low = place;
        if (upTo >= 1 - Beyond) {
            range.high = place;
            break;
        }
    }
    return range;
}

SeasonIntervalChart benchmarkIntervals(const Season& season, std::string_view phase,
                                       std::optional<std::size_t> athlete) {
    const BenchmarkChart boxes = benchmarkChart(season, phase, athlete);
    SeasonIntervalChart chart;
    chart.unit = "%";
    chart.line = boxes.own;
    chart.sentence = boxes.sentence;
    for (const BenchmarkChart::Box& box : boxes.boxes) {
        const bool hasQuartiles = box.races >= LeastValues;
        chart.rows.push_back({fmt::format("{}", box.rank), benchmarkId(phase, box.rank), box.median,
                              hasQuartiles
                                  ? std::optional(Interval{box.lowerQuartile, box.upperQuartile})
                                  : std::nullopt,
                              box.races, box.rank == MedalRank});
    }
    return chart;
}

std::vector<std::string> benchmarkPhases(const Season& season) {
    std::vector<std::string> phases;
    for (const Benchmark& benchmark : season.benchmarks)
        if (std::ranges::find(phases, benchmark.phase) == phases.end())
            phases.push_back(benchmark.phase);
    return phases;
}

std::vector<YearMedian> yearMedians(const SeasonMember& member, std::string_view phase) {
    std::map<std::int64_t, std::size_t> runs;
    for (const RaceResult& race : member.races)
        for (const PhaseResult& result : race.phases)
            if (result.phase == phase && result.percent && !result.isMissed)
                ++runs[race.year];
    std::vector<YearMedian> years;
    for (const auto& [year, count] : runs)
        if (const auto percent = medianPercentOfYear(member, phase, year))
            years.push_back({year, *percent, count});
    return years;
}

ComparisonChart comparisonChart(const Season& season, std::string_view phase) {
    ComparisonChart chart;
    chart.phase = phase;
    const ComparisonChart::Line* nearest = nullptr;
    for (const SeasonAthlete& athlete : season.athletes) {
        const SeasonMember& member = season.data.members[athlete.member];
        ComparisonChart::Line line{member.name, yearMedians(member, phase),
                                   medianPercent(member, phase), 0};
        for (const YearMedian& year : line.years)
            line.runs += year.runs;
        chart.lines.push_back(std::move(line));
    }
    for (const ComparisonChart::Line& line : chart.lines)
        if (line.percent && (!nearest || *line.percent < *nearest->percent))
            nearest = &line;
    chart.sentence = nearest ? say("Nearest to the winners ({}): {}, {:.1f} % (median of {}).",
                                   phase, nearest->name, *nearest->percent, nearest->runs)
                             : say("No winner of a phase \"{}\" of these races is known.", phase);
    return chart;
}

} // namespace kavela
