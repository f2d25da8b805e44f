#include "planning/gym_maximum.h"

#include "common/recorders.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace kavela::test {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// Equal, or neither of them a number.
bool same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

TEST(GymMaximum, IsTheLombardiEstimateToTwoDecimals) {
    const struct {
        std::int64_t repetitions;
        double weight;
        double table;
        double result;
    } rows[] = {
        {1, 100, 100, 100},
        {2, 95, 100, 101.82},
        {3, 93, 100, 103.8},
        {4, 90, 100, 103.38},
        {5, 87, 100, 102.19},
        {6, 85, 100, 101.68},
        {7, 83, 100, 100.83},
        {8, 80, 100, 98.49},
        {9, 77, 100, 95.92},
        {10, 75, 100, 94.42},
        {11, 73, 100, 92.78},
        {12, 70, 100, 89.75},
        {10, 100, 100 / 0.75, 125.89},
        {13, 70, 0, 90.47},
        {15, 100, 0, 131.1},
        {37, 100, 0, 143.49},
        {0, 100, 0, 0},
        {1, -20, -20, -20},
        {1, 0.125, 0.125, 0.13},
        {1, -0.125, -0.125, -0.13},
        {-1, 100, 0, NoNumber},
    };
    for (const auto& row : rows) {
        const GymEstimates found = gymEstimates(row.repetitions, row.weight);
        EXPECT_DOUBLE_EQ(found.table, row.table) << row.repetitions;
        EXPECT_TRUE(same(found.result, row.result))
            << row.repetitions << " times " << row.weight << ": " << found.result;
    }
}

TEST(GymMaximum, LogsEveryEstimate) {
    Recorder recorder;
    const GymEstimates estimates = gymEstimates(10, 100, recorder.log());
    EXPECT_NEAR(estimates.epley, 133.3333, 1e-4);
    EXPECT_NEAR(estimates.brzycki, 133.3333, 1e-4);
    EXPECT_NEAR(estimates.mcglothin, 134.0704, 1e-4);
    EXPECT_NEAR(estimates.lombardi, 125.8925, 1e-4);
    using testing::StartsWith;
    EXPECT_THAT(recorder.lines, testing::ElementsAre(StartsWith("First estimation: 133.3"),
                                                     StartsWith("Epley estimation: 133.3"),
                                                     StartsWith("Brzycki estimation: 133.3"),
                                                     StartsWith("McGlothin estimation: 134.0"),
                                                     StartsWith("Lombardi estimation: 125.8")));
}

TEST(GymMaximum, OffersOnlyWhatAFileCanHold) {
    Recorder recorder;
    EXPECT_EQ(gymEstimates(37, 100, recorder.log()).brzycki, Infinite);
    EXPECT_EQ(recorder.lines[2], "Brzycki estimation: inf");
    EXPECT_EQ(gymMaximum(37, 100), 143.49);
    EXPECT_EQ(gymMaximum(-3, 100), std::nullopt);
    EXPECT_EQ(gymMaximum(5, 1.7e308), std::nullopt);
    EXPECT_EQ(gymMaximum(std::numeric_limits<std::int64_t>::min(), 1), std::nullopt);
    EXPECT_EQ(gymMaximum(std::numeric_limits<std::int64_t>::max(), 0), 0);
}

} // namespace kavela::test
