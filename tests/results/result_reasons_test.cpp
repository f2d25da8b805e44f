#include "common/number_text.h"
#include "results/categorization.h"
#include "results/result_rules.h"
#include "results/selection_ranking.h"
#include "sample/selection.h"
#include "sample/team.h"

#include <gmock/gmock.h>

#include <array>
#include <set>

/// Scores and levels explain themselves.
namespace kavela {
namespace {

selectionracesStruct_v3 sampleSelection(BonusKind bonus) {
    selectionracesStruct_v3 document = sample::springSelection();
    recomputeSelection(document, bonus);
    return document;
}

/// Every athlete of every category, with and without the bonus, by both times.
TEST(ScoreReasons, ExplainEveryScoreOfTheSample) {
    std::set<const Rule*> fates;
    for (const BonusKind bonus : {BonusKind(), BonusKind(0)}) {
        const selectionracesStruct_v3 document = sampleSelection(bonus);
        for (std::size_t category = 0; category < document.categories.size(); ++category)
            for (const auto times : {SelectionTimes::Official, SelectionTimes::Expected})
                for (const Standing& standing : standings(document.categories[category],
                                                          document.races.size(), bonus, times)) {
                    const auto& athlete = document.categories[category].athletes[standing.athlete];
                    const std::string id = "score/" + athlete.name;
                    const auto reason = explainScore(document, category, bonus, times, id);
                    ASSERT_TRUE(reason) << id;
                    EXPECT_EQ(reason->value, standing.score.score) << id;
                    EXPECT_EQ(reason->shown, hundredthsText(standing.score.score)) << id;
                    EXPECT_EQ(reason->parts.back().value, standing.score.sum) << id;
                    double counted = 0;
                    for (const Reason& part : reason->parts) {
                        fates.insert(part.rule);
                        counted += part.rule == &ruleOf(ResultRule::Counted) ? part.value : 0;
                    }
                    EXPECT_NEAR(counted / 3, reason->value, 1e-9) << id;
                }
    }
    for (const ResultRule fate :
         {ResultRule::Counted, ResultRule::DroppedWorst, ResultRule::DroppedForBonus})
        EXPECT_TRUE(fates.contains(&ruleOf(fate)));
}

TEST(ScoreReasons, MakeEachPercentageFromItsTime) {
    const selectionracesStruct_v3 document = sampleSelection({});
    const srAthleteStruct_v3& athlete = document.categories[0].athletes[1];
    for (std::size_t race = 0; race < document.races.size(); ++race) {
        const auto reason = explainScore(document, 0, {}, SelectionTimes::Official,
                                         "score/" + athlete.name + '/' + std::to_string(race));
        ASSERT_TRUE(reason);
        EXPECT_EQ(reason->value, athlete.racedata[race].resultPer) << race;
        if (isMissing(athlete.racedata[race]))
            continue;
        ASSERT_EQ(reason->inputs.size(), 3U) << race;
        EXPECT_EQ(reason->inputs[2].value, document.races[race].bestTimes[0]);
    }
    EXPECT_EQ(explainScore(document, 0, {}, SelectionTimes::Official, "score/Nobody"),
              std::nullopt);
    EXPECT_EQ(
        explainScore(document, 0, {}, SelectionTimes::Official, "score/" + athlete.name + "/99"),
        std::nullopt);
}

/// A slash in the name of a crew is not the one in front of a race.
TEST(ScoreReasons, FindCrewsOfTwo) {
    selectionracesStruct_v3 document = sampleSelection({});
    document.categories[0].athletes[0].name = "BELL A / BELL B";
    EXPECT_NE(explainScore(document, 0, {}, SelectionTimes::Official, "score/BELL A / BELL B"),
              std::nullopt);
    EXPECT_NE(explainScore(document, 0, {}, SelectionTimes::Official, "score/BELL A / BELL B/1"),
              std::nullopt);
}

TEST(CategoryReasons, ExplainEveryLevelAndCountOfTheSample) {
    constexpr std::array<std::string_view, 4> Counts{"medals", "top6", "top15", "events"};
    const myTeamToSaveStruct team = sample::sampleTeam();
    std::set<const Rule*> levels;
    for (const char* category : team::Categories)
        for (const Categorization& athlete : categorizeTeam(team, category)) {
            const std::string id = "category/" + athlete.name;
            const auto reason = explainCategory(team, category, id);
            ASSERT_TRUE(reason) << id;
            EXPECT_EQ(reason->shown + ' ', athlete.label) << id;
            levels.insert(reason->rule);
            for (std::size_t i = 0; i < Counts.size(); ++i) {
                const auto count =
                    explainCategory(team, category, id + '/' + std::string(Counts[i]));
                ASSERT_TRUE(count) << id << Counts[i];
                EXPECT_EQ(count->shown, athlete.lines[i]) << id;
                EXPECT_EQ(count->value, static_cast<double>(count->inputs.size()))
                    << id << ": as many as the races that are named";
            }
        }
    EXPECT_EQ(levels.size(), 4U);
    EXPECT_EQ(explainCategory(team, "MK1", "category/Nobody"), std::nullopt);
}

} // namespace
} // namespace kavela
