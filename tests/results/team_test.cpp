#include "results/athlete_summary.h"
#include "results/categorization.h"
#include "results/phase_averages.h"
#include "results/team_file.h"
#include "results/team_seasons.h"

#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;
using testing::SizeIs;

struct Race {
    const char* event;
    std::int64_t finalPos;
};
using Seasons = std::vector<std::vector<Race>>;

myTeamStruct athleteWith(const Seasons& seasons, const char* category = "MK1") {
    myTeamStruct athlete{"BROOK Adam", 1999, {{category, {}, {}}}, false};
    std::int64_t year = 2025;
    for (const std::vector<Race>& races : seasons) {
        mtSeasonStruct season;
        season.year = year--;
        for (const Race& race : races)
            season.races.push_back({"Weirton", race.event, race.finalPos, {}});
        athlete.cats[0].seasons.push_back(season);
    }
    return athlete;
}

std::string labelOf(const Seasons& seasons) {
    const auto counted = categorize(athleteWith(seasons), "MK1");
    return counted ? counted->label : "none";
}

mtPhaseStruct teamRun(std::vector<double> splits, std::vector<double> pers, std::int64_t pen = 0) {
    return {"Final", 1, 0, pen, std::move(splits), std::move(pers), {}};
}

} // namespace

TEST(AthleteSummary, CountsEveryRaceWithoutALowerBound) {
    const myTeamStruct athlete = athleteWith({{{"WCH", 0}, {"EUROS", 3}, {"WC1", 1}, {"WC2", 4}},
                                              {{"WC3", 6}, {"WC4", 7}, {"ICF", 15}, {"ICF", 16}},
                                              {{"WCH", -2}}});
    EXPECT_EQ(athleteSummary(athlete, "MK1"), (AthleteSummary{4, 3, 6, 8}));
    EXPECT_EQ(athleteSummary(athlete, "mk1"), AthleteSummary{}) << "labels are exact";
    EXPECT_THAT(summaryLines({4, 3, 6, 8}),
                ElementsAre("Medals: 4", "Medals in SP or EP: 3", "Top 6s: 6", "Top 15s: 8"));
}

TEST(Categorization, LabelsByTheFirstRuleThatHolds) {
    struct Row {
        const char* name;
        Seasons seasons;
        const char* label;
    };
    for (const Row& row : std::vector<Row>{
             {"a championship bronze", {{{"WC1", 1}, {"WC2", 2}}, {{"EUROS", 3}}}, "Medalist "},
             {"a world championship medal alone", {{{"WCH", 2}}, {}}, "Medalist "},
             {"three medals elsewhere", {{{"WC1", 1}, {"WC2", 3}}, {{"ICF", 2}}}, "Medalist "},
             {"two medals and a top 6", {{{"WC1", 1}, {"WC2", 3}}, {{"WCH", 6}}}, "Medal ready "},
             {"two medals only", {{{"WC1", 1}, {"WC2", 3}}, {}}, "Senior development "},
             {"four top 15s",
              {{{"WC1", 6}, {"WC2", 4}, {"WC3", 15}}, {{"ICF", 7}}},
              "Final ready "},
             {"three top 15s",
              {{{"WC1", 6}, {"WC2", 4}, {"WC3", 16}}, {{"ICF", 15}}},
              "Senior development "},
             {"medals in the third season",
              {{{"ICF", 20}}, {}, {{"WCH", 1}, {"EUROS", 1}, {"WC1", 1}}},
              "Senior development "},
             {"no position is no medal", {{{"WCH", 0}, {"ICF", 30}}, {}}, "Senior development "}})
        EXPECT_EQ(labelOf(row.seasons), std::string("Categorization: ") + row.label) << row.name;
}

TEST(Categorization, TakesOnlyAthletesWhoComeIntoQuestion) {
    EXPECT_EQ(labelOf({{{"WCH", 1}}}), "none") << "one season";
    EXPECT_EQ(labelOf({{{"WCH", 0}}, {}, {{"WCH", 1}}}), "none") << "no position in the first two";
    myTeamStruct retired = athleteWith({{{"WCH", 1}}, {}});
    retired.isretired = true;
    const myTeamToSaveStruct team{
        {retired, athleteWith({{{"WCH", 1}}, {}}, "WC1"), athleteWith({{{"WC1", 9}}, {}})}};
    EXPECT_THAT(categorizeTeam(team, "MK1"), SizeIs(1));
    EXPECT_THAT(categorizeTeam(team, "MK"), IsEmpty());
}

