#include "splittaking/perfect_time.h"

#include "common/recorders.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using testing::DoubleEq;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

athletedata031 runOf(std::vector<double> times, double sprint) {
    athletedata031 run;
    run.names = {"Ann"};
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.sprinttime = sprint;
    return run;
}

/// The best values without the zeros behind them.
std::vector<double> bestOf(const std::vector<athletedata031>& runs) {
    std::vector<double> best = perfectTime(runs).best;
    while (!best.empty() && best.back() == 0)
        best.pop_back();
    return best;
}

std::vector<double> upTo(int count) {
    std::vector<double> values;
    for (int i = 1; i <= count; ++i)
        values.push_back(100 + i);
    return values;
}

} // namespace

TEST(PerfectTime, TakesTheBestOfEverySlot) {
    struct Row {
        const char* name;
        std::vector<athletedata031> runs;
        std::vector<double> best;
    };
    for (const Row& row : {
             Row{"no runs", {}, {}},
             Row{"smaller times", {runOf({10, 20}, 5), runOf({9, 21}, 4)}, {9, 20, 4}},
             Row{"zero is no time", {runOf({10, 0}, 5), runOf({0, 20}, 0)}, {10, 20, 5}},
             Row{"a zero sprint takes only a free slot", {runOf({9}, 0), runOf({9}, 4)}, {9, 4}},
             Row{"runs of different lengths", {runOf({9}, 4), runOf({9, 30}, 5)}, {9, 4, 5}},
             Row{"a negative time blocks until its run is done",
                 {runOf({-3, 8}, 2), runOf({7, 9}, 3)},
                 {7, 8, 2}},
             Row{"a negative time displaces an earlier best",
                 {runOf({7}, 2), runOf({-1}, 2)},
                 {0, 2}},
             Row{"a negative sprint", {runOf({7}, -2), runOf({8}, 3)}, {7, 3}},
             Row{"no times", {runOf({}, 6), runOf({}, 0)}, {6}},
         })
        EXPECT_EQ(bestOf(row.runs), row.best) << row.name;
}

TEST(PerfectTime, LetsNoNegativeTimeBeShownAsABest) {
    std::vector<athletedata031> runs{runOf({7, 5}, 2), runOf({-1, 6}, -3)};
    blankNegativeTimes(runs);
    EXPECT_THAT(bestOf(runs), ElementsAre(7, 5, 2));
}

TEST(PerfectTime, SharesTheSlotsAfterTheTenth) {
    EXPECT_EQ(perfectTime({}).best.size(), 12U);
    std::vector<double> best = upTo(11);
    best.push_back(4);
    EXPECT_EQ(bestOf({runOf(upTo(11), 4)}), best) << "the sprint follows in slot 11";
    std::vector<double> times = upTo(14);
    times[13] = 3; // a fourteenth position shares slot 10
    best[10] = 3;
    EXPECT_EQ(bestOf({runOf(times, 4)}), best) << "the sprint stays in slot 11";
    EXPECT_EQ(perfectTime({runOf(times, 4)}).best.size(), 15U);
}

TEST(PerfectTime, TrimsTheRatios) {
    const std::vector<double> best(12, 1.0);
    struct Row {
        std::vector<double> times;
        double sprint;
        double factor;
    };
    for (const Row& row : {Row{{}, 7, 0}, Row{{3}, 7, 0}, Row{{9, 3}, 7, 7}, Row{{3, 9, 8}, 7, 0},
                           Row{{3, 9, 8, 4}, 7, 7}, Row{{1, 9, 8, 2, 5}, 100, 6.5},
                           Row{{5, 4, 3, 2, 1, 6}, 0, 3}, Row{{0, -2, 9, 3}, 7, 7}})
        EXPECT_THAT(expectedFactor(runOf(row.times, row.sprint).sectioninfo, best),
                    DoubleEq(row.factor));
}

TEST(PerfectTime, PutsRatiosWithoutAValueLast) {
    // 0/0 of a race without sprint times is the largest, and removed.
    EXPECT_EQ(expectedFactor(runOf({2, 3, 4, 5, 6}, 0).sectioninfo, {1, 1, 1, 1, 1, 0}), 4.5);
    // The twelfth and later positions have a time but no slot of their own.
    const std::vector<athletedata031> runs{runOf(upTo(14), 0)};
    EXPECT_THAT(expectedFactor(runs[0].sectioninfo, perfectTime(runs).best),
                std::numeric_limits<double>::infinity());
}

TEST(PerfectTime, StoresAndLogsWhatItFinds) {
    Recorder recorder;
    splittakerdata031 race;
    race.athletes = {runOf({10, 20.5, 30}, 5), runOf({11, 20.5, 27}, 0.1)};
    const PerfectTime perfect = recomputeExpected(race, recorder.log());
    EXPECT_EQ(perfect.total, 10 + 20.5 + 27 + 0.1);
    EXPECT_THAT(recorder.lines, ElementsAre("current perfect time 57.6 from 10 20.5 27 0.1 0 0 0 "
                                            "0 0 0 0 0"));
    EXPECT_EQ(race.info.perfectRun, perfect.total);
    for (const athletedata031& run : race.athletes) {
        EXPECT_EQ(run.sectioninfo.xPer, 0) << "four ratios leave none";
        EXPECT_EQ(run.sectioninfo.xTime, 0);
    }
    race.athletes[0] = runOf({10, 22, 31, 40}, 5);
    race.athletes[1] = runOf({11, 20, 30, 40}, 4);
    recomputeExpected(race, [](std::string_view) {});
    EXPECT_EQ(race.info.perfectRun, 104) << "nothing is left of the values before";
    EXPECT_THAT(race.athletes[0].sectioninfo.xPer, DoubleEq(31.0 / 30));
    EXPECT_THAT(race.athletes[0].sectioninfo.xTime, DoubleEq(31.0 / 30 * 104));
}

TEST(PerfectTime, StoresNothingThatIsNotFinite) {
    Recorder recorder;
    splittakerdata031 race;
    race.athletes = {runOf(upTo(14), 0), runOf({1e308, 1e308, 1e308}, 1e-300)};
    race.athletes[1].sectioninfo.times[0] = 1e-310; // ratios beyond all bounds
    recomputeExpected(race, recorder.log());
    EXPECT_EQ(race.athletes[0].sectioninfo.xPer, 0);
    EXPECT_EQ(race.athletes[0].sectioninfo.xTime, 0);
    EXPECT_THAT(recorder.lines,
                testing::Contains("The expected-time factor of Ann is not a finite number; 0 is "
                                  "stored"));
    race.athletes = {runOf({1e308, 1e308, 2, 3}, 4), runOf({1e308, 1e308, 2, 3}, 4)};
    recomputeExpected(race, recorder.log());
    EXPECT_EQ(race.info.perfectRun, 0);
    EXPECT_EQ(race.athletes[0].sectioninfo.xPer, 1);
    EXPECT_EQ(race.athletes[0].sectioninfo.xTime, 0);
}

} // namespace kavela::test
