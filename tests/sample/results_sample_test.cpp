#include "results/categorization.h"
#include "results/selection_attach.h"
#include "results/selection_file.h"
#include "sample/races.h"
#include "sample/season.h"
#include "sample/selection.h"
#include "sample/team.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <set>

namespace kavela {
namespace {

/// What a newcomer, or a test of another tool, comes to the sample for.
TEST(SampleTeam, HoldsEveryLevelAndWhoDoesNotComeIntoQuestion) {
    const myTeamToSaveStruct team = sample::sampleTeam();
    EXPECT_EQ(team.realMyTeam.size(), 12U);
    std::set<std::string> labels;
    for (const char* category : team::Categories)
        for (const Categorization& athlete : categorizeTeam(team, category))
            labels.insert(athlete.label);
    EXPECT_EQ(labels.size(), 4U);
    const auto has = [&](auto kind) { return std::ranges::any_of(team.realMyTeam, kind); };
    EXPECT_TRUE(has([](const myTeamStruct& athlete) { return athlete.isretired; }));
    EXPECT_TRUE(has([](const myTeamStruct& athlete) { return athlete.cats.size() > 1; }));
    EXPECT_TRUE(has([](const myTeamStruct& a) { return a.cats[0].seasons.size() < 2; }));
    EXPECT_TRUE(has([](const myTeamStruct& a) { return a.cats[0].seasons.size() == 4; }));
}

TEST(SampleSelection, HoldsEveryCaseOfARanking) {
    selectionracesStruct_v3 document = sample::springSelection();
    EXPECT_EQ(document.races.size(), 4U);
    EXPECT_EQ(document.categories.size(), 5U);
    std::set<std::string> kinds;
    for (const srCategoryStruct_v3& category : document.categories) {
        for (const Standing& standing : standings(category, 4, 0)) {
            const srAthleteStruct_v3& athlete = category.athletes[standing.athlete];
            kinds.insert(standing.score.bonus ? "bonus" : "none");
            for (std::size_t group = 0; group < athlete.preselected.size(); ++group)
                if (athlete.preselected[group])
                    kinds.insert("group " + std::to_string(group));
            for (const saRaceStruct& result : athlete.racedata)
                kinds.insert(isMissing(result) ? "missing" : "result");
        }
        const bool hasTie =
            std::ranges::adjacent_find(category.athletes, {}, &srAthleteStruct_v3::result) !=
            category.athletes.end();
        kinds.insert(hasTie ? "tie" : "no tie");
    }
    EXPECT_THAT(kinds, testing::IsSupersetOf(
                           {"bonus", "none", "group 0", "group 1", "missing", "result", "tie"}));
    const auto before = document.categories[0].athletes[0].racedata[0].resultTime;
    const Attached attached =
        attachRace(document, 0, std::array{sample::holdRace(sample::springOpener())});
    EXPECT_GT(attached.entered.results.size(), 20U) << "the first race is one of the sample's own";
    EXPECT_EQ(document.categories[0].athletes[0].racedata[0].resultTime, before);
}

TEST(SampleSelection, FilesAreOfTheLayoutThatTheyClaim) {
    std::set<std::string> labels;
    for (const SampleFile& file : sampleSeason()) {
        if (file.name.extension() != ".kvsr")
            continue;
        const auto found = recogniseSelectionDocument(JsonDocument::fromText(file.content));
        ASSERT_TRUE(found.version) << file.name;
        labels.insert(file.name.stem().string() + ' ' + std::string(found.version->label));
    }
    EXPECT_THAT(labels,
                testing::ElementsAre("selection_v1 1", "selection_v2 2", "spring_selection 3"));
}

} // namespace
} // namespace kavela
