#include "analysis/race_set.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

constexpr double Precision = 1e-9;

/// Two whole runs and one that never got a time.
RaceSet threeRuns() {
    splittakerdata031 race = raceOf(2, {runOf({10, 20}), runOf({12.5, 15}), runOf({0, 0})});
    sectiondata030& first = race.athletes[0].sectioninfo;
    first.pens = {2, 0};
    first.totalpen = 2;
    first.realtime = 33;
    first.sprinttime = 5;
    first.xTime = 30;
    sectiondata030& second = race.athletes[1].sectioninfo;
    second.pens = {0, 50};
    second.totalpen = 50;
    second.totaltime = 99; // as stored; the race set sums up for itself
    second.realtime = 30;
    second.xTime = 36;
    race.athletes[2].sectioninfo.totalpen = 50;
    return makeRaceSet(race, "a.kvx");
}

} // namespace

TEST(RaceSet, CallsARunFullWhenNoSectionOfTheCourseIsMissing) {
    struct Row {
        const char* name;
        std::int64_t sections;
        std::vector<double> times;
        bool isFull;
    };
    for (const Row& row :
         {Row{"all there", 3, {1, 2, 3}, true}, Row{"last missing", 3, {1, 2, 0}, false},
          Row{"first missing", 3, {0, 2, 3}, false}, Row{"too short", 3, {1, 2}, false},
          Row{"a zero beyond the course", 2, {1, 2, 0}, true},
          Row{"a negative time is a time", 1, {-1}, true}, Row{"no sections", 0, {1}, false},
          Row{"absurd course", INT64_MAX, {1, 2}, false}, Row{"negative course", -1, {}, false}}) {
        const RaceSet set = makeRaceSet(raceOf(row.sections, {runOf(row.times)}), "a.kvx");
        EXPECT_EQ(set.isFull(set.alldata[0]), row.isFull) << row.name;
    }
}

TEST(RaceSet, GivesPercentBehindTheBestOfEachColumn) {
    const RaceSet set = threeRuns();
    const sectionmaindata& first = set.alldata[0].sectioninfo;
    const sectionmaindata& second = set.alldata[1].sectioninfo;
    const sectionmaindata& none = set.alldata[2].sectioninfo;
    const auto near = DoubleNear(Precision);
    EXPECT_THAT(first.pertimes, Pointwise(near, {0.0, 100.0 / 3}));
    EXPECT_THAT(second.pertimes, Pointwise(near, {25.0, 0.0}));
    EXPECT_THAT(first.pertimesandpen, Pointwise(near, {0.0, 0.0}));
    EXPECT_THAT(second.pertimesandpen, Pointwise(near, {100 * 0.5 / 12, 225.0}));
    EXPECT_THAT(first.peraccutimes, Pointwise(near, {0.0, 100 * 2.5 / 27.5}));
    EXPECT_THAT(second.peraccutimes, Pointwise(near, {25.0, 0.0}));
    EXPECT_THAT(second.accutimes, ElementsAre(12.5, 27.5));
    EXPECT_EQ(second.totaltime, 27.5);
    EXPECT_NEAR(first.totalpertime, 100 * 2.5 / 27.5, Precision);
    EXPECT_NEAR(second.totalpertimeandpen, 100 * (77.5 / 32 - 1), Precision);
    EXPECT_NEAR(first.realpertime, 10, Precision);
    EXPECT_NEAR(first.sprintpertime, 0, Precision);
    EXPECT_NEAR(second.xPer, 20, Precision);
    for (const double figure : {none.pertimes[1], none.pertimesandpen[0], none.peraccutimes[1],
                                none.totalpertime, none.totalpertimeandpen, none.realpertime})
        EXPECT_EQ(figure, 0) << "without a time nothing is behind";

    const RaceSet filtered =
        filteredRaceSet(set, [](const analyzerdata& run) { return run.athleteInt > 0; });
    ASSERT_EQ(filtered.alldata.size(), 2U);
    EXPECT_EQ(filtered.alldata[0].sectioninfo.pertimes[0], 0) << "the best that is left";
}

TEST(RaceSet, LooksForFilmsBesideTheFileAndNowhereElse) {
    splittakerdata031 race = raceOf(1, {runOf({1})});
    race.athletes[0].videoname = {"a.mov",        "../b.mov", "/c.mov", "films/d.mov",
                                  "films\\e.mov", "..",       "",       "f..mov"};
    race.athletes[0].fixcameras = {"../../gate.mov", "gate 7.mov"};
    const RaceSet set = makeRaceSet(race, "season/race.kvx");
    EXPECT_THAT(set.alldata[0].videoname,
                ElementsAre("season/a.mov", "", "", "", "", "", "", "season/f..mov"));
    EXPECT_THAT(set.alldata[0].fixcameras, ElementsAre("", "season/gate 7.mov"));
}

} // namespace kavela::test
