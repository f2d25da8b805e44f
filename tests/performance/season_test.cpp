#include "performance/season.h"

#include "performance/season_charts.h"
#include "performance/season_compared.h"
#include "performance/season_reasons.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cmath>
#include <numeric>
#include <stdexcept>

/// How athletes stand over seasons. The figures were reckoned by a program of its own.
namespace kavela::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr double Close = 1e-9;
constexpr double HalfPastNineAm = 9.5 * 3600;
constexpr double LateEvening = 23 * 3600;

struct Finisher {
    std::string name;
    double time = 0;
    std::int64_t pen = 0;
};

splittakerdata031 finalAt(const std::string& place, std::chrono::year_month_day day,
                          const std::vector<Finisher>& field) {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.place = place;
    race.info.category = "K1W";
    race.info.date = referenceDate(day, HalfPastNineAm);
    for (const Finisher& boat : field) {
        athletedata031 run;
        run.names = {boat.name};
        run.phase = "FINAL";
        run.sectioninfo.realtime = boat.time;
        run.sectioninfo.realpen = boat.pen;
        race.athletes.push_back(run);
    }
    return race;
}

mtPhaseStruct phaseOn(const char* phase, std::chrono::year_month_day day, double time,
                      std::int64_t pos = 0) {
    mtPhaseStruct run;
    run.phase = phase;
    run.date = referenceDate(day, LateEvening);
    run.time = time;
    run.pos = pos;
    return run;
}

myTeamStruct athleteWith(const std::string& name, std::vector<mtRaceStruct> races) {
    mtSeasonStruct season;
    season.year = 2025;
    season.races = std::move(races);
    return {name, 2000, {{"WK1", {season}, {}}}, false};
}

/// Three boats over four finals: three in split files, and one abroad that only the team has. One
/// run with a missed gate is no part of any spread.
class SeasonOfThree : public testing::Test {
protected:
    SeasonOfThree() {
        add(finalAt("Mill", 2025y / 5 / 10,
                    {{"Anna Bell", 88, 2}, {"Berta Cole", 91}, {"Cleo Dunn", 93.5}}));
        add(finalAt("Weir", 2025y / 6 / 7,
                    {{"Anna Bell", 88.2}, {"Berta Cole", 89.9}, {"Cleo Dunn", 90.4}}));
        add(finalAt("Harbour", 2025y / 7 / 5,
                    {{"Anna Bell", 101}, {"Berta Cole", 100.1}, {"Cleo Dunn", 104}}));
        add(finalAt("Rapid", 2025y / 8 / 2, {{"Cleo Dunn", 99, 50}}));
        m_team.realMyTeam = {
            athleteWith("BELL Anna",
                        {{"Mill", "WC1", 2, {phaseOn("Final", 2025y / 5 / 11, 90.5)}},
                         {"Abroad", "WC2", 1, {phaseOn("Final", 2025y / 8 / 20, 95.5, 1)}}}),
            athleteWith("COLE Berta",
                        {{"Abroad", "WC2", 4, {phaseOn("Final", 2025y / 8 / 20, 97)}},
                         {"Mill", "ICF", 0, {phaseOn("Final", 2025y / 5 / 13, 80)}}})};
        // Two days later at the same place is another race, of which no winner is known.
        m_team.realMyTeam[1].cats[0].seasons[0].races[1].phases[0].time = 999.9;
    }

    void add(const splittakerdata031& race) { m_facts.add(race, race.info.place + ".kvx"); }

    [[nodiscard]] SeasonData data() const {
        return seasonData(m_team, m_facts, {.category = "K1W"});
    }

    FactStore m_facts;
    myTeamToSaveStruct m_team;
};

PhaseResult behind(const char* phase, double day, double total, double percent,
                   bool isMissed = false) {
    PhaseResult result;
    result.phase = phase;
    result.date = {day * 86400};
    result.total = total;
    result.percent = percent;
    result.isMissed = isMissed;
    return result;
}

