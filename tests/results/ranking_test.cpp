#include "results/selection_whatif.h"
#include "results/selections.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double M = MissingTime;

std::vector<ResultFate> fatesOf(const Score& score) {
    std::vector<ResultFate> fates;
    for (const ScorePart& part : score.races)
        fates.push_back(part.fate);
    if (score.bonus)
        fates.push_back(score.bonus->fate);
    return fates;
}

std::vector<std::int64_t> ranksOf(const std::vector<Standing>& ranking) {
    std::vector<std::int64_t> ranks;
    for (const Standing& standing : ranking)
        ranks.push_back(standing.rank);
    return ranks;
}

double scoreIn(const selectionracesStruct_v3& document, const std::string& name) {
    return std::ranges::find(document.categories[0].athletes, name, &srAthleteStruct_v3::name)
        ->result;
}

} // namespace

TEST(SelectionScore, DropsTheWorstAndWithABonusTheSecondWorst) {
    using enum ResultFate;
    struct Row {
        const char* name;
        std::vector<double> percentages;
        std::optional<double> bonus;
        double score;
        std::vector<ResultFate> fates;
    };
    for (const Row& row : std::vector<Row>{
             {"four races", {3, 9, 0, 6}, {}, 3, {Counted, Worst, Counted, Counted}},
             {"three races are divided by three too", {3, 9, 0}, {}, 1, {Counted, Worst, Counted}},
             {"a bonus", {3, 9, 0, 6}, 0.0, 1, {Counted, Worst, Counted, SecondWorst, Counted}},
             {"a bad bonus is dropped", {3, 1}, 7.5, 1.0 / 3, {SecondWorst, Counted, Worst}},
             {"the later of equals is dropped", {5, 5, 5}, {}, 10.0 / 3, {Counted, Counted, Worst}},
             {"one race", {5}, {}, 0, {Worst}},
             {"one race and a bonus", {5}, 2.0, 0, {Worst, SecondWorst}},
             {"no race", {}, {}, 0, {}}}) {
        const Score score = scoreOf(row.percentages, row.bonus);
        EXPECT_DOUBLE_EQ(score.score, row.score) << row.name;
        EXPECT_EQ(fatesOf(score), row.fates) << row.name;
    }
}

TEST(SelectionRanking, ComparesWithTheBestOfEachRace) {
    auto document = selectionOf({{"A", {100, 90}}, {"B", {98, M}}, {"C", {103, 0}}});
    document.categories.reserve(2);
    auto& athletes = document.categories[0].athletes;
    athletes[0].racedata[0].pen = 2;
    athletes[0].racedata[0].xTime = 97;
    athletes[1].racedata[0].xTime = 0;
    document.categories.push_back({"WK1", {athletes[1]}});
    document.categories[1].athletes[0].racedata = {};
    computePercentages(document);
    EXPECT_THAT(document.races[0].bestTimes, ElementsAre(98, 999));
    EXPECT_THAT(document.races[0].bestxTimes, ElementsAre(99, 999));
    EXPECT_THAT(document.races[1].bestTimes, ElementsAre(90, 999)) << "a time of 0 is no best";
    EXPECT_DOUBLE_EQ(athletes[0].racedata[0].resultPer, (102.0 / 98 - 1) * 100);
    EXPECT_EQ(athletes[0].racedata[0].resultxPer, 0);
    EXPECT_EQ(athletes[1].racedata[0].resultxPer, -100) << "a 0 is computed as it stands";
    EXPECT_EQ(athletes[1].racedata[1].resultPer, 999.99);
    EXPECT_EQ(athletes[1].racedata[1].resultxPer, 999.99);
    EXPECT_EQ(athletes[2].racedata[1].resultPer, -100);
    EXPECT_THAT(zeroResults(document), ElementsAre(ResultPlace{0, 2, 1}));
    EXPECT_EQ(document.categories[1].athletes[0].racedata.size(), 2U) << "filled up";
    EXPECT_EQ(document.categories[1].athletes[0].racedata[1].resultPer, 999.99);
}

