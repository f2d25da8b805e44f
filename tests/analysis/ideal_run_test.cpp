#include "analysis/ideal_run.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::Optional;

RaceSet setOf(std::int64_t sections, std::vector<std::vector<double>> runs) {
    std::vector<athletedata031> athletes;
    for (std::vector<double>& times : runs)
        athletes.push_back(runOf(std::move(times)));
    return makeRaceSet(raceOf(sections, std::move(athletes)), "a.kvx");
}

} // namespace

TEST(IdealRun, TakesTheBestOfEverySectionAndNeverATimeOfZero) {
    const IdealRun ideal =
        idealRun(setOf(3, {{10, 0, 11}, {9.5, 20, 13}, {9.5, 19, 12.5}, {0, 18, 12}}));
    ASSERT_EQ(ideal.sections.size(), 3U);
    EXPECT_EQ(ideal.sections[0].time, 9.5);
    EXPECT_THAT(ideal.sections[0].run, Optional(1U)) << "the first of equal ones";
    EXPECT_THAT(ideal.sections[1].run, Optional(2U)) << "not one that began with the first section";
    EXPECT_THAT(ideal.sections[2].run, Optional(3U)) << "also of a run that is not full";
    EXPECT_THAT(ideal.total, Optional(40.5));
    EXPECT_THAT(ideal.fastest, Optional(2U)) << "of the full runs";
}

TEST(IdealRun, HasATotalOnlyForTheWholeCourse) {
    struct Row {
        const char* name;
        std::int64_t sections;
        std::vector<std::vector<double>> runs;
        std::size_t listed;
        bool hasTotal;
    };
    for (const Row& row :
         {Row{"every section timed", 3, {{1, 2, 0}, {0, 9, 3}}, 3, true},
          Row{"a section timed with the one before only", 2, {{1, 0}, {0, 2}}, 2, false},
          Row{"a section behind a wrong mark", 2, {{1, 0}, {-1, 2}}, 2, false},
          Row{"a section nobody came to", 3, {{1, 2}}, 2, false},
          Row{"a section nobody was timed in", 2, {{1, 0}, {2, 0}}, 2, false},
          Row{"times beyond the course", 1, {{1, 2}}, 1, true},
          Row{"absurd course", INT64_MAX, {{1, 2}}, 2, false},
          Row{"negative course", -1, {{1}}, 0, false}, Row{"no runs", 2, {}, 0, false}}) {
        const IdealRun ideal = idealRun(setOf(row.sections, row.runs));
        EXPECT_EQ(ideal.sections.size(), row.listed) << row.name;
        EXPECT_EQ(ideal.total.has_value(), row.hasTotal) << row.name;
    }
}

TEST(IdealRun, OfSomeRunsLeavesOutTheOthers) {
    const std::vector<std::size_t> some{1, 2};
    const IdealRun ideal = idealRun(setOf(1, {{5}, {7}, {6}}), some);
    EXPECT_THAT(ideal.sections[0].run, Optional(2U));
    EXPECT_THAT(ideal.total, Optional(6.0));
}

} // namespace kavela::test
