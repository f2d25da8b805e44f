#include "statistics/close.h"
#include "statistics/intervals.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace kavela::test {

namespace {

void expectClose(const Interval& interval, double low, double high, const std::string& name) {
    EXPECT_NEAR(interval.low, low, Close) << name;
    EXPECT_NEAR(interval.high, high, Close) << name;
}

} // namespace

TEST(Intervals, OfAMeanAreStudents) {
    const MeanOf mean = meanOf(std::vector{1.46, 0.4, 2.1, -0.3, 0.9});
    EXPECT_EQ(mean.n, 5U);
    EXPECT_NEAR(mean.mean, 0.912, Close);
    ASSERT_TRUE(mean.interval);
    expectClose(*mean.interval, 0.02749165584060742, 1.7965083441593928, "five");
}

TEST(Intervals, AreNoneBelowThreeValues) {
    EXPECT_EQ(meanOf({}).mean, 0);
    EXPECT_EQ(meanOf(std::vector{2.0}).mean, 2);
    EXPECT_EQ(meanOf(std::vector{2.0, 3.0}).mean, 2.5);
    EXPECT_EQ(ratioOf({}, {}).percent, 0);
    EXPECT_EQ(ratioOf(std::vector{1.0, 2.0}, std::vector{10.0, 20.0}).percent, 10);
    for (const std::vector<double>& values :
         {std::vector<double>{}, std::vector{2.0}, std::vector{2.0, 3.0}}) {
        EXPECT_EQ(meanOf(values).interval, std::nullopt) << values.size();
        EXPECT_EQ(ratioOf(values, values).interval, std::nullopt) << values.size();
    }
    EXPECT_EQ(meanOf(std::vector(3, 0.75)).interval, (Interval{0.75, 0.75})) << "three equal ones";
}

TEST(Intervals, OfARatioWeighLongSectionsMore) {
    const RatioOf ratio =
        ratioOf(std::vector{.14, 1.02, .3, -.2}, std::vector{10.5, 11.6, 9.8, 12.1});
    EXPECT_EQ(ratio.n, 4U);
    EXPECT_NEAR(ratio.percent, 2.863636363636364, Close);
    ASSERT_TRUE(ratio.interval);
    expectClose(*ratio.interval, -2.6532425321887763, 8.380515259461504, "four");
    const std::vector<double> zeros(4, 0.0);
    EXPECT_EQ(ratioOf(zeros, std::vector(4, 10.0)).interval, (Interval{0, 0})) << "never slower";
    EXPECT_EQ(ratioOf(zeros, zeros).interval, std::nullopt) << "of nothing";
    EXPECT_EQ(ratioOf(zeros, zeros).percent, 0);
    EXPECT_THROW((void)ratioOf(zeros, std::vector{1.0}), std::invalid_argument);
}

TEST(Intervals, OfARateAreWilsons) {
    struct Row {
        std::size_t count, of;
        double low, high;
    };
    for (const Row& row : {Row{0, 28, 0, 0.08811254092083343}, Row{28, 28, 0.9118874590791666, 1},
                           Row{5, 68, 0.036247705908179356, 0.14344886148111324},
                           Row{12, 24, 0.34085369821375944, 0.6591463017862406}}) {
        const std::optional<RateOf> rate = rateOf(row.count, row.of);
        ASSERT_TRUE(rate);
        EXPECT_DOUBLE_EQ(rate->rate, static_cast<double>(row.count) / static_cast<double>(row.of));
        expectClose(rate->interval, row.low, row.high, std::to_string(row.count));
        EXPECT_TRUE(rate->interval.low >= 0 && rate->interval.high <= 1);
    }
    EXPECT_EQ(rateOf(0, 28)->interval.low, 0) << "to the last digit";
    EXPECT_EQ(rateOf(1, 1)->interval.high, 1);
    EXPECT_EQ(rateOf(0, 0), std::nullopt);
    EXPECT_THROW((void)rateOf(3, 2), std::invalid_argument);
    EXPECT_THROW((void)rateOf(1, 0), std::invalid_argument);
}

TEST(Intervals, OfACountAreExact) {
    expectClose(poissonInterval(0, 1), 0, 2.9957322735539895, "none in one run");
    expectClose(poissonInterval(3, 12), 0.06814095393032943, 0.6461380439943961, "three in twelve");
    for (const double units : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW((void)poissonInterval(1, units), std::invalid_argument);
}

TEST(Intervals, OfARateTakeHalves) {
    expectClose(rateInterval(2.5, 4), 0.2629420426175107, 0.8861883010818132, "ties count half");
    EXPECT_EQ(rateInterval(2, 3), rateOf(2, 3)->interval);
    EXPECT_THROW((void)rateInterval(0, 0), std::invalid_argument);
    EXPECT_THROW((void)rateInterval(2.5, 2), std::invalid_argument);
}

TEST(Intervals, OfASlopeNeedThreeDifferentPlaces) {
    const SlopeOf slope = slopeOf(std::vector{0.0, 1.0, 2.0, 3.0}, std::vector{1.0, 3.0, 5.0, 7.0});
    EXPECT_NEAR(slope.slope, 2, Close);
    expectClose(slope.interval.value(), 2, 2, "all on the line");
    EXPECT_EQ(slopeOf(std::vector{1.0, 2.0}, std::vector{1.0, 2.0}).interval, std::nullopt);
    EXPECT_EQ(slopeOf(std::vector(4, 1.0), std::vector{1.0, 2.0, 3.0, 4.0}).slope, 0);
    EXPECT_THROW((void)slopeOf(std::vector{1.0}, {}), std::invalid_argument);
}

} // namespace kavela::test
