#include "vision/crossing_search.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

namespace kavela {
namespace {

/// Bands with a bright block that moves over the line.
class DrawnBands {
public:
    static constexpr int Rows = 30;
    static constexpr int Slots = 500;
    static constexpr int Hull = 4;
    static constexpr double Length = 60;

    /// The block's foremost column is on the line in slot `crossing`.
    DrawnBands(double speed, double crossing) {
        m_stretch.shape.rows = Rows;
        std::uint32_t noise = 1;
        for (int slot = 0; slot < Slots; ++slot) {
            std::vector<std::int8_t> band(m_stretch.shape.samples());
            for (std::int8_t& value : band) {
                noise = noise * 1664525U + 1013904223U;
                value = static_cast<std::int8_t>((noise >> 24) % 13U) - 6;
            }
            const double bow = speed * (slot - crossing);
            for (int column = -BandReach; column <= BandReach; ++column) {
                const double behind = (bow - column) * (speed > 0 ? 1 : -1);
                if (behind < 0 || behind > Length)
                    continue;
                const bool isMiddle = behind > 25 && behind < 35;
                for (int row = isMiddle ? 8 : 16; row < 16 + Hull; ++row)
                    band[m_stretch.shape.column(0, column) + static_cast<std::size_t>(row)] = 80;
            }
            m_bands.push_back(std::move(band));
        }
        for (const auto& band : m_bands)
            m_stretch.slots.push_back(band.data());
    }

    [[nodiscard]] const BandStretch& stretch() const { return m_stretch; }
    [[nodiscard]] std::vector<BandCrossing> found() const {
        return searchCrossings(m_stretch, {Length, 3 * Hull});
    }

private:
    BandStretch m_stretch;
    std::vector<std::vector<std::int8_t>> m_bands;
};

/// This bow is blunt: what is reckoned for the thin tip of a real one comes too early here.
TEST(CrossingSearch, FindsTheSlotAndTheSpeedOfABow) {
    constexpr double Tip = 3;
    for (const double speed : {0.9, 1.4, 2.0}) {
        SCOPED_TRACE(speed);
        const auto found = DrawnBands(speed, 240.4).found();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_NEAR(found[0].slot, 240.4, Tip);
        EXPECT_NEAR(found[0].speed / speed, 1, 0.15);
        EXPECT_GE(found[0].confidence, 0.5);
    }
}

TEST(CrossingSearch, FollowsABowThatComesOneSlotLater) {
    const auto first = DrawnBands(1.4, 240).found();
    const auto second = DrawnBands(1.4, 241).found();
    ASSERT_EQ(first.size(), 1U);
    ASSERT_EQ(second.size(), 1U);
    EXPECT_NEAR(second[0].slot - first[0].slot, 1, 0.5);
}

TEST(CrossingSearch, PassesOverWhatGoesTheOtherWay) {
    for (const double speed : {-0.9, -1.4, -2.0}) {
        SCOPED_TRACE(speed);
        EXPECT_TRUE(DrawnBands(speed, 240).found().empty());
    }
}

TEST(Piles, ShowWhatMovesAlongAtItsPlaceAndDullTheRest) {
    const DrawnBands bands(1.5, 240);
    const int inside = 250; // some columns behind the bow
    const Pile along = pileUp(bands.stretch(), {1.5, 0}, {0, DrawnBands::Slots, 1});
    const Pile against = pileUp(bands.stretch(), {-1.5, 0}, {0, DrawnBands::Slots, 1});
    EXPECT_GT(along.at(0, inside)[17], 75);
    EXPECT_LT(along.at(0, 235)[17], 10);
    EXPECT_LT(against.at(0, inside)[17], 60);
    EXPECT_GT(against.at(0, 235)[17], 10) << "a wrong way smears the hull ahead of its bow";
}

TEST(Piles, FollowASlant) {
    BandStretch stretch;
    stretch.shape.rows = 40;
    std::vector<std::vector<std::int8_t>> bands;
    for (int slot = 0; slot < 60; ++slot) {
        bands.emplace_back(stretch.shape.samples());
        const int column = 2 * (slot - 30);
        if (std::abs(column) <= BandReach)
            bands.back()[stretch.shape.column(0, column) +
                         static_cast<std::size_t>(20 + std::lround(0.25 * column))] = 90;
    }
    for (const auto& band : bands)
        stretch.slots.push_back(band.data());
    EXPECT_GT(pileUp(stretch, {2, 0.25}, {30, 31, 1}).at(0, 30)[20], 80);
    EXPECT_LT(pileUp(stretch, {2, -0.25}, {30, 31, 1}).at(0, 30)[20], 20);
}

} // namespace
} // namespace kavela
