#include "cli/season_json.h"

#include "common/display_text.h"
#include "common/json_encode.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kavela::cli {

namespace {

struct SeasonSpreadJson {
    std::int64_t runs = 0;
    std::int64_t df = 0;
    std::optional<double> cv;
    std::optional<double> low;
    std::optional<double> high;
    std::optional<double> worthwhile;
};
BOOST_DESCRIBE_STRUCT(SeasonSpreadJson, (), (runs, df, cv, low, high, worthwhile))

struct SeasonRateJson {
    double count = 0;
    std::int64_t of = 0;
    double rate = 0;
    double low = 0;
    double high = 0;
};
BOOST_DESCRIBE_STRUCT(SeasonRateJson, (), (count, of, rate, low, high))

struct SeasonPhaseJson {
    std::int64_t year = 0;
    std::string event;
    std::string location;
    std::string phase;
    std::optional<double> total;
    std::optional<double> winner;
    std::optional<std::string> source;
    std::optional<double> percent;
    std::optional<double> behindSplits;
};
BOOST_DESCRIBE_STRUCT(SeasonPhaseJson, (),
                      (year, event, location, phase, total, winner, source, percent, behindSplits))

struct BoatSpreadJson {
    std::int64_t runs = 0;
    std::optional<double> cv;
    std::optional<double> shrunk;
};
BOOST_DESCRIBE_STRUCT(BoatSpreadJson, (), (runs, cv, shrunk))

struct SeasonTrendJson {
    std::int64_t runs = 0;
    std::optional<double> perYear;
    std::optional<double> low;
    std::optional<double> high;
    std::string verdict;
};
BOOST_DESCRIBE_STRUCT(SeasonTrendJson, (), (runs, perYear, low, high, verdict))

struct SeasonTrendsJson {
    SeasonTrendJson winner;
    SeasonTrendJson splits;
};
BOOST_DESCRIBE_STRUCT(SeasonTrendsJson, (), (winner, splits))

struct SeasonMeanJson {
    std::int64_t n = 0;
    std::optional<double> mean;
    std::optional<double> low;
    std::optional<double> high;
};
BOOST_DESCRIBE_STRUCT(SeasonMeanJson, (), (n, mean, low, high))

struct PairChangeJson {
    std::int64_t n = 0;
    std::optional<double> mean;
    std::optional<double> low;
    std::optional<double> high;
    std::optional<double> typicalError;
};
BOOST_DESCRIBE_STRUCT(PairChangeJson, (), (n, mean, low, high, typicalError))

struct HeadToHeadJson {
    std::string versus;
    SeasonRateJson won;
    SeasonMeanJson gap;
};
BOOST_DESCRIBE_STRUCT(HeadToHeadJson, (), (versus, won, gap))

struct SeasonAthleteJson {
    std::string name;
    std::int64_t races = 0;
    std::optional<SeasonRateJson> medals;
    std::optional<SeasonRateJson> finals;
    std::optional<SeasonRateJson> semifinals;
    std::vector<SeasonPhaseJson> phases;
    std::int64_t missed = 0;
    BoatSpreadJson spread;
    SeasonTrendsJson trend;
    PairChangeJson heats12;
    PairChangeJson semifinalToFinal;
    PairChangeJson heatsToFinal;
    std::vector<HeadToHeadJson> headToHead;
};
BOOST_DESCRIBE_STRUCT(SeasonAthleteJson, (),
                      (name, races, medals, finals, semifinals, phases, missed, spread, trend,
                       heats12, semifinalToFinal, heatsToFinal, headToHead))

struct BenchmarkJson {
    std::string phase;
    std::int64_t rank = 0;
    std::int64_t races = 0;
    std::vector<double> values;
    double lowerQuartile = 0;
    double median = 0;
    double upperQuartile = 0;
};
BOOST_DESCRIBE_STRUCT(BenchmarkJson, (),
                      (phase, rank, races, values, lowerQuartile, median, upperQuartile))

struct ExpectedPlaceJson {
    std::string athlete;
    std::int64_t runs = 0;
    double mean = 0;
    double sd = 0;
    double fail = 0;
    std::vector<double> places;
    double expected = 0;
    double medal = 0;
};
BOOST_DESCRIBE_STRUCT(ExpectedPlaceJson, (),
                      (athlete, runs, mean, sd, fail, places, expected, medal))

struct TeamSeasonJson {
    std::string category;
    SeasonSpreadJson spread;
    std::vector<SeasonAthleteJson> athletes;
    std::vector<BenchmarkJson> benchmarks;
    std::vector<ExpectedPlaceJson> simulation;
    std::optional<std::string> starter; ///< in whose races alone this was
};
BOOST_DESCRIBE_STRUCT(TeamSeasonJson, (),
                      (category, spread, athletes, benchmarks, simulation, starter))

std::int64_t seasonCount(std::size_t count) {
    return static_cast<std::int64_t>(count);
}

template <class Json>
void putInterval(Json& json, const std::optional<Interval>& interval) {
    if (!interval)
        return;
    json.low = interval->low;
    json.high = interval->high;
}

SeasonSpreadJson spreadJson(const SeasonSpread& spread) {
    SeasonSpreadJson json;
    json.runs = seasonCount(spread.runs);
    json.df = seasonCount(spread.df);
    json.cv = spread.cv;
    putInterval(json, spread.interval);
    json.worthwhile = spread.worthwhile;
    return json;
}

std::optional<SeasonRateJson> seasonRateJson(const std::optional<RateOf>& rate) {
    if (!rate)
        return std::nullopt;
    return SeasonRateJson{static_cast<double>(rate->count), seasonCount(rate->of), rate->rate,
                          rate->interval.low, rate->interval.high};
}

std::vector<SeasonPhaseJson> phasesJson(const SeasonMember& member) {
    std::vector<SeasonPhaseJson> json;
    for (const RaceResult& race : member.races)
        for (const PhaseResult& phase : race.phases) {
            json.push_back({race.year, validUtf8(race.event), validUtf8(race.location),
                            validUtf8(phase.phase), phase.total, phase.winner, std::nullopt,
                            phase.percent, phase.behindSplits});
            if (phase.source != WinnerSource::None)
                json.back().source = sourceText(phase.source);
        }
    return json;
}

SeasonTrendJson trendJson(const SeasonTrend& trend) {
    SeasonTrendJson json;
    json.runs = seasonCount(trend.runs);
    json.perYear = trend.perYear;
    putInterval(json, trend.interval);
    json.verdict = verdictText(trend.verdict);
    return json;
}

template <class Json>
Json meanJson(const MeanOf& mean) {
    Json json;
    json.n = seasonCount(mean.n);
    if (mean.n > 0)
        json.mean = mean.mean;
    putInterval(json, mean.interval);
    return json;
}

PairChangeJson pairJson(const PairChange& pair) {
    auto json = meanJson<PairChangeJson>(pair.change);
    json.typicalError = pair.typicalError;
    return json;
}

SeasonAthleteJson athleteJson(const Season& season, const SeasonAthlete& athlete) {
    const SeasonMember& member = season.data.members[athlete.member];
    SeasonAthleteJson json;
    json.name = validUtf8(member.name);
    json.races = seasonCount(member.races.size());
    json.medals = seasonRateJson(athlete.medals);
    json.finals = seasonRateJson(athlete.finals);
    json.semifinals = seasonRateJson(athlete.semifinals);
    json.phases = phasesJson(member);
    json.missed = seasonCount(athlete.spread.missed);
    json.spread = {seasonCount(athlete.spread.runs), athlete.spread.cv, athlete.spread.shrunk};
    json.trend = {trendJson(athlete.toWinner), trendJson(athlete.toSplits)};
    json.heats12 = pairJson(athlete.heats);
    json.semifinalToFinal = pairJson(athlete.semifinalToFinal);
    json.heatsToFinal = pairJson(athlete.heatsToFinal);
    for (const HeadToHead& head : athlete.heads)
        json.headToHead.push_back(
            {validUtf8(season.data.boats[head.versus].name),
             {head.won, seasonCount(head.met), head.rate(), head.interval.low, head.interval.high},
             meanJson<SeasonMeanJson>(head.gap)});
    return json;
}

} // namespace

std::string teamSeasonJson(const Season& season) {
    TeamSeasonJson json;
    json.category = validUtf8(season.data.category);
    json.spread = spreadJson(season.spread);
    for (const SeasonAthlete& athlete : season.athletes)
        json.athletes.push_back(athleteJson(season, athlete));
    for (const Benchmark& benchmark : season.benchmarks)
        json.benchmarks.push_back({validUtf8(benchmark.phase), seasonCount(benchmark.rank),
                                   seasonCount(benchmark.values.size()), benchmark.values,
                                   benchmark.lowerQuartile, benchmark.median,
                                   benchmark.upperQuartile});
    for (const ExpectedPlace& place : season.places.boats)
        json.simulation.push_back({validUtf8(season.data.boats[place.boat].name),
                                   seasonCount(place.runs), place.mean, place.sd, place.fail,
                                   place.chances.places, place.chances.expected,
                                   place.chances.medal});
    if (season.data.starter)
        json.starter = validUtf8(*season.data.starter);
    return encode(json) + '\n';
}

} // namespace kavela::cli
