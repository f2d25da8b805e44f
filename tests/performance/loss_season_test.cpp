#include "performance/loss_season.h"

#include "performance/loss_races.h"
#include "performance/loss_reasons.h"

#include <gtest/gtest.h>

#include <algorithm>

/// What an athlete loses over many runs.
namespace kavela::test {

namespace {

/// A race in which the athlete "Me" is so many seconds behind in both of its sections, of which the
/// first has an upstream gate.
splittakerdata031 raceWithLosses(double upstream, double downstream) {
    auto race = lossRace(
        2, {lossRun({"Best One"}, {40, 50}), lossRun({"Me"}, {40 + upstream, 50 + downstream})});
    race.info.gates = 2;
    race.info.upGates = {1};
    race.info.definedsections = {{1}, {2}};
    return race;
}

FactStore seasonOf(const std::vector<std::pair<double, double>>& races) {
    FactStore facts;
    for (std::size_t i = 0; i < races.size(); ++i)
        facts.add(raceWithLosses(races[i].first, races[i].second), std::to_string(i) + ".kvx");
    return facts;
}

SeasonLossQuery queryOf(const FactStore& facts) {
    return {std::string(facts.text(facts.runs()[1].crewKey)), {}, {}};
}

const SeasonLossRow& rowOf(const SeasonLosses& season, const std::string& field,
                           const std::string& key) {
    return *std::ranges::find_if(season.rows, [&](const SeasonLossRow& row) {
        return row.field == field && row.key == key;
    });
}

} // namespace

TEST(LossSeason, WhatIsLostInEveryRunIsToBeTrained) {
    const FactStore facts = seasonOf({{1, 0.5}, {1.2, -0.6}, {0.8, 0.1}});
    const SeasonLosses season = seasonLosses(facts, queryOf(facts));
    EXPECT_EQ(season.runs.size(), 3U);
    EXPECT_NEAR(season.gap.mean, 1, 1e-9);
    const SeasonLossRow& upstream = rowOf(season, "kind", "upstream");
    EXPECT_NEAR(upstream.percent, 2.5, 1e-9);
    // SE = 0.5 / √3 and the quantile 2.9199856 of t with 2 degrees of freedom.
    ASSERT_TRUE(upstream.interval);
    EXPECT_NEAR(upstream.interval->low, 1.6570730, 1e-6);
    EXPECT_NEAR(upstream.interval->high, 3.3429270, 1e-6);
    EXPECT_EQ(upstream.verdict, LossVerdict::Losing);
    EXPECT_NEAR(upstream.perRun, 1, 1e-9);
    EXPECT_NEAR(upstream.share.value(), 1, 1e-9);
    EXPECT_EQ(rowOf(season, "kind", "downstream").verdict, LossVerdict::Unclear);
    ASSERT_FALSE(season.train.empty());
    EXPECT_EQ(season.rows[season.train.front()].key, "upstream");
    EXPECT_NEAR(upstream.clips.front().loss, 1.2, 1e-9);
    EXPECT_EQ(upstream.clips.front().run, 3U);
}

TEST(LossSeason, TwoRunsAreTooFewForAVerdict) {
    const FactStore facts = seasonOf({{1, 1}, {1, 1}});
    const SeasonLosses season = seasonLosses(facts, queryOf(facts));
    for (const SeasonLossRow& row : season.rows) {
        EXPECT_FALSE(row.interval) << row.key;
        EXPECT_EQ(row.verdict, LossVerdict::Unclear) << row.key;
    }
    EXPECT_TRUE(season.train.empty());
}

TEST(LossSeason, RunsThatAreNotWholeAreLeftOut) {
    FactStore facts = seasonOf({{1, 1}, {1, 1}});
    auto race = raceWithLosses(5, 5);
    race.athletes[1].sectioninfo.times.pop_back();
    facts.add(race, "unfinished.kvx");
    const SeasonLosses season = seasonLosses(facts, queryOf(facts));
    EXPECT_EQ(season.runs.size(), 2U);
    EXPECT_EQ(seasonRuns(facts, queryOf(facts)).size(), 3U);
}

TEST(LossSeason, EveryNumberIsExplainedByItself) {
    const FactStore facts = seasonOf({{1, 0.5}, {1.2, -0.6}, {0.8, 0.1}});
    const SeasonLossQuery query = queryOf(facts);
    const SeasonLosses season = seasonLosses(facts, query);
    const auto explained = [&](SeasonLossNumber number, const SeasonLossRow& row) {
        const auto reason =
            explainSeasonLoss(facts, query, seasonLossId({number, row.field, row.key}));
        return reason ? reason->value : NotKnown;
    };
    for (const SeasonLossRow& row : season.rows) {
        EXPECT_EQ(explained(SeasonLossNumber::Percent, row), row.percent);
        EXPECT_EQ(explained(SeasonLossNumber::PerRun, row), row.perRun);
        EXPECT_EQ(explained(SeasonLossNumber::Share, row), row.share);
    }
    EXPECT_EQ(explainSeasonLoss(facts, query, "seasongap")->value, season.gap.mean);
    EXPECT_EQ(explainSeasonLoss(facts, query, "seasonpenalties")->value, season.penalties.mean);
    EXPECT_FALSE(explainSeasonLoss(facts, query, "seasonpercent/kind/mixed"));
}

} // namespace kavela::test
