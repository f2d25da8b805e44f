#include "performance/loss_clips.h"

#include "performance/loss_charts.h"
#include "performance/loss_races.h"

#include <gtest/gtest.h>

#include <algorithm>

/// Where losses are seen: on films, on a map, along the course.
namespace kavela::test {

namespace {

/// A run that starts 5 s into its film.
athletedata031 filmedRun(std::vector<std::string> names, std::vector<double> times) {
    athletedata031 run = lossRun(std::move(names), std::move(times));
    run.videoname = {run.names.front() + ".mp4"};
    double at = 5;
    for (const double time : run.sectioninfo.times) {
        at += time;
        CMTime mark;
        mark.value = static_cast<std::int64_t>(at * 1000);
        mark.timescale = 1000;
        mark.flags = 1;
        run.sectioninfo.cmtimes.push_back({mark});
    }
    return run;
}

} // namespace

TEST(LossClips, ShowsAStretchFromItsMarkToTheNext) {
    const FactStore facts =
        factsOf(lossRace(2, {filmedRun({"A"}, {10, 20}), lossRun({"B"}, {11, 21})}));
    const auto last = filmSpanOf(facts, 0, 2, 2);
    ASSERT_TRUE(last);
    EXPECT_EQ(*last, (FilmSpan{0, 15, 35}));
    const auto whole = filmSpanOf(facts, 0, 1, 2);
    ASSERT_TRUE(whole);
    EXPECT_NEAR(whole->from, 5, 1e-9);
    EXPECT_EQ(whole->to, 35);
    EXPECT_FALSE(filmSpanOf(facts, 0, 2, 3)) << "there is no third section";
    EXPECT_FALSE(filmSpanOf(facts, 1, 1, 1)) << "nobody filmed it";
}

TEST(LossClips, WatchesTheRunThatHasTheIdealSection) {
    const FactStore facts = factsOf(lossRace(
        2, {lossRun({"A"}, {10, 22}), lossRun({"B"}, {11, 20}), lossRun({"C"}, {12, 24})}));
    const LossRivals rivals(facts);
    const RunLosses onIdeal = lossesOf(facts, rivals, 2, {LossReferenceKind::Ideal, 0});
    EXPECT_EQ(runToWatch(facts, rivals, onIdeal, onIdeal.stretches.at(0)), 0U);
    EXPECT_EQ(runToWatch(facts, rivals, onIdeal, onIdeal.stretches.at(1)), 1U);
    const RunLosses onMedian = lossesOf(facts, rivals, 2, {LossReferenceKind::Median, 0});
    EXPECT_FALSE(runToWatch(facts, rivals, onMedian, onMedian.stretches.at(0)));
}

/// The winner's own zeros are numbers, and no times that are not known.
TEST(LossCharts, TintsTheMapByOneScaleWithTheReferenceOnIt) {
    const FactStore facts = factsOf(lossRace(
        2, {lossRun({"A"}, {10, 20}), lossRun({"B"}, {11, 20.2}), lossRun({"C"}, {10.5, 0})}));
    const std::vector<RunLosses> runs = lossesOf(facts, {LossReferenceKind::Winner, 0});
    const std::vector<Band> bands = heatBandsOf(heatMapOf(facts, runs));
    ASSERT_EQ(bands.size(), 6U);
    EXPECT_EQ(bands[0], Band::Fastest);
    EXPECT_EQ(bands[1], Band::Fastest);
    EXPECT_GT(bands[2], bands[3]) << "10 % is worse than 1 %, whatever the section";
    EXPECT_EQ(bands[5], Band::Clear) << "was not timed";
}

TEST(LossCharts, TellsTheGapAfterASectionAsTheChartDrawsIt) {
    const FactStore facts =
        factsOf(lossRace(3, {lossRun({"A"}, {10, 20, 30}), lossRun({"B"}, {11, 19.5, 31})}));
    const RunLosses losses = lossesOf(facts, {LossReferenceKind::Winner, 0}).at(1);
    for (const CumulativeGap::Point& point : cumulativeGapOf(losses).points)
        EXPECT_DOUBLE_EQ(gapAfter(facts, losses, point.section), point.gap);
    Why why;
    EXPECT_DOUBLE_EQ(gapAfter(facts, losses, 2, &why), 0.5);
    EXPECT_EQ(why.reason().inputs.size(), 2U);
    EXPECT_EQ(why.reason().shown, "+0.50");
}

} // namespace kavela::test
