#include "common/number_text.h"
#include "sample/races.h"
#include "splittaking/perfect_time.h"

#include <gmock/gmock.h>

namespace kavela {
namespace {

using testing::HasSubstr;

/// Of one run the times, each beside the best of all.
splittakerdata031 raceOf(std::vector<double> best, std::vector<double> times) {
    splittakerdata031 race;
    race.info.totalsplits = static_cast<std::int64_t>(best.size());
    race.athletes.resize(2);
    race.athletes[0].names = {"Fast Ada"};
    race.athletes[0].sectioninfo.times = std::move(best);
    race.athletes[1].sectioninfo.times = std::move(times);
    return race;
}

TEST(ExpectedReasons, ExplainWhatIsStoredForEveryRun) {
    splittakerdata031 race = sample::holdRace(sample::riversideCup());
    const PerfectTime perfect = recomputeExpected(race, [](std::string_view) {});
    for (std::size_t run = 0; run < race.athletes.size(); ++run) {
        const auto reason =
            explainExpected(race.athletes, "race.kvx", "xtime/" + std::to_string(run));
        ASSERT_TRUE(reason) << run;
        const double stored = race.athletes[run].sectioninfo.xTime;
        EXPECT_EQ(reason->value, stored) << run;
        EXPECT_EQ(reason->shown, hundredthsText(stored)) << run;
        EXPECT_EQ(reason->parts.front().value, race.athletes[run].sectioninfo.xPer) << run;
    }
    const auto whole = explainExpected(race.athletes, "race.kvx", "perfect");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->value, perfect.total);
    double sum = 0;
    for (const Input& best : whole->inputs)
        sum += best.value;
    EXPECT_NEAR(sum, perfect.total, 1e-9);
    EXPECT_EQ(explainExpected(race.athletes, "race.kvx", "xtime/999"), std::nullopt);
    EXPECT_EQ(explainExpected(race.athletes, "race.kvx", "xtime/x"), std::nullopt);
}

/// The sprint that nobody timed makes a ratio that is none, which sorts last.
TEST(ExpectedReasons, TellWhichRatiosWereLeftOut) {
    const splittakerdata031 race = raceOf({10, 10, 10, 10, 10, 10}, {11, 12, 13, 14, 15, 16});
    const auto reason = explainExpected(race.athletes, "race.kvx", "xtime/1");
    ASSERT_TRUE(reason);
    const Reason& factor = reason->parts.front();
    ASSERT_EQ(factor.notes.size(), 4U);
    EXPECT_THAT(factor.notes[0], HasSubstr("split 1, 1.10, is left out: the smallest"));
    EXPECT_THAT(factor.notes[1], HasSubstr("sprint"));
    EXPECT_THAT(factor.notes[2], HasSubstr("split 2"));
    EXPECT_THAT(factor.notes[3], HasSubstr("split 6, 1.60, is left out: the largest"));
    ASSERT_EQ(factor.parts.size(), 3U);
    double sum = 0;
    for (const Reason& ratio : factor.parts)
        sum += ratio.value;
    EXPECT_DOUBLE_EQ(factor.value, sum / 3);
    EXPECT_EQ(factor.parts[0].inputs[0].place->split, 3U);
    EXPECT_EQ(factor.parts[0].inputs[0].place->run, 1U);
    EXPECT_EQ(reason->parts.back().inputs[0].name, "split 1: Fast Ada");
}

} // namespace
} // namespace kavela