SeasonMember memberWith(std::vector<std::vector<PhaseResult>> races) {
    SeasonMember member{0, "BELL Anna", false, {}};
    for (std::vector<PhaseResult>& phases : races)
        member.races.push_back({2025, "ICF", "Mill", 0, std::move(phases)});
    return member;
}

} // namespace

TEST_F(SeasonOfThree, SpreadTakesTheTeamsRunsOnlyWhereNoFileHasThem) {
    const SeasonData data = this->data();
    const SeasonSpread spread = seasonSpread(data);
    EXPECT_EQ(spread.runs, 11U);
    EXPECT_EQ(spread.df, 5U);
    EXPECT_NEAR(spread.cv.value(), 0.8775197111372214, Close);
    EXPECT_NEAR(spread.worthwhile.value(), 0.26325591334116644, Close);
    const BoatSpread anna = boatSpread(data, spread, data.boatNamed("Anna Bell").value());
    EXPECT_EQ(anna.runs, 4U);
    EXPECT_NEAR(anna.cv.value(), 0.6039236513597844, Close);
    EXPECT_NEAR(anna.shrunk.value(), 0.8411788133927736, Close);
    const BoatSpread cleo = boatSpread(data, spread, data.boatNamed("DUNN, Cleo").value());
    EXPECT_EQ(std::pair(cleo.runs, cleo.missed), std::pair(std::size_t{3}, std::size_t{1}));
    EXPECT_NEAR(cleo.shrunk.value(), 0.8740570897887653, Close);
}

TEST_F(SeasonOfThree, WinnerIsOfTheFileThenOfTheTeamAndNeverGuessed) {
    const SeasonData data = this->data();
    const PhaseResult& mill = data.members[0].races[0].phases[0];
    EXPECT_EQ(mill.source, WinnerSource::File) << "the next day is still the same race";
    EXPECT_EQ(mill.winner, 90.0) << "penalties count";
    EXPECT_NEAR(mill.percent.value(), 100 * (90.5 / 90 - 1), Close);
    const PhaseResult& abroad = data.members[1].races[1].phases[0];
    EXPECT_EQ(abroad.source, WinnerSource::Team);
    EXPECT_EQ(abroad.winnerName, "BELL Anna");
    EXPECT_NEAR(abroad.percent.value(), 100 * (97 / 95.5 - 1), Close);
    const PhaseResult& later = data.members[1].races[0].phases[0];
    EXPECT_EQ(later.source, WinnerSource::None);
    EXPECT_EQ(later.total, std::nullopt) << "999.9 is no result";
    EXPECT_EQ(later.percent, std::nullopt);
}

TEST_F(SeasonOfThree, YearsAndCategoryNarrowFilesAndTeamAlike) {
    const SeasonChoice earlier{.category = "WK1", .firstYear = 2020, .lastYear = 2024};
    const SeasonData none = seasonData(m_team, m_facts, earlier);
    EXPECT_TRUE(none.runs.empty());
    EXPECT_TRUE(none.members.at(0).races.empty());
    EXPECT_TRUE(seasonData(m_team, m_facts, {.category = "MK1"}).members.empty());
}

