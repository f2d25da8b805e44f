#include "vision/river_stream.h"

#include <gmock/gmock.h>

#include <array>

namespace kavela {
namespace {

/// A short scene with one boat.
RiverRecipe shortScene(std::uint32_t seed) {
    RiverRecipe recipe;
    recipe.seed = seed;
    recipe.seconds = 5;
    recipe.boats = 1;
    recipe.width = 200;
    recipe.height = 120;
    recipe.boatLength = 60;
    recipe.slowest = 65;
    recipe.fastest = 95;
    recipe.current = 35;
    recipe.spectators = 0;
    return recipe;
}

int confidentIn(const Crossings& found) {
    int count = 0;
    for (const Proposal& proposal : found.proposals)
        count += proposal.confidence >= 0.5 ? 1 : 0;
    return count;
}

/// The margins are wide: a bow goes under, and one scene in six may be lost. A wrong sign or a
/// shake that is not taken out loses most of them.
TEST(Scenes, ShowTheirBoats) {
    std::array<RiverRecipe, 6> recipes{shortScene(31), shortScene(32), shortScene(33),
                                       shortScene(34), shortScene(35), shortScene(36)};
    recipes[0].spectators = 1;
    recipes[0].exposureStep = 0.2;
    recipes[1].shadow = 8;
    recipes[1].clouds = 0.12;
    recipes[2].gusts = 0.2;
    recipes[2].rain = 8;
    recipes[2].birds = 1;
    recipes[3].shake = 1;
    recipes[4].hasDarkHulls = true;
    recipes[4].foam = 0.15;
    recipes[5].slant = 20;
    recipes[5].logs = 1;
    RiverScore score;
    RiverScore bodies;
    for (const RiverRecipe& recipe : recipes) {
        const RiverScene scene(recipe);
        const Crossings found = crossingsOf(scene);
        score.add(scoreOf(scene, found.proposals));
        bodies.add(scoreOf(scene, found.proposals, TimingPoint::Body));
    }
    EXPECT_EQ(score.boats, 6);
    EXPECT_GE(score.near, 4);
    EXPECT_LE(score.falseOnes, 1);
    EXPECT_LE(score.errorAt(0.5), 4);
    EXPECT_GE(bodies.near, 4);
    EXPECT_LE(bodies.errorAt(0.5), 2) << "a paddler does not go under";
}

/// What stands out of such a boat is its paddler, and the bow is half a boat's length ahead.
TEST(Scenes, TellTheBowFromThePaddlerWhereHullsAreLikeTheWater) {
    RiverScore score;
    for (std::uint32_t seed = 51; seed <= 56; ++seed) {
        RiverRecipe recipe = shortScene(seed);
        recipe.hasDarkHulls = true;
        recipe.foam = 0.15;
        recipe.dipping = 0;
        const RiverScene scene(recipe);
        score.add(scoreOf(scene, crossingsOf(scene).proposals));
    }
    EXPECT_EQ(score.boats, 6);
    EXPECT_GE(score.near, 5);
    EXPECT_LE(score.errorAt(0.7), 4);
}

TEST(Scenes, ShowNothingOnEmptyWater) {
    RiverRecipe recipe = shortScene(41);
    recipe.boats = 0;
    recipe.foam = 0.4;
    recipe.gusts = 0.2;
    EXPECT_EQ(confidentIn(crossingsOf(RiverScene(recipe))), 0);
}

TEST(Scenes, ShowNoBoatThatGoesUp) {
    RiverRecipe recipe = shortScene(42);
    recipe.boats = 0;
    recipe.upstreamBoats = 1;
    EXPECT_EQ(confidentIn(crossingsOf(RiverScene(recipe))), 0);
}

TEST(Scenes, TakeNightAndWhiteWaterAsTheyAre) {
    RiverRecipe night = shortScene(43);
    night.seconds = 3;
    night.boats = 0;
    night.light = 0.06;
    EXPECT_EQ(confidentIn(crossingsOf(RiverScene(night))), 0);
    RiverRecipe white = shortScene(44);
    white.seconds = 3;
    white.boats = 0;
    white.foam = 1.5;
    EXPECT_EQ(confidentIn(crossingsOf(RiverScene(white))), 0);
}

} // namespace
} // namespace kavela
