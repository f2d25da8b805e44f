#include "vision/shake.h"

#include "vision/river_scene.h"

#include <gmock/gmock.h>

namespace kavela {
namespace {

RiverRecipe smallRiver(std::uint32_t seed) {
    RiverRecipe recipe;
    recipe.seed = seed;
    recipe.width = 200;
    recipe.height = 120;
    recipe.boatLength = 60;
    recipe.boats = 0;
    recipe.seconds = 6;
    return recipe;
}

std::vector<HalfPlanes> someOf(const RiverScene& scene) {
    std::vector<HalfPlanes> pictures;
    for (std::int64_t i = 0; i < scene.frames(); i += 12)
        pictures.push_back(scene.picture(i));
    return pictures;
}

TEST(Shake, IsFoundToAPartOfAPixel) {
    RiverRecipe recipe = smallRiver(21);
    recipe.shake = 1;
    const RiverScene scene(recipe);
    ShakeMeter meter(someOf(scene));
    ASSERT_FALSE(meter.isHandHeld());
    for (std::int64_t frame = 0; frame < 30; ++frame) {
        SCOPED_TRACE(frame);
        const CameraShift shift = meter.shiftOf(scene.picture(frame));
        const SlitPoint drawn = scene.cameraShift(scene.secondsOf(frame));
        ASSERT_TRUE(shift.isKnown);
        EXPECT_NEAR(shift.x, drawn.x, 0.7);
        EXPECT_NEAR(shift.y, drawn.y, 1.0); // land is drawn in whole rows
    }
}

TEST(Shake, IsNoneOnATripodAndTooMuchInTheHand) {
    RiverRecipe recipe = smallRiver(22);
    EXPECT_FALSE(ShakeMeter(someOf(RiverScene(recipe))).isHandHeld());
    recipe.walk = 15;
    EXPECT_TRUE(ShakeMeter(someOf(RiverScene(recipe))).isHandHeld());
}

TEST(Shake, IsNotKnownWithoutAnythingToHoldOnTo) {
    const std::vector<HalfPlanes> grey(10, HalfPlanes(200, 120));
    ShakeMeter meter(grey);
    EXPECT_EQ(meter.blocks(), 0);
    EXPECT_FALSE(meter.isHandHeld());
    EXPECT_FALSE(meter.shiftOf(grey[0]).isKnown);
}

} // namespace
} // namespace kavela