TEST_F(SeasonOfThree, RacesOfAStarterAreThoseWithAStartInAnyPhase) {
    const SeasonData cleo =
        seasonData(m_team, m_facts, {.category = "K1W", .starter = "DUNN Cleo"});
    EXPECT_EQ(cleo.starter, "Cleo Dunn");
    EXPECT_EQ(cleo.runs.size(), 10U) << "all of four files, nothing from abroad";
    EXPECT_EQ(seasonSpread(cleo).runs, 9U);
    ASSERT_EQ(cleo.members.size(), 2U) << "whoever did not start stays in the team";
    ASSERT_EQ(cleo.members[0].races.size(), 1U);
    EXPECT_EQ(cleo.members[0].races[0].location, "Mill");
    const SeasonData anna =
        seasonData(m_team, m_facts, {.category = "K1W", .starter = "Anna Bell"});
    EXPECT_EQ(anna.runs.size(), 11U) << "with the race that only the team has, without Rapid";
    EXPECT_EQ(anna.members[0].races.size(), 2U);

    // Out in the heats: the final of the next day is of the same race. Listed only: no start.
    splittakerdata031 heats = finalAt("Lake", 2025y / 9 / 6, {{"Dora Ek", 120}, {"Anna Bell", 95}});
    for (athletedata031& run : heats.athletes)
        run.phase = "Heats 1";
    add(heats);
    m_facts.add(finalAt("Lake", 2025y / 9 / 7, {{"Anna Bell", 94}}), "Lake final.kvx");
    add(finalAt("Creek", 2025y / 9 / 20, {{"Dora Ek", 0}, {"Anna Bell", 91}}));
    const SeasonData dora = seasonData(m_team, m_facts, {.category = "K1W", .starter = "Dora Ek"});
    EXPECT_EQ(dora.runs.size(), 3U);
    EXPECT_EQ(dora.phases.size(), 2U);

    const SeasonData nobody = seasonData(m_team, m_facts, {.category = "K1W", .starter = "Eva"});
    EXPECT_EQ(nobody.starter, std::nullopt);
    EXPECT_TRUE(nobody.runs.empty());
}

TEST_F(SeasonOfThree, PlacesAreOfThoseKnownWellEnough) {
    const SeasonData data = this->data();
    const SeasonSpread spread = seasonSpread(data);
    const SeasonPlaces places = seasonPlaces(data, spread);
    ASSERT_EQ(places.boats.size(), 3U);
    const ExpectedPlace& best = places.boats.front();
    EXPECT_EQ(data.boats[best.boat].name, "BELL Anna");
    EXPECT_NEAR(best.mean, -1.3648446125081144, Close);
    EXPECT_NEAR(best.sd, 0.9365330443924862, Close);
    EXPECT_NEAR(best.fail, 20 * (1.5 / 13) / 24, Close);
    for (const ExpectedPlace& place : places.boats)
        EXPECT_NEAR(std::accumulate(place.chances.places.begin(), place.chances.places.end(), 0.0),
                    1, Close);
    m_team.realMyTeam[0].isretired = true;
    const SeasonData without = this->data();
    EXPECT_EQ(seasonPlaces(without, spread).boats.size(), 2U) << "the retired do not start";
    const std::vector<std::size_t> field{0, 0, 1};
    EXPECT_EQ(seasonPlaces(without, spread, field).boats.size(), 2U) << "unless they are named";
}

TEST_F(SeasonOfThree, ThoseWhoNeverMetAreNotCompared) {
    for (const char* place : {"East", "West", "South"})
        add(finalAt(place, 2025y / 9 / 6, {{"Elsa Far", 95}, {"Fay Gone", 97}}));
    const SeasonData data = this->data();
    const std::vector<std::size_t> field{0, 1, data.boatNamed("Elsa Far").value()};
    const SeasonPlaces places = seasonPlaces(data, seasonSpread(data), field);
    EXPECT_EQ(places.boats.size(), 2U);
    EXPECT_THAT(places.leftOut, ElementsAre(field.back()));
}

TEST_F(SeasonOfThree, HeadToHeadCountsMissedGatesAndHalfOfTies) {
    add(finalAt("Tie", 2025y / 9 / 6, {{"Anna Bell", 90.001}, {"Cleo Dunn", 90.004}}));
    add(finalAt("Lost", 2025y / 9 / 7, {{"Anna Bell", 90, 50}, {"Cleo Dunn", 95}}));
    const SeasonData data = this->data();
    const auto head = headToHead(data, m_facts, 0, data.boatNamed("Cleo Dunn").value());
    ASSERT_TRUE(head);
    EXPECT_EQ(head->met, 5U);
    EXPECT_EQ(head->won, 3.5);
    EXPECT_EQ(headToHeads(data, 0).front().versus, 1U) << "the team comes first";
    EXPECT_EQ(headToHeads(data, 0).back().won, head->won);
    const auto other = headToHead(data, m_facts, head->versus, 0);
    EXPECT_NEAR(other->gap.mean, -head->gap.mean, Close);
    EXPECT_EQ(other->won, 1.5);
}

