#include "statistics/close.h"
#include "statistics/two_way_fit.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

std::vector<double> effectsIn(const std::vector<TwoWayEffect>& effects) {
    std::vector<double> numbers;
    for (const TwoWayEffect& effect : effects)
        numbers.push_back(effect.effect);
    return numbers;
}

/// Holes, one cell filled twice, and three parts that never met.
const std::vector<TwoWayValue> Uneven{{0, 0, 450.1}, {1, 0, 451.3}, {2, 0, 453.2}, {0, 1, 460.5},
                                      {1, 1, 460.9}, {0, 2, 447.7}, {2, 2, 449.9}, {2, 2, 450.6},
                                      {3, 3, 470.1}, {4, 3, 473.0}, {3, 4, 468.2}, {4, 4, 472.9},
                                      {5, 5, 440.0}};

} // namespace

TEST(TwoWayFit, FitsAnUnevenTableOfSeveralParts) {
    const TwoWayFit fit = twoWayFit(Uneven);
    EXPECT_EQ(fit.parts, 3U);
    EXPECT_EQ(fit.degrees, 4U);
    EXPECT_THAT(effectsIn(fit.athletes),
                Pointwise(DoubleNear(Close),
                          {-1.1525641025641, -0.4064102564103, 1.5589743589744, -1.9, 1.9, 0.0}));
    EXPECT_THAT(effectsIn(fit.phases),
                Pointwise(DoubleNear(Close), {451.5333333333333, 461.4794871794872,
                                              448.7448717948718, 471.55, 470.55, 440.0}));
    EXPECT_NEAR(fit.spread.value(), 0.5596186888615, Close);
    EXPECT_NEAR(fit.interval.value().low, 0.3633633064433, Close);
    EXPECT_NEAR(fit.interval.value().high, 1.3276145815398, Close);
    EXPECT_EQ(fit.athletes[0].part, fit.phases[2].part);
    EXPECT_NE(fit.athletes[0].part, fit.athletes[3].part);
    EXPECT_NE(fit.athletes[3].part, fit.athletes[5].part);
}

TEST(TwoWayFit, DrawsFewRunsOfAnAthleteTowardsTheCommonSpread) {
    const TwoWayFit fit = twoWayFit(Uneven);
    std::vector<double> own;
    std::vector<double> shrunk;
    for (const AthleteSpread& spread : fit.spreads) {
        own.push_back(spread.own);
        shrunk.push_back(spread.shrunk);
    }
    EXPECT_THAT(own,
                Pointwise(DoubleNear(Close), {0.3611324780003, 0.3120188603766, 0.5331630337081,
                                              0.8112490369794, 0.8112490369794, 0.0}));
    EXPECT_THAT(shrunk,
                Pointwise(DoubleNear(Close), {0.5456453731495, 0.5483264799835, 0.5574315712830,
                                              0.5772090521250, 0.5772090521250, 0.5512028908357}));
    double squares = 0;
    for (const double residual : fit.residuals)
        squares += residual * residual;
    EXPECT_NEAR(squares, 4 * *fit.spread * *fit.spread, Close);
}

TEST(TwoWayFit, SaysNothingOfASpreadThatNothingTells) {
    const TwoWayFit none = twoWayFit({});
    EXPECT_EQ(none.degrees, 0U);
    EXPECT_EQ(none.parts, 0U);
    for (const std::vector<TwoWayValue>& values :
         {std::vector<TwoWayValue>{{0, 0, 450}}, std::vector<TwoWayValue>{{0, 0, 450}, {1, 0, 452}},
          std::vector<TwoWayValue>{{0, 0, 1}, {1, 0, 2}, {1, 1, 9}, {2, 1, 4}}}) {
        const TwoWayFit fit = twoWayFit(values);
        EXPECT_EQ(fit.degrees, 0U);
        EXPECT_EQ(fit.spread, std::nullopt);
        EXPECT_TRUE(fit.spreads.empty());
        EXPECT_THAT(fit.residuals, testing::Each(DoubleNear(0, Close)));
    }
    const TwoWayFit two = twoWayFit(std::vector<TwoWayValue>{{0, 0, 4}, {0, 0, 6}});
    EXPECT_NEAR(two.spread.value(), std::sqrt(2), Close);
    EXPECT_EQ(two.interval, std::nullopt) << "of two values";
    const TwoWayFit equal = twoWayFit(std::vector<TwoWayValue>(5, {0, 0, 7}));
    EXPECT_EQ(equal.spread, 0.0);
    EXPECT_EQ(equal.interval, (Interval{0, 0}));
}

TEST(TwoWayFit, LetsNumbersLieBetweenThoseWithAValue) {
    const std::vector<TwoWayValue> sparse{{2, 7, 1}, {2, 9, 3}, {5, 7, 2}, {5, 9, 5}};
    const TwoWayFit fit = twoWayFit(sparse);
    EXPECT_EQ(fit.parts, 1U);
    EXPECT_EQ(fit.degrees, 1U);
    EXPECT_EQ(fit.athletes[0].runs, 0U);
    EXPECT_EQ(fit.spreads[0].shrunk, 0);
    EXPECT_NEAR(fit.athletes[5].effect - fit.athletes[2].effect, 1.5, Close);
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW((void)twoWayFit(std::vector<TwoWayValue>{{0, 0, NoNumber}}),
                 std::invalid_argument);
}

/// Each athlete met the next one only, in a phase of their own: the first and the last are compared
/// through all others.
TEST(TwoWayFit, ComparesAthletesThroughLongChains) {
    constexpr std::size_t Athletes = 150;
    std::vector<TwoWayValue> values;
    const auto value = [](std::size_t athlete, std::size_t phase) {
        return TwoWayValue{athlete, phase,
                           450 + 0.1 * static_cast<double>(athlete) +
                               static_cast<double>(phase * 7 % 11)};
    };
    for (std::size_t i = 0; i + 1 < Athletes; ++i) {
        values.push_back(value(i, i));
        values.push_back(value(i + 1, i));
        values.push_back(value(i + 1, i));
    }
    values[0].value += 0.3;
    values[1].value += 0.3;
    values[2].value -= 0.3;
    const TwoWayFit fit = twoWayFit(values);
    EXPECT_EQ(fit.parts, 1U);
    EXPECT_NEAR(fit.athletes.back().effect - fit.athletes[1].effect, 14.8, 1e-8);
    EXPECT_NEAR(fit.athletes[1].effect - fit.athletes[0].effect, -0.2, 1e-8);
    EXPECT_NEAR(fit.spread.value(), std::sqrt(0.18 / static_cast<double>(fit.degrees)), Close);
}

TEST(TwoWayFit, TurnsALogarithmsSpreadIntoPercent) {
    EXPECT_NEAR(variationOf(1.1), 1.1060722, 1e-7);
    EXPECT_EQ(variationOf(0), 0);
}

} // namespace kavela::test
