#include "planning/calendar_day.h"
#include "planning/planning_file.h"
#include "planning/variability_import.h"
#include "planning/weeks.h"
#include "sample/season.h"

#include <gmock/gmock.h>

#include <set>

namespace kavela {
namespace {

RecognisedPlanning planningNamed(const std::string& name) {
    for (const SampleFile& file : sampleSeason())
        if (file.name == name)
            return recognisePlanningDocument(JsonDocument::fromText(file.content),
                                             [](std::string_view) {});
    throw std::out_of_range(name);
}

void expectPlannedWeek(const microsplanning_v5& week, std::set<std::string>& tests) {
    const auto monday = mondayOf(week);
    ASSERT_TRUE(monday);
    for (const sessioninmicro_v5& session : week.sessions) {
        const auto day = dayOf(session);
        ASSERT_TRUE(day);
        EXPECT_EQ(mondayOf(*day), *monday);
        EXPECT_EQ(dayOfMoment(session.trainingtime), day);
    }
    for (const std::string& test : {week.watertest, week.endurancetest, week.bloodtest})
        tests.insert(test);
    EXPECT_EQ(week.watertest.empty(), week.testdata.water.empty());
    EXPECT_EQ(week.endurancetest.empty(), week.testdata.endurance.empty());
    EXPECT_EQ(week.bloodtest.empty(), week.testdata.blood.empty());
}

} // namespace

TEST(SamplePlanning, HoldsTwoSeasonsOfFourAthletes) {
    const RecognisedPlanning found = planningNamed("planning/season.planning");
    ASSERT_TRUE(found.isCurrent());
    ASSERT_EQ(found.document.athletes.size(), 4U);
    std::set<std::string> tests;
    for (const athletesplanning_v6& athlete : found.document.athletes) {
        ASSERT_EQ(athlete.year.size(), 2U);
        for (const yearsplannings_v6& season : athlete.year) {
            EXPECT_EQ(season.micros.size(), WeeksOfSeason);
            for (const microsplanning_v5& week : season.micros)
                expectPlannedWeek(week, tests);
            EXPECT_FALSE(season.heartdata.variability.empty());
            EXPECT_FALSE(season.gymdata.empty());
        }
        EXPECT_FALSE(athlete.year[1].statisticsdata.racedata.date.empty()) << athlete.name;
        EXPECT_EQ(athlete.year[1].micros[19].event, "Riverside Cup");
    }
    EXPECT_THAT(tests, testing::ElementsAre("", "2000 m flat water", "Eight test",
                                            "Full blood count", "Lap test", "Sprint test"));
}

TEST(SamplePlanning, OlderOnesAreOfTheVersionThatTheyClaim) {
    for (const char* version : {"1", "2", "4", "5"}) {
        const RecognisedPlanning found =
            planningNamed("older/planning_v" + std::string(version) + ".planning");
        ASSERT_TRUE(found.version);
        EXPECT_EQ(found.version->label, version);
        EXPECT_EQ(found.document.athletes.at(0).year.at(0).micros.at(0).sessions.size(), 3U);
    }
}

TEST(SamplePlanning, HasAListToImport) {
    for (const SampleFile& file : sampleSeason())
        if (file.name == "planning/morning_variability.csv") {
            const VariabilityList list = parseVariability(file.content);
            EXPECT_EQ(list.measurements.size(), 9U);
            EXPECT_EQ(list.skipped.size(), 1U);
            return;
        }
    FAIL();
}

} // namespace kavela