TEST_F(SeasonOfThree, BenchmarksAreWhatRanksTookRaceByRace) {
    const SeasonData data = this->data();
    const std::vector<Benchmark> all = benchmarks(data);
    const Benchmark* const third = benchmarkAt(all, "Final", 3);
    ASSERT_TRUE(third);
    const double mill = 100 * (93.5 / 90 - 1);
    const double weir = 100 * (90.4 / 88.2 - 1);
    const double harbour = 100 * (104 / 100.1 - 1);
    ASSERT_EQ(third->values.size(), 3U) << "a field of one has no third";
    EXPECT_NEAR(third->median, mill, Close);
    EXPECT_NEAR(third->lowerQuartile, (weir + mill) / 2, Close);
    EXPECT_NEAR(third->upperQuartile, (mill + harbour) / 2, Close);
    EXPECT_EQ(medalSentence(all, 3.0), "3.0 % would have been a medal in 2 of 3 finals");
    EXPECT_EQ(benchmarkAt(all, "Final", 5), nullptr);
}

TEST_F(SeasonOfThree, EveryIdExplainsTheNumberOfTheTable) {
    const Season season = seasonOf(data());
    const SeasonMember& anna = season.data.members[0];
    const SeasonAthlete& figures = season.athletes[0];
    const RaceResult& mill = anna.races[0];
    const std::vector<std::pair<std::string, std::optional<double>>> expected{
        {"spread", season.spread.cv},
        {"worthwhile", season.spread.worthwhile},
        {"spread/Anna Bell", figures.spread.cv},
        {seasonId("shrunk", anna.name), figures.spread.shrunk},
        {seasonId("medal", anna.name), figures.medals->rate},
        {seasonId("final", anna.name), figures.finals->rate},
        {seasonId("semifinal", anna.name), figures.semifinals->rate},
        {seasonId("place", anna.name), season.places.boats[0].chances.expected},
        {seasonId("podium", "Cleo Dunn"), season.places.boats[2].chances.medal},
        {seasonId("missed", anna.name), season.places.boats[0].fail},
        {seasonPhaseId("percent", anna, mill, mill.phases[0]), mill.phases[0].percent},
        {seasonHeadId("won", anna.name, "Cleo Dunn"), figures.heads[1].rate()},
        {seasonHeadId("headgap", anna.name, "Cleo Dunn"), figures.heads[1].gap.mean},
        {benchmarkId("Final", 3), benchmarkAt(season.benchmarks, "Final", 3)->median}};
    for (const auto& [id, value] : expected) {
        const auto reason = explainSeason(season, m_facts, id);
        ASSERT_TRUE(reason) << id;
        EXPECT_EQ(reason->value, value) << id;
        EXPECT_FALSE(reason->inputs.empty()) << id;
    }
    for (const char* id : {"", "spread/Nobody", "percent/BELL Anna/2025/WC9/Final",
                           "benchmark/Final/0", "heats12/BELL Anna", "won/BELL Anna/BELL Anna"})
        EXPECT_FALSE(explainSeason(season, m_facts, id)) << id;
}

