#include "analysis/section_distribution.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

/// The distribution of the only section of a course.
SectionDistribution distributionOf(const std::vector<double>& times,
                                   const std::vector<std::int64_t>& penalties = {}) {
    splittakerdata031 race = raceOf(1, {});
    for (std::size_t i = 0; i < times.size(); ++i) {
        race.athletes.push_back(runOf({times[i]}));
        if (i < penalties.size())
            race.athletes[i].sectioninfo.pens = {penalties[i]};
    }
    return sectionDistributions(makeRaceSet(race, "a.kvx"), !penalties.empty()).at(0);
}

} // namespace

TEST(SectionDistribution, TellsQuartilesAndWhiskersOfTheTimesTaken) {
    struct Row {
        const char* name;
        std::vector<double> times;
        std::vector<double> figures; ///< minimum, quartiles, maximum, whiskers
    };
    for (const Row& row : {Row{"zeros never count", {0, 4, 0, 2, 3, 1, 5}, {1, 2, 3, 4, 5, 1, 5}},
                           Row{"between two ranks", {1, 2}, {1, 1.25, 1.5, 1.75, 2, 1, 2}},
                           Row{"one time", {7}, {7, 7, 7, 7, 7, 7, 7}},
                           Row{"a swim lies outside", {1, 2, 3, 4, 60}, {1, 2, 3, 4, 60, 1, 4}},
                           Row{"times of a damaged file",
                               {-5, 1, 1, 1.7e308, 1.7e308, 1.7e308},
                               {1, 1, 1.7e308, 1.7e308, 1.7e308, 1, 1.7e308}},
                           Row{"nobody was timed", {0, 0}, {0, 0, 0, 0, 0, 0, 0}}}) {
        const SectionDistribution s = distributionOf(row.times);
        EXPECT_EQ((std::vector{s.minimum, s.lowerQuartile, s.median, s.upperQuartile, s.maximum,
                               s.lowerWhisker, s.upperWhisker}),
                  row.figures)
            << row.name;
    }
}

TEST(SectionDistribution, KnowsWhoseTimesTheyAre) {
    const auto order = [](const SectionDistribution& section) {
        std::vector<std::size_t> runs;
        for (const SectionValue& value : section.values)
            runs.push_back(value.run);
        return runs;
    };
    EXPECT_THAT(order(distributionOf({3, 0, 1, 3})), testing::ElementsAre(2, 0, 3));
    EXPECT_THAT(order(distributionOf({3, 0, 2, 4}, {0, 50, 2, 0})), testing::ElementsAre(0, 2, 3))
        << "with penalties: the third is level with the last";
}

} // namespace kavela::test
