#include "analysis/athlete_potential.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;

athletedata031 named(std::vector<std::string> names, std::vector<double> times,
                     std::string category = "K1W") {
    athletedata031 run = runOf(std::move(times));
    run.names = std::move(names);
    run.cat = std::move(category);
    return run;
}

std::vector<AthletePotential> potentialsOf(std::vector<athletedata031> runs,
                                           std::int64_t sections = 2) {
    return athletePotentials(makeRaceSet(raceOf(sections, std::move(runs)), "a.kvx"));
}

} // namespace

TEST(AthletePotential, PutsTheOwnBestSectionsTogether) {
    const auto athletes = potentialsOf({named({"Ann"}, {10, 22}), named({"Bea"}, {9, 30}),
                                        named({"Ann"}, {12, 20}), named({"Ann"}, {11, 0})});
    ASSERT_EQ(athletes.size(), 2U);
    const AthletePotential& ann = athletes[0];
    EXPECT_EQ(ann.name, "Ann");
    EXPECT_THAT(ann.runs, ElementsAre(0, 2, 3));
    EXPECT_EQ(ann.bestRun, 0U) << "of two equal totals the first";
    EXPECT_EQ(ann.bestTotal, 32);
    EXPECT_EQ(ann.potential, 30);
    EXPECT_EQ(ann.difference, 2);
    EXPECT_NEAR(ann.percent.value(), 100 * 2.0 / 30, 1e-9);
    EXPECT_EQ(athletes[1].difference, 0) << "one run is its own potential";
}

TEST(AthletePotential, ClaimsNothingThatWasNotTimed) {
    const auto athletes = potentialsOf({named({"Ann"}, {10, 20, 0}), named({"Ann"}, {0, 31, 15}),
                                        named({"Bea"}, {10, 0}), named({"Cy"}, {}),
                                        named({"Di"}, {10, 0, 15}), named({"Di"}, {0, 30, 15})},
                                       3);
    ASSERT_EQ(athletes.size(), 4U);
    EXPECT_EQ(athletes[0].potential, 45) << "every section once, though no run was full";
    for (const AthletePotential& athlete : athletes) {
        EXPECT_EQ(athlete.bestRun, std::nullopt) << athlete.name;
        EXPECT_EQ(athlete.difference, std::nullopt) << athlete.name;
    }
    EXPECT_EQ(athletes[1].potential, std::nullopt);
    EXPECT_EQ(athletes[2].potential, std::nullopt);
    EXPECT_EQ(athletes[3].potential, std::nullopt) << "the second section never by itself";
}

TEST(AthletePotential, TellsCrewsApart) {
    const auto athletes = potentialsOf({
        named({"Ann", "Bea"}, {1, 2}),
        named({"Bea", "Ann"}, {1, 2}),
        named({"Ann"}, {1, 2}),
        named({"Ann"}, {1, 2}, "C1W"),
        named({}, {1, 2}),
        named({}, {1, 2}),
        named({"Ann"}, {1, 2}),
    });
    std::vector<std::vector<std::size_t>> runs;
    for (const AthletePotential& athlete : athletes)
        runs.push_back(athlete.runs);
    EXPECT_THAT(runs, ElementsAre(ElementsAre(0, 1), ElementsAre(2, 6), ElementsAre(3),
                                  ElementsAre(4), ElementsAre(5)));
}

} // namespace kavela::test