TEST(SeasonTrends, FollowTheInterval) {
    const SeasonMember faster =
        memberWith({{behind("Final", 0, 94.5, 5), behind("Semifinal", 20, 150, 66, true)},
                    {behind("Final", 40, 93.6, 4)},
                    {behind("Final", 80, 93.15, 3.5)},
                    {behind("Final", 400, 91.8, 2)}});
    const SeasonTrend trend = seasonTrend(faster, TrendOf::Winner);
    EXPECT_EQ(trend.runs, 4U);
    EXPECT_NEAR(trend.perYear.value(), -2.2722433479587436, Close);
    EXPECT_NEAR(trend.interval->low, -3.9469486491827377, 1e-6);
    EXPECT_NEAR(trend.interval->high, -0.5975380467347499, 1e-6);
    EXPECT_EQ(trend.verdict, TrendVerdict::Faster);
    SeasonMember brief = faster;
    for (RaceResult& race : brief.races)
        race.phases[0].date.seconds *= 59.0 / 400;
    EXPECT_EQ(seasonTrend(brief, TrendOf::Winner).perYear, std::nullopt) << "59 days";
    EXPECT_EQ(seasonTrend(faster, TrendOf::Splits).runs, 0U);
}

TEST(SeasonTrends, OnSplitsNeedEverySplit) {
    PhaseResult run;
    run.splits = {20.4, 30.9};
    run.pers = {2, 3};
    EXPECT_NEAR(percentBehindSplits(run).value(), 2.6, Close);
    run.splits[1] = 999.9;
    EXPECT_EQ(percentBehindSplits(run), std::nullopt);
    run.splits = {20.4};
    EXPECT_EQ(percentBehindSplits(run), std::nullopt);
}

TEST(RacePairs, CompareTimesOfOneCourseAndPercentOfTwo) {
    const SeasonMember member = memberWith(
        {{behind("Heats 1", 0, 95, 4), behind("Semifinal", 0, 90, 3), behind("Final", 0, 89, 1)},
         {behind("Semifinal", 9, 91, 3), behind("Final", 9, 92, 2)},
         {behind("Semifinal", 20, 96.5, 3), behind("Final", 20, 95, 2)},
         {behind("Semifinal", 30, 96.5, 3), behind("Final", 30, 150, 60, true)}});
    const PairChange change = pairChange(member, RacePair::SemifinalToFinal);
    EXPECT_EQ(change.change.n, 3U);
    EXPECT_NEAR(change.change.mean, -0.530344893677814, Close);
    EXPECT_NEAR(change.change.interval->low, -2.9303490312908194, 1e-6);
    EXPECT_NEAR(change.change.interval->high, 1.8696592439351916, 1e-6);
    EXPECT_NEAR(change.typicalError.value(), 1.0066463268295462, Close);
    const PairChange heats = pairChange(member, RacePair::HeatsToFinal);
    EXPECT_NEAR(heats.change.mean, 100 * std::log(1.01 / 1.04), Close);
    EXPECT_EQ(heats.typicalError, std::nullopt);
}

TEST(RacePairs, RatesLeaveOutWhatIsNotKnown) {
    SeasonMember member = memberWith({{behind("Heats 1", 0, 95, 4)},
                                      {behind("Semifinal", 1, 95, 4), behind("Final", 1, 95, 4)},
                                      {}});
    member.races[1].finalPos = 3;
    member.races[2].finalPos = 4;
    EXPECT_EQ(raceRate(member, RaceRate::Medals)->count, 1U);
    EXPECT_EQ(raceRate(member, RaceRate::Medals)->of, 2U) << "0 is unknown";
    EXPECT_EQ(raceRate(member, RaceRate::Finals)->of, 2U) << "no phase, no say";
    EXPECT_EQ(raceRate(member, RaceRate::Semifinals)->count, 1U);
    EXPECT_EQ(raceRate(memberWith({{}}), RaceRate::Medals), std::nullopt);
}

