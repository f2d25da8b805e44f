#include "analysis/standing.h"

#include "analysis/athlete_potential.h"
#include "analysis/comparison_row.h"
#include "analysis/course_gaps.h"
#include "analysis/ideal_run.h"
#include "analysis/ranking.h"
#include "analysis/table_figures.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

/// A whole run, one that was not timed but touched a gate, one that stopped, one whose last mark
/// lies before the one in front of it, one that began late.
RaceSet oddRace() {
    splittakerdata031 race = raceOf(3, {runOf({10, 20, 30}), runOf({0, 0, 0}), runOf({9, 51}),
                                        runOf({11, 21, -1}), runOf({0, 21, 31})});
    race.athletes[1].sectioninfo.pens = {2, 0, 0};
    race.athletes[1].sectioninfo.totalpen = 52;
    return makeRaceSet(race, "a.kvx");
}

SplitTable tableOf(const RaceSet& set, ValueKind kind, bool penaltiesIncluded, const char* mode) {
    return makeSplitTable(set, {kind, penaltiesIncluded, false, mode});
}

std::vector<TimeStanding> standings(const SplitTable& table, std::size_t column) {
    std::vector<TimeStanding> found;
    for (const TableRow& row : table.rows)
        found.push_back(row.cells[column].standing);
    return found;
}

std::vector<std::size_t> bests(const SplitTable& table, std::size_t column) {
    std::vector<std::size_t> found;
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        if (table.rows[row].cells[column].isBest)
            found.push_back(row);
    return found;
}

constexpr auto Counts = TimeStanding::Counts;
constexpr auto NotTimed = TimeStanding::NotTimed;
constexpr auto NotPositive = TimeStanding::NotPositive;
constexpr auto Merged = TimeStanding::Merged;
constexpr auto AfterUntimed = TimeStanding::AfterUntimed;
constexpr auto NotFinished = TimeStanding::NotFinished;

} // namespace

TEST(TimeStanding, IsOfTimesThatWereTaken) {
    const RaceSet set = oddRace();
    const SplitTable sections = tableOf(set, ValueKind::Sections, true, "Race");
    EXPECT_THAT(standings(sections, 0), ElementsAre(Counts, NotTimed, Counts, Counts, NotTimed));
    EXPECT_THAT(standings(sections, 1), ElementsAre(Counts, NotTimed, Counts, Counts, Merged));
    EXPECT_THAT(standings(sections, 2),
                ElementsAre(Counts, NotTimed, NotTimed, NotPositive, Counts));
    EXPECT_THAT(standings(sections, 3),
                ElementsAre(Counts, NotFinished, NotFinished, NotPositive, NotFinished));
    const SplitTable sums = tableOf(set, ValueKind::Accumulated, false, "Race");
    EXPECT_THAT(standings(sums, 1), ElementsAre(Counts, NotTimed, Counts, Counts, AfterUntimed));
    EXPECT_THAT(standings(sums, 2),
                ElementsAre(Counts, NotTimed, AfterUntimed, NotPositive, AfterUntimed));
    EXPECT_EQ(reasonOf(Counts), "");
}

TEST(TimeStanding, CallsNothingBestThatDoesNotCount) {
    const RaceSet set = oddRace();
    for (const char* mode : {"Race", "Training"}) {
        const SplitTable sections = tableOf(set, ValueKind::Sections, true, mode);
        EXPECT_THAT(bests(sections, 0), ElementsAre(2U)) << mode << ": not the touch of 2 s";
        EXPECT_THAT(bests(sections, 2), ElementsAre(0U)) << mode << ": not the time of -1";
        EXPECT_THAT(bests(sections, 3), ElementsAre(0U)) << mode << ": not a total of 52";
        const SplitTable sums = tableOf(set, ValueKind::Accumulated, false, mode);
        EXPECT_THAT(bests(sums, 1), ElementsAre(0U)) << mode << ": not a sum of one section";
        EXPECT_THAT(bests(sums, 2), ElementsAre(0U)) << mode;
        EXPECT_THAT(bests(sums, 3), ElementsAre(0U))
            << mode << ": the run that stopped after 60 s equals the best total";
    }
}

TEST(TimeStanding, LeavesValuesAndBandsToTheColumn) {
    const RaceSet set = oddRace();
    const SplitTable table = tableOf(set, ValueKind::Sections, true, "Training");
    const TableCell& touch = table.rows[1].cells[0];
    EXPECT_EQ(touch.value, 2);
    EXPECT_EQ(touch.band, Band::Fastest);
    EXPECT_EQ(touch.background, NamedGreen);
    EXPECT_TRUE(touch.isGreyed());
    EXPECT_TRUE(hasGreyed(table));
    const SplitTable race = tableOf(set, ValueKind::Sections, true, "Race");
    EXPECT_EQ(race.rows[1].cells[0].foreground, NamedRed);
    EXPECT_EQ(race.rows[2].cells[0].foreground, NamedGreen);
    EXPECT_FALSE(race.rows[4].cells[0].isGreyed()) << "nothing is shown there to be greyed";
}

