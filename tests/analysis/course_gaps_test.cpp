#include "analysis/course_gaps.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

constexpr double Tolerance = 1e-9;

/// Three sections: the first run is the fastest but has penalties, the last one stopped early.
RaceSet smallRace() {
    splittakerdata031 race = raceOf(
        3, {runOf({10, 20, 30}), runOf({11, 19, 31}), runOf({12, 21, 30}), runOf({9, 22, 0})});
    race.athletes[0].sectioninfo.pens = {0, 2, 0};
    race.athletes[0].sectioninfo.totalpen = 2;
    race.athletes[3].sectioninfo.pens = {0, 0, 50};
    return makeRaceSet(race, "a.kvx");
}

std::vector<double> accumulated(const std::vector<SectionGap>& gaps) {
    std::vector<double> values;
    for (const SectionGap& gap : gaps)
        values.push_back(gap.accumulated);
    return values;
}

} // namespace

TEST(CourseGaps, AddUpAlongTheCourseAndEndWhereATimeIsMissing) {
    struct Row {
        const char* name;
        std::vector<double> times;
        std::vector<double> reference;
        std::vector<double> accumulated;
    };
    for (const Row& row :
         {Row{"behind, then ahead", {11, 19, 30}, {10, 20.5, 30}, {1, -0.5, -0.5}},
          Row{"run stopped", {11, 0, 30}, {10, 20, 30}, {1}},
          Row{"reference stopped", {11, 20, 30}, {10, 20, 0}, {1, 1}},
          Row{"first section missed", {0, 20}, {10, 20}, {}},
          Row{"shorter reference", {11, 21}, {10}, {1}}, Row{"no reference", {11, 21}, {}, {}},
          Row{"sum too large", {1, 1e308, 1e308}, {1, -1e308, 1}, {0}}})
        EXPECT_THAT(accumulated(courseGaps(row.times, row.reference)),
                    Pointwise(DoubleNear(Tolerance), row.accumulated))
            << row.name;
    EXPECT_NEAR(courseGaps(std::vector{11.0, 19.0}, std::vector{10.0, 20.5})[1].difference, -1.5,
                Tolerance);
}

TEST(CourseGaps, TakeTheReferenceThatTheCoachChose) {
    const RaceSet set = smallRace();
    using Kind = CourseReferenceKind;
    struct Row {
        const char* name;
        CourseReference reference;
        bool penaltiesIncluded;
        std::vector<double> times;
    };
    for (const Row& row :
         {Row{"best run", {Kind::BestRun}, false, {10, 20, 30}},
          Row{"best run by its result", {Kind::BestRun}, true, {11, 19, 31}},
          Row{"median of those timed", {Kind::Median}, false, {10.5, 20.5, 30}},
          Row{"median with penalties", {Kind::Median}, true, {10.5, 21.5, 30}},
          Row{"ideal", {Kind::Ideal}, false, {9, 19, 30}},
          Row{"ideal has no penalties", {Kind::Ideal}, true, {9, 19, 30}},
          Row{"run that stopped, its penalty without a time", {Kind::Run, 3}, true, {9, 22, 0}},
          Row{"run that is not there", {Kind::Run, 4}, false, {}},
          Row{"times from elsewhere", {Kind::Times, 0, "X", {1, 2}}, true, {1, 2}}})
        EXPECT_THAT(referenceTimes(set, row.reference, row.penaltiesIncluded),
                    Pointwise(DoubleNear(Tolerance), row.times))
            << row.name;
}

TEST(CourseGaps, HaveNoBestRunWhereNoneIsFull) {
    const RaceSet set = makeRaceSet(raceOf(3, {runOf({1, 2}), runOf({1, 2, 0})}), "a.kvx");
    EXPECT_EQ(bestRun(set, false), std::nullopt);
    EXPECT_EQ(bestRun(set, true), std::nullopt);
    EXPECT_THAT(referenceTimes(set, {}, false), IsEmpty());
}

TEST(CourseGaps, CountTheSectionsThatSomeRunCameTo) {
    const auto sections = [](std::int64_t course) {
        return timedSections(makeRaceSet(raceOf(course, {runOf({1}), runOf({1, 2, 3})}), "a.kvx"));
    };
    EXPECT_THAT((std::vector{sections(2), sections(3), sections(INT64_MAX), sections(-1)}),
                ElementsAre(2, 3, 3, 0));
}

} // namespace kavela::test