TEST(SelectionRanking, OrdersByScoreAndKeepsEqualsInTheirOrder) {
    auto document = selectionOf({{"Slow", {110, 110, 110, 110}},
                                 {"Tied one", {102, 102, 102, M}},
                                 {"Tied two", {M, 102, 102, 102}},
                                 {"Best", {100, 100, 100, 100}},
                                 {"Absent", {M, M, M, M}}});
    recomputeSelection(document, {});
    EXPECT_THAT(namesOf(document), ElementsAre("Best", "Tied one", "Tied two", "Slow", "Absent"));
    EXPECT_NEAR(document.categories[0].athletes[1].result, 2, 1e-9);
    EXPECT_THAT(ranksOf(standings(document.categories[0], 4, {})), ElementsAre(1, 2, 2, 4, 5));
    std::swap(document.categories[0].athletes[1], document.categories[0].athletes[2]);
    recomputeSelection(document, {});
    EXPECT_THAT(namesOf(document), ElementsAre("Best", "Tied two", "Tied one", "Slow", "Absent"));
}

TEST(SelectionRanking, CountsTheChosenBonusWhenItIsAboveMinusOne) {
    const auto entries = std::vector<Entry>{{"Leader", {100, 100, 100, 100}, {-1}},
                                            {"Bonus", {101, 102, 103, 104}, {0, -1}},
                                            {"Other", {101, 101, 101, 104}, {-2, 0.5}}};
    struct Row {
        BonusKind bonus;
        double scoreOfBonus;
        double scoreOfOther;
    };
    for (const Row& row : {Row{{}, 2, 1}, Row{0, 1, 1}, Row{1, 2, 2.5 / 3}, Row{7, 2, 1}}) {
        auto document = selectionOf(entries);
        recomputeSelection(document, row.bonus);
        EXPECT_NEAR(scoreIn(document, "Bonus"), row.scoreOfBonus, 1e-9);
        EXPECT_NEAR(scoreIn(document, "Other"), row.scoreOfOther, 1e-9);
    }
}

TEST(SelectionRanking, StaysFiniteWhateverAFileHolds) {
    auto document = selectionOf({{"A", {-2, 1e308}}, {"B", {1e-300, -1e308}}, {"C", {5, 0}}});
    document.categories[0].athletes[0].racedata[0].pen = 2;
    recomputeSelection(document, {});
    for (const srAthleteStruct_v3& athlete : document.categories[0].athletes) {
        EXPECT_TRUE(std::isfinite(athlete.result)) << athlete.name;
        for (const saRaceStruct& result : athlete.racedata)
            EXPECT_TRUE(std::isfinite(result.resultPer)) << athlete.name;
    }
}

TEST(SelectionRanking, RanksARaceByTotal) {
    auto document = selectionOf({{"A", {100}}, {"B", {99}}, {"C", {98}}, {"D", {M}}, {"E", {0}}});
    document.categories[0].athletes[1].racedata[0].pen = 2;
    document.categories[0].athletes[2].racedata[0].pen = 2;
    document.categories[0].athletes[3].racedata[0].pos = 9;
    rankRace(document, 0);
    std::vector<std::int64_t> places;
    for (const srAthleteStruct_v3& athlete : document.categories[0].athletes)
        places.push_back(athlete.racedata[0].pos);
    EXPECT_THAT(places, ElementsAre(1, 3, 1, 0, 0));
}

TEST(SelectionEdit, AsksForARaceFirstAndFillsNewAthletesUp) {
    selectionracesStruct_v3 document;
    const std::size_t category = categoryIndex(document, "MK1");
    EXPECT_FALSE(addAthlete(document, category, {"BROOK Adam"}));
    EXPECT_THAT(namesOf(document), IsEmpty());
    addRace(document, "Weirton");
    EXPECT_TRUE(addAthlete(document, category, {"BROOK Adam", 2005, "Mill", {true, false}, {0}}));
    addRace(document, "Highland");
    EXPECT_TRUE(addAthlete(document, category, {"LOCK Bea"}));
    const srAthleteStruct_v3& late = document.categories[0].athletes[1];
    EXPECT_THAT(late.preselected, ElementsAre(false, false));
    EXPECT_THAT(late.bonuses, ElementsAre(NoBonus));
    for (const srAthleteStruct_v3& athlete : document.categories[0].athletes) {
        ASSERT_EQ(athlete.racedata.size(), 2U);
        EXPECT_EQ(athlete.racedata[1].resultTime, 999.9);
    }
}