TEST(TimeStanding, TakesNoPlaceAndIsNoReference) {
    const RaceSet set = oddRace();
    const SplitTable sums = tableOf(set, ValueKind::Accumulated, false, "Race");
    const TableFigures figures(sums);
    EXPECT_EQ(figures.rank(4, 2), std::nullopt);
    EXPECT_EQ(figures.gap(4, 2, {}), std::nullopt);
    EXPECT_EQ(figures.percentBehind(4, 2), std::nullopt);
    EXPECT_THAT(figures.rank(0, 2), Optional(1));
    EXPECT_EQ(figures.timed(2), 1U);
    EXPECT_EQ(figures.gap(0, 2, {ReferenceKind::Run, 4}), std::nullopt);
    EXPECT_THAT(figures.gap(0, 2, {ReferenceKind::Median}), Optional(0.0));
    const auto stopped = comparisonRow(set, set.alldata[2], {ValueKind::Accumulated});
    EXPECT_THAT(stopped.values, ElementsAre(9, 60, 0, 0, 0, 0)) << "nor from another race";
}

TEST(TimeStanding, HoldsNothingAgainstATimeOfTwoSections) {
    const RaceSet set = makeRaceSet(
        raceOf(3, {runOf({10, 20, 30}), runOf({0, 19, 31}), runOf({11, 22, 32})}), "a.kvx");
    const SplitTable table = tableOf(set, ValueKind::Sections, false, "Race");
    EXPECT_THAT(bests(table, 1), ElementsAre(0U));
    EXPECT_TRUE(table.rows[1].cells[1].isGreyed());
    EXPECT_THAT(TableFigures(table).gap(2, 1, {ReferenceKind::Median}), Optional(1.0));
    EXPECT_THAT(TableFigures(table).rank(1, 2), Optional(2)) << "the next section stands alone";
    EXPECT_EQ(set.alldata[0].sectioninfo.pertimes[1], 0) << "the best there is";
    EXPECT_EQ(set.alldata[1].sectioninfo.pertimes[1], 0) << "held against nothing";
    EXPECT_NEAR(set.alldata[2].sectioninfo.pertimesandpen[1], 10, 1e-9);
    EXPECT_THAT(referenceTimes(set, {CourseReferenceKind::Median}, false),
                ElementsAre(10.5, 21, 31));
    EXPECT_THAT(referenceTimes(set, {CourseReferenceKind::Ideal}, false), ElementsAre(10, 20, 30));
}

TEST(TimeStanding, KeepsTimesOfLessThanNothingOutOfEveryBest) {
    const RaceSet set = makeRaceSet(
        raceOf(3, {runOf({10, 20, -1}), runOf({11, 21, 31}), runOf({-5, -6, -7})}), "a.kvx");
    const IdealRun ideal = idealRun(set);
    EXPECT_THAT(ideal.total, Optional(61.0));
    EXPECT_THAT(ideal.fastest, Optional(1U));
    EXPECT_THAT(ranksInGroups(set), ElementsAre(Eq(std::nullopt), Optional(1), Eq(std::nullopt)));
    EXPECT_EQ(athletePotentials(set)[2].potential, std::nullopt);
    EXPECT_THAT(bestRun(set, false), Optional(1U));
    EXPECT_THAT(courseGaps(comparedTimes(set, set.alldata[0], false),
                           referenceTimes(set, {CourseReferenceKind::Median}, false)),
                testing::SizeIs(2))
        << "known up to the mark that is wrong";
    EXPECT_EQ(set.alldata[0].sectioninfo.totalpertime, 0);
    EXPECT_EQ(set.alldata[1].sectioninfo.totalpertime, 0) << "the best there is";
}

TEST(TableFigures, GiveWhatLooksTheSameTheSamePlace) {
    const RaceSet set =
        makeRaceSet(raceOf(1, {runOf({20.0049}), runOf({20.001}), runOf({20.0051})}), "a.kvx");
    const SplitTable table = makeSplitTable(set, {});
    const TableFigures figures(table);
    EXPECT_THAT(figures.rank(0, 0), Optional(1));
    EXPECT_THAT(figures.rank(1, 0), Optional(1));
    EXPECT_THAT(figures.rank(2, 0), Optional(3));
    EXPECT_THAT(bests(table, 0), ElementsAre(0U, 1U));
}

} // namespace kavela::test
