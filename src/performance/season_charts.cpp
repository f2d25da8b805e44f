#include "performance/season_charts.h"

#include "common/number_text.h"
#include "common/text.h"
#include "performance/season_reasons.h"

#include <fmt/format.h>

#include <algorithm>
#include <ranges>

namespace kavela {

namespace {

constexpr std::string_view LastPhase = "Final";

const SeasonMember& memberOf(const Season& season, const SeasonAthlete& athlete) {
    return season.data.members[athlete.member];
}

std::string winnerTrendSentence(const std::string& name, const SeasonTrend& trend) {
    if (!trend.perYear)
        return say("{}: too few runs to tell a trend behind the winners.", name);
    const std::string_view verdict = verdictText(trend.verdict);
    if (!trend.interval)
        return say("{}: {:+.1f} % a year behind the winners, {}.", name, *trend.perYear, verdict);
    return say("{}: {:+.1f} % a year behind the winners ({:+.1f} to {:+.1f}), {}.", name,
               *trend.perYear, trend.interval->low, trend.interval->high, verdict);
}

std::string splitTrendSentence(const std::string& name, const SeasonTrend& trend) {
    if (!trend.perYear)
        return say("{}: too few runs to tell a trend behind the fastest splits.", name);
    const std::string_view verdict = verdictText(trend.verdict);
    if (!trend.interval)
        return say("{}: {:+.1f} % a year behind the fastest splits, {}.", name, *trend.perYear,
                   verdict);
    return say("{}: {:+.1f} % a year behind the fastest splits ({:+.1f} to {:+.1f}), {}.", name,
               *trend.perYear, trend.interval->low, trend.interval->high, verdict);
}

std::string seasonCounted(std::size_t count, std::string_view one, std::string_view many) {
    return countedWords(static_cast<std::int64_t>(count), one, many);
}

BenchmarkChart::Box boxOf(const Benchmark& benchmark) {
    const auto [least, most] = std::ranges::minmax(benchmark.values);
    return {benchmark.rank,   benchmark.values.size(), least, benchmark.lowerQuartile,
            benchmark.median, benchmark.upperQuartile, most};
}

} // namespace

std::string_view phaseMark(std::string_view phase) {
    if (phase == "Heats 1" || phase == "Heats 2")
        return "●";
    if (phase == "Semifinal")
        return "▲";
    return phase == LastPhase ? "■" : "·";
}

ProgressionChart progressionChart(const Season& season, std::size_t athlete, TrendOf of) {
    const SeasonMember& member = memberOf(season, season.athletes.at(athlete));
    ProgressionChart chart;
    chart.of = of;
    for (std::size_t race = 0; race < member.races.size(); ++race)
        for (std::size_t i = 0; i < member.races[race].phases.size(); ++i) {
            const PhaseResult& phase = member.races[race].phases[i];
            if (const auto percent = of == TrendOf::Winner ? phase.percent : phase.behindSplits)
                chart.points.push_back({race, i, phase.date, *percent, phase.isMissed});
        }
    std::ranges::stable_sort(chart.points, {},
                             [](const ProgressionPoint& point) { return point.date.seconds; });
    const Benchmark* const medal = benchmarkAt(season.benchmarks, LastPhase, MedalRank);
    if (medal && of == TrendOf::Winner)
        chart.medalLine = medal->median;
    const SeasonAthlete& figures = season.athletes[athlete];
    if (!chart.points.empty())
        chart.sentence = of == TrendOf::Winner ? winnerTrendSentence(member.name, figures.toWinner)
                                               : splitTrendSentence(member.name, figures.toSplits);
    else
        chart.sentence = of == TrendOf::Winner
                             ? say("No winner of {}'s races is known.", member.name)
                             : say("No fastest split of {}'s races is known.", member.name);
    return chart;
}

ProgressionChart usualProgression(const Season& season, std::size_t athlete) {
    const SeasonAthlete& figures = season.athletes.at(athlete);
    const bool isOfSplits = !figures.toWinner.perYear && figures.toSplits.perYear;
    return progressionChart(season, athlete, isOfSplits ? TrendOf::Splits : TrendOf::Winner);
}

SeasonIntervalChart spreadChart(const Season& season) {
    SeasonIntervalChart chart;
    chart.unit = "%";
    chart.line = season.spread.cv;
    for (const SeasonAthlete& athlete : season.athletes) {
        const std::string& name = memberOf(season, athlete).name;
        const bool isKnown = athlete.spread.runs >= LeastValues;
        chart.rows.push_back({name, seasonId("shrunk", name),
                              isKnown ? athlete.spread.shrunk : std::nullopt, std::nullopt,
                              athlete.spread.runs, false});
    }
    if (!season.spread.cv)
        chart.sentence = say("Too few runs to tell how much they vary.");
    else if (!season.spread.interval)
        chart.sentence = say("From run to run {:.1f} % is chance.", *season.spread.cv);
    else
        chart.sentence =
            say("From run to run {:.1f} % ({:.1f} to {:.1f}) is chance; {:.2f} % is worth gaining.",
                *season.spread.cv, season.spread.interval->low, season.spread.interval->high,
                *season.spread.worthwhile);
    return chart;
}

SeasonIntervalChart trendChart(const Season& season, TrendOf of) {
    SeasonIntervalChart chart;
    chart.unit = "% a year";
    chart.line = 0;
    std::size_t faster = 0;
    std::size_t slower = 0;
    for (const SeasonAthlete& athlete : season.athletes) {
        const std::string& name = memberOf(season, athlete).name;
        const SeasonTrend& trend = of == TrendOf::Winner ? athlete.toWinner : athlete.toSplits;
        const std::string id = seasonId(of == TrendOf::Winner ? "trend" : "splitstrend", name);
        chart.rows.push_back({name, id, trend.perYear, trend.interval, trend.runs,
                              trend.verdict != TrendVerdict::Unclear});
        faster += trend.verdict == TrendVerdict::Faster ? 1 : 0;
        slower += trend.verdict == TrendVerdict::Slower ? 1 : 0;
    }
    chart.sentence = say("{} of {} grew faster beyond doubt, {} slower.", faster,
                         seasonCounted(chart.rows.size(), "athlete", "athletes"), slower);
    return chart;
}

SeasonIntervalChart headToHeadChart(const Season& season, std::size_t athlete, std::size_t most) {
    constexpr double Half = 50;
    SeasonIntervalChart chart;
    chart.unit = "%";
    chart.line = Half;
    const SeasonAthlete& own = season.athletes.at(athlete);
    const std::string& name = memberOf(season, own).name;
    std::size_t ahead = 0;
    for (const HeadToHead& head : own.heads) {
        ahead += head.interval.low > Half / 100 ? 1 : 0;
        if (chart.rows.size() >= most)
            continue;
        const std::string& versus = season.data.boats[head.versus].name;
        chart.rows.push_back({versus, seasonHeadId("won", name, versus), 100 * head.rate(),
                              Interval{100 * head.interval.low, 100 * head.interval.high}, head.met,
                              head.interval.low > Half / 100 || head.interval.high < Half / 100});
    }
    chart.sentence = own.heads.empty() ? say("{} met nobody in these races.", name)
                                       : say("{} is ahead beyond doubt of {} of {}.", name, ahead,
                                             seasonCounted(own.heads.size(), "rival", "rivals"));
    return chart;
}

BenchmarkChart benchmarkChart(const Season& season, std::string_view phase,
                              std::optional<std::size_t> athlete) {
    BenchmarkChart chart;
    chart.phase = phase;
    for (const Benchmark& benchmark : season.benchmarks)
        if (benchmark.phase == phase && benchmark.rank > 1)
            chart.boxes.push_back(boxOf(benchmark));
    if (athlete)
        chart.own = medianPercent(memberOf(season, season.athletes.at(*athlete)), phase);
    const Benchmark* const medal = benchmarkAt(season.benchmarks, phase, MedalRank);
    if (!medal)
        chart.sentence = say("No split file of this class has three whole runs of a {}.", phase);
    else if (chart.own)
        chart.sentence =
            say("{:.1f} % would have been among the first three in {} of {}.", *chart.own,
                wouldHaveReached(*medal, *chart.own), medal->values.size());
    else
        chart.sentence = say("The third was {:.1f} % behind in the median of {}.", medal->median,
                             seasonCounted(medal->values.size(), "race", "races"));
    return chart;
}

PlacesChart placesChart(const Season& season) {
    PlacesChart chart;
    for (const ExpectedPlace& place : season.places.boats) {
        const SeasonBoat& boat = season.data.boats[place.boat];
        chart.rows.push_back({place.boat, boat.name, boat.member.has_value(), place.chances.places,
                              place.chances.expected, place.chances.medal});
    }
    const auto best = std::ranges::find_if(chart.rows, &PlacesChart::Row::isMember);
    if (best == chart.rows.end())
        chart.sentence = say("Nobody of the team has runs enough to expect a place of.");
    else
        chart.sentence = say("{} may expect place {:.1f} of {}, a medal by {:.0f} %.", best->name,
                             best->expected, chart.rows.size(), 100 * best->medal);
    return chart;
}

std::string medalSentence(std::span<const Benchmark> all, double percent) {
    const Benchmark* const medal = benchmarkAt(all, LastPhase, MedalRank);
    if (!medal)
        return {};
    return say("{:.1f} % would have been a medal in {} of {}", percent,
               wouldHaveReached(*medal, percent),
               seasonCounted(medal->values.size(), "final", "finals"));
}

} // namespace kavela