TEST(SelectionEdit, KeepsTheListsOfRacesAndCategoriesInStep) {
    auto document = selectionOf({{"A", {1, 2, 3}}});
    EXPECT_EQ(categoryIndex(document, "K1M"), 0U) << "MK1, written the other way";
    EXPECT_EQ(categoryIndex(document, "WK1"), 1U);
    computePercentages(document);
    removeRace(document, 1);
    EXPECT_EQ(document.races[1].location, "Race 3");
    EXPECT_EQ(document.categories[0].athletes[0].racedata[1].resultTime, 3);
    removeCategory(document, 0);
    EXPECT_EQ(document.categories[0].cat, "WK1");
    EXPECT_THAT(document.races[0].bestTimes, ElementsAre(999));
}

TEST(SelectionEdit, OffersTheAgeGroupsOfABirthYear) {
    struct Row {
        const char* year;
        std::vector<std::string> groups;
    };
    for (const Row& row : std::vector<Row>{{"2006", {"Senior", "Junior"}},
                                           {"2009", {"Senior", "Junior"}},
                                           {"2010", {"Senior"}},
                                           {"2005", {"Senior", "U23"}},
                                           {"2001", {"Senior", "U23"}},
                                           {"2000", {"Senior"}},
                                           {"", {"Senior"}},
                                           {"2006x", {"Senior"}},
                                           {"2006.0", {"Senior"}}})
        EXPECT_EQ(ageGroups(row.year), row.groups) << row.year;
}

TEST(SelectionWhatIf, ShowsTheRankingAndLeavesTheDocument) {
    auto document = selectionOf({{"A", {100, 101, 100}}, {"B", {101, 100, M}}});
    recomputeSelection(document, {});
    const AssumedResult fast{{0, 1, 2}, 90, 2};
    const auto ranking = assumedStandings(document, 0, std::span(&fast, 1), {});
    EXPECT_EQ(ranking[0].athlete, 1U) << "0 and 0 percent count, against 0 and 1";
    EXPECT_EQ(document.categories[0].athletes[1].racedata[2].resultTime, MissingTime);
}

TEST(SelectionWhatIf, FindsTheTotalThatIsNeeded) {
    auto document = selectionOf({{"A", {100, 100, 100, 103}}, {"B", {103, 103, 103, M}}});
    recomputeSelection(document, {});
    const ResultPlace last{0, 1, 3};
    EXPECT_EQ(totalForRank(document, last, 2, {}), 998.99);
    EXPECT_EQ(totalForRank(document, last, 1, {}), std::nullopt);
    auto close = selectionOf({{"A", {100, 101, 101}}, {"B", {101, 100, M}}});
    recomputeSelection(close, {});
    // A has 0 and 1 percent; B needs as much, and is first from 101 down together with A.
    const std::size_t b = namesOf(close)[0] == "B" ? 0 : 1;
    const auto needed = totalForRank(close, {0, b, 2}, 1, {});
    ASSERT_TRUE(needed);
    const AssumedResult just{{0, b, 2}, *needed, 0};
    const AssumedResult tooSlow{{0, b, 2}, *needed + 0.01, 0};
    EXPECT_EQ(assumedStandings(close, 0, std::span(&just, 1), {})[0].rank, 1);
    const auto after = assumedStandings(close, 0, std::span(&tooSlow, 1), {});
    EXPECT_NE(std::ranges::find(after, b, &Standing::athlete)->rank, 1);
}

} // namespace kavela::test
