#include "splittaking/expected_split.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Optional;

auto seconds(double value) {
    return Optional(DoubleNear(value, 1e-9));
}

const std::vector<SectionTimes> Taken{timedSections("K1M", {20, 10, 30}),
                                      timedSections("K1M", {22, 11, 34}),
                                      timedSections("K1M", {21, 50, 0})}; // swam in the second

TEST(ExpectedSplit, IsWhereTheOthersHaveIt) {
    const SectionTimes fresh{"K1M", {}};
    EXPECT_THAT(expectedSection(fresh, 0, Taken), seconds(21));
    EXPECT_THAT(expectedSection(fresh, 1, Taken), seconds(11)) << "one who swam changes little";
    EXPECT_THAT(expectedSection(fresh, 2, Taken), seconds(32)) << "who has no time does not count";
    EXPECT_EQ(expectedSection(fresh, 3, Taken), std::nullopt);
    EXPECT_EQ(expectedSection(fresh, 0, {}), std::nullopt);
    EXPECT_THAT(expectedSections(fresh, 0, 3, Taken), seconds(64));
    EXPECT_EQ(expectedSections(fresh, 1, 4, Taken), std::nullopt);
}

TEST(ExpectedSplit, FollowsThePaceOfTheRun) {
    const SectionTimes slow = timedSections("K1M", {23.1, 12.1});
    EXPECT_THAT(expectedSection(slow, 2, Taken), seconds(32 * 1.1));
    const SectionTimes wrong = timedSections("K1M", {210});
    EXPECT_THAT(expectedSection(wrong, 1, Taken), seconds(22)) << "a wrong mark leads not far away";
}

TEST(ExpectedSplit, GoesByTheSameCategoryAsSoonAsOneHasIt) {
    std::vector<SectionTimes> others = Taken;
    others.push_back(timedSections("C1W", {26, 14}));
    EXPECT_THAT(expectedSection({"C1W", {}}, 0, others), seconds(26));
    EXPECT_THAT(expectedSection({"C1W", {}}, 2, others), seconds(32)) << "none of its own has it";
    EXPECT_THAT(expectedSection({"C2M", {}}, 0, others), seconds(21.5));
}

TEST(ExpectedSplit, LeavesOutTimesThatSpanAnUntakenSplit) {
    EXPECT_THAT(timedSections("", {10, 0, 25, 12}).times, ElementsAre(10, 0, 0, 12));
    EXPECT_THAT(timedSections("", {0, 0, 25}).times, ElementsAre(0, 0, 0));
    EXPECT_THAT(timedSections("", {25}).times, ElementsAre(25));
}

} // namespace
} // namespace kavela::test
