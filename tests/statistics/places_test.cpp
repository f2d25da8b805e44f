#include "statistics/places.h"

#include <gmock/gmock.h>

#include <limits>
#include <numeric>
#include <stdexcept>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::Each;
using testing::Pointwise;

std::vector<BoatOdds> fieldOf(std::size_t boats) {
    std::vector<BoatOdds> field;
    for (std::size_t i = 0; i < boats; ++i)
        field.push_back({static_cast<double>(i * 7 % boats) / 5,
                         0.6 + static_cast<double>(i % 4) / 3, static_cast<double>(i % 5) / 20});
    return field;
}

} // namespace

TEST(Places, AreThoseOfABoatAmongTheOthers) {
    const auto chances =
        placesOf(std::vector<BoatOdds>{{0, 1.2, 0.05}, {0.5, 0.8, 0.2}, {2, 3, 0}, {1, 1, 0.1}});
    const std::vector<std::vector<double>> expected{
        {0.4588361510577, 0.2823726592766, 0.1641004102037, 0.0946907794620},
        {0.1870950873027, 0.3129234103126, 0.2442613191201, 0.2557201832646},
        {0.2258637103507, 0.1339928810275, 0.2489165074725, 0.3912269011494},
        {0.1282050512889, 0.2707110493834, 0.3427217632037, 0.2583621361240}};
    ASSERT_EQ(chances.size(), expected.size());
    for (std::size_t boat = 0; boat < expected.size(); ++boat) {
        EXPECT_THAT(chances[boat].places, Pointwise(DoubleNear(1e-6), expected[boat])) << boat;
        EXPECT_NEAR(chances[boat].medal, 1 - expected[boat][3], 1e-6);
    }
    EXPECT_NEAR(chances[0].expected, 1.8946458179, 1e-6);
}

TEST(Places, AddUpByBoatAndByPlace) {
    const auto chances = placesOf(fieldOf(30));
    std::vector<double> byPlace(30, 0);
    double expected = 0;
    for (const PlaceChances& boat : chances) {
        EXPECT_NEAR(std::accumulate(boat.places.begin(), boat.places.end(), 0.0), 1, 1e-9);
        for (std::size_t place = 0; place < 30; ++place)
            byPlace[place] += boat.places[place];
        expected += boat.expected;
    }
    EXPECT_THAT(byPlace, Each(DoubleNear(1, 1e-6)));
    EXPECT_NEAR(expected, 30 * 31 / 2.0, 1e-6);
}

TEST(Places, AreEvenAmongEquals) {
    for (const double spread : {1e-12, 1.0})
        for (const double fail : {0.0, 0.3, 1.0})
            for (const PlaceChances& boat :
                 placesOf(std::vector<BoatOdds>(4, {450, spread, fail}))) {
                EXPECT_THAT(boat.places, Each(DoubleNear(0.25, 1e-4)));
                EXPECT_NEAR(boat.expected, 2.5, 1e-4);
            }
}

TEST(Places, PutMissedGatesBehindAllOthers) {
    const auto chances = placesOf(std::vector<BoatOdds>{{0, 1, 1}, {50, 1, 0}, {60, 1, 1}});
    EXPECT_THAT(chances[0].places, Pointwise(DoubleNear(1e-9), {0.0, 1.0, 0.0}));
    EXPECT_THAT(chances[1].places, Pointwise(DoubleNear(1e-9), {1.0, 0.0, 0.0}));
    EXPECT_THAT(chances[2].places, Pointwise(DoubleNear(1e-9), {0.0, 0.0, 1.0}));
}

TEST(Places, OfOneBoatAndOfNoneAreSure) {
    EXPECT_TRUE(placesOf({}).empty());
    const auto alone = placesOf(std::vector<BoatOdds>{{450, 1.3, 0.2}});
    EXPECT_NEAR(alone.at(0).places.at(0), 1, 1e-12);
    EXPECT_NEAR(alone[0].medal, 1, 1e-12);
}

TEST(Places, RefuseOddsThatAreNone) {
    constexpr double Endless = std::numeric_limits<double>::infinity();
    for (const BoatOdds& odds :
         {BoatOdds{0, 0, 0}, BoatOdds{0, -1, 0}, BoatOdds{0, 1, 1.01}, BoatOdds{0, 1, -0.1},
          BoatOdds{Endless, 1, 0}, BoatOdds{0, Endless, 0}, BoatOdds{0, 1, Endless - Endless}})
        EXPECT_THROW((void)placesOf(std::vector<BoatOdds>{{0, 1, 0}, odds}), std::invalid_argument);
}

TEST(Places, DrawFewRunsTowardsEveryonesMissedGates) {
    EXPECT_DOUBLE_EQ(chanceOfMissedGate(0, 0, 0, 0), 0.5);
    EXPECT_DOUBLE_EQ(chanceOfMissedGate(3, 10, 9, 94), (3 + 20 * 0.1) / 30);
}

} // namespace kavela::test
