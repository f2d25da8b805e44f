#include "analysis/ranking.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

athletedata031 runIn(const std::string& phase, const std::string& category,
                     std::vector<double> times, std::int64_t penalty = 0) {
    athletedata031 run = runOf(std::move(times));
    run.phase = phase;
    run.cat = category;
    run.sectioninfo.totalpen = penalty;
    return run;
}

} // namespace

TEST(Ranking, IsByTotalWithPenaltiesWithinPhaseAndCategory) {
    const RaceSet set = makeRaceSet(
        raceOf(2, {runIn("Heats", "K1M", {40, 50}, 2), runIn("Heats", "C1W", {60, 60}),
                   runIn("Heats", "K1M", {41, 50}), runIn("Final", "K1M", {39, 50}, 50),
                   runIn("Heats", "K1M", {30, 0}), runIn("Heats", "K1M", {45.5, 46.499})}),
        "a.kvx");
    EXPECT_THAT(ranksInGroups(set), ElementsAre(Optional(2), Optional(1), Optional(1), Optional(1),
                                                Eq(std::nullopt), Optional(2)))
        << "91.999 is shown as 92.00 and shares the rank of 90 + 2";

    const std::vector<RunGroup> groups = runGroups(set);
    ASSERT_EQ(groups.size(), 3U);
    EXPECT_EQ(groups[0].category, "K1M");
    EXPECT_EQ(groups[1].category, "C1W");
    EXPECT_EQ(groups[2].phase, "Final");
    EXPECT_THAT(groups[0].runs, ElementsAre(0U, 2U, 4U, 5U));

    const std::vector<RankedRun> ranked = ranking(set, groups[0].runs);
    ASSERT_EQ(ranked.size(), 3U);
    EXPECT_EQ(ranked[0].gap, 0);
    EXPECT_NEAR(ranked[1].gap, 1, 1e-9);
}

TEST(Ranking, CountsThoseWhoShareARank) {
    std::vector<athletedata031> runs;
    for (const double time : {12.0, 10.0, 11.0, 11.0, 10.0, 11.0})
        runs.push_back(runOf({time}));
    EXPECT_THAT(
        ranksInGroups(makeRaceSet(raceOf(1, runs), "a.kvx")),
        ElementsAre(Optional(6), Optional(1), Optional(3), Optional(3), Optional(1), Optional(3)));
}

TEST(Ranking, LeavesOutTotalsThatAreNoNumbers) {
    constexpr double Huge = std::numeric_limits<double>::max();
    const RaceSet set = makeRaceSet(
        raceOf(2, {runOf({Huge, Huge}), runOf({1, 1}), runOf({-Huge, -Huge})}), "a.kvx");
    EXPECT_THAT(ranksInGroups(set), ElementsAre(Eq(std::nullopt), Optional(1), Eq(std::nullopt)));
}

} // namespace kavela::test