TEST(Categorization, WritesItsCountsAndLeavesOutRacesWithoutPosition) {
    const Seasons seasons{{{"WCH", 3}, {"WC1", 0}, {"WC2", 8}}, {{"EUROS", 1}, {"ICF", 40}}};
    const auto counted = categorize(athleteWith(seasons), "MK1");
    ASSERT_TRUE(counted);
    EXPECT_THAT(counted->lines, ElementsAre("Medals: 2 (with 2 in EP or SP)", "Top 6: 2",
                                            "Top 15: 3", "International events: 4"));
    ASSERT_THAT(counted->races, SizeIs(4));
    EXPECT_EQ(counted->races[2].event, "EUROS");
    EXPECT_EQ(counted->races[2].year, 2024);
    EXPECT_EQ(categorize(athleteWith(seasons, "MX1"), "MX1")->lines[1], "Top 8: 2");
    EXPECT_EQ(categorize(athleteWith({{{"ICF", 1}}, {}}), "MK1")->lines[0], "Medals: 1");
}

TEST(Categorization, BandsEndAtThreeSixNineAndFifteen) {
    using enum PositionBand;
    std::vector<PositionBand> bands;
    for (const std::int64_t place : {0, 1, 3, 4, 6, 7, 9, 10, 15, 16})
        bands.push_back(positionBand(place));
    EXPECT_THAT(bands, ElementsAre(None, Medal, Medal, Top6, Top6, Top9, Top9, Top15, Top15, None));
}

TEST(PhaseAverages, WeighEachSplitOverTheRunsThatHaveIt) {
    std::vector<mtRaceStruct> races(1);
    races[0].phases = {teamRun({11, 20}, {10, 0}, 2), teamRun({10, 30}, {0, 50}),
                       teamRun({}, {}, 52)};
    races[0].phases[2].phase = "Heats 1";
    const auto averages = phaseAverages(races);
    ASSERT_THAT(averages, SizeIs(2));
    EXPECT_EQ(averages[0].phase, "Heats 1");
    EXPECT_THAT(averages[0].per, IsEmpty());
    EXPECT_THAT(averages[0].pendis, ElementsAre(0, 0, 0, 0, 100));
    // Ten and twenty seconds are the fastest splits of both runs: 31 / 30 and 40 / 30 in all.
    const double whole = (100.0 / 30 + 1000.0 / 30) / 2;
    EXPECT_THAT(averages[1].per, Pointwise(DoubleNear(1e-9), std::vector<double>{5, 25, whole}));
    EXPECT_THAT(averages[1].peraccu, Pointwise(DoubleNear(1e-9), std::vector<double>{5, whole}));
    EXPECT_THAT(averages[1].pendis, ElementsAre(50, 50, 0, 0, 0));
}

TEST(TeamFile, ReadsWhatItWrote) {
    const TempFolder folder;
    myTeamStruct athlete = athleteWith({{{"WCH", 1}}, {{"ICF", 2}}});
    athlete.cats[0].seasons[0].races[0].phases = {teamRun({10}, {1.5}, 2)};
    recomputeAverages(athlete);
    saveTeamFile({{athlete}}, folder.path() / "a.kvteam");
    const myTeamToSaveStruct team = readTeamFile(folder.path() / "a.kvteam");
    ASSERT_TRUE(athleteNamed(team, "adam brook"));
    EXPECT_EQ(athleteNamed(team, "Eve Brook"), nullptr);
    EXPECT_EQ(athleteNamed(team, "BROOK Adam")->cats[0].aves[0].per, athlete.cats[0].aves[0].per);
    EXPECT_THROW((void)readTeamFile(folder.add("b.kvteam", R"({"realMyTeam":[{"name":"A"}]})")),
                 DecodeError);
}

} // namespace kavela::test