TEST_F(SeasonOfThree, ChartsSayWhatTheyDraw) {
    const Season season = seasonOf(data());
    const ProgressionChart chart = progressionChart(season, 0);
    ASSERT_EQ(chart.points.size(), 2U);
    EXPECT_NEAR(chart.points[0].percent, 100 * (90.5 / 90 - 1), Close);
    EXPECT_THAT(chart.sentence, HasSubstr("too few"));
    EXPECT_NEAR(chart.medalLine.value(), 100 * (93.5 / 90 - 1), Close);
    EXPECT_EQ(progressionChart(season, 0, TrendOf::Splits).medalLine, std::nullopt);
    const BenchmarkChart boxes = benchmarkChart(season, "Final", 0);
    EXPECT_EQ(boxes.boxes.size(), 2U);
    EXPECT_THAT(boxes.sentence, HasSubstr("in 3 of 3"));
    EXPECT_THAT(placesChart(season).sentence, HasSubstr("BELL Anna may expect place 1."));
    EXPECT_EQ(headToHeadChart(season, 0, 1).rows.size(), 1U);
}

TEST_F(SeasonOfThree, AthletesAreHeldAgainstOneAnotherBesideTheirExplanations) {
    const Season season = seasonOf(data());
    const ComparisonChart compared = comparisonChart(season, "Final");
    ASSERT_EQ(compared.lines.size(), 2U);
    const double mill = 100 * (90.5 / 90 - 1);
    EXPECT_NEAR(compared.lines[0].percent.value(), mill / 2, Close) << "she won abroad";
    ASSERT_EQ(compared.lines[0].years.size(), 1U);
    EXPECT_EQ(compared.lines[0].years[0].runs, 2U);
    EXPECT_NEAR(compared.lines[0].years[0].percent, mill / 2, Close);
    EXPECT_THAT(compared.sentence, HasSubstr("(Final): BELL Anna, 0.3 % (median of 2)"));
    for (const char* const id : {"median/Anna Bell/Final", "median/Anna Bell/Final/2025"})
        EXPECT_NEAR(explainSeason(season, m_facts, id).value().value, mill / 2, Close) << id;
    EXPECT_FALSE(explainSeason(season, m_facts, "median/Anna Bell/Final/2024"));
    EXPECT_FALSE(explainSeason(season, m_facts, "median/Anna Bell"));
    const SeasonIntervalChart medals = raceRateChart(season, RaceRate::Medals);
    EXPECT_EQ(medals.rows[0].value, 100.0);
    EXPECT_THAT(medals.sentence, HasSubstr("BELL Anna, 2 of 2 ("));
    EXPECT_THAT(pairChart(season, RacePair::Heats).sentence, HasSubstr("Too few"));
}

TEST(PlaceRanges, LeaveOneInTwentyOutAtEitherEnd) {
    const std::vector<double> even(20, 0.05);
    EXPECT_EQ(placeRange(even).low, 2) << "the first alone has just 5 %";
    EXPECT_EQ(placeRange(std::vector<double>{0.97, 0.02, 0.01}), (Interval{1, 1}));
    EXPECT_EQ(placeRange(std::vector<double>{0.04, 0.9, 0.06}), (Interval{2, 3}));
    EXPECT_THROW((void)placeRange({}), std::invalid_argument);
}

TEST_F(SeasonOfThree, FewFiguresOfATeamAloneAreItsWords) {
    const auto lines = seasonFigures(m_team, "Anna Bell", "WK1").lines();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_THAT(seasonFigures(m_team, "Anna Bell", "WK1").ids("BELL Anna"),
                ElementsAre("median/BELL Anna/Final", "medal/BELL Anna", "final/BELL Anna"));
    EXPECT_EQ(lines[0], "0.0 % behind the winner, Final (median of 1)");
    EXPECT_THAT(lines[1], HasSubstr("medals 2 of 2 ("));
    EXPECT_THAT(lines[2], HasSubstr("finals 2 of 2 ("));
    EXPECT_THAT(seasonFigures(m_team, "Nobody", "WK1").lines(),
                ElementsAre(HasSubstr("Too few results")));
}

} // namespace kavela::test
