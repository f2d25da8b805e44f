#include "vision/light_barrier.h"

#include "common/temp_folder.h"
#include "video/video_error.h"
#include "vision/barrier_figures.h"
#include "vision/film_stream.h"
#include "vision/river_film.h"
#include "vision/river_stream.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace kavela {
namespace {

using test::TempFolder;
using testing::HasSubstr;

RiverRecipe filmedRiver() {
    RiverRecipe recipe;
    recipe.seed = 51;
    recipe.seconds = 5;
    recipe.boats = 1;
    recipe.width = 200;
    recipe.height = 120;
    recipe.boatLength = 60;
    recipe.slowest = 65;
    recipe.fastest = 95;
    recipe.foam = 0.1;
    recipe.dipping = 0;
    return recipe;
}

class LightBarrier : public testing::Test {
protected:
    [[nodiscard]] std::string faultOf(const BarrierRequest& request) const {
        VideoFacts facts;
        facts.path = "river.mp4";
        facts.shownSize = {400, 240};
        try {
            checkBarrierRequest(request, facts);
        } catch (const VideoError& error) {
            return error.what();
        }
        return {};
    }
};

Proposal strongest(const Crossings& found) {
    return *std::ranges::max_element(found.proposals, {}, &Proposal::confidence);
}

/// A film gives what its pictures give, to a part of a frame: stamps and places fit.
TEST_F(LightBarrier, FindsInAFilmWhatItsPicturesShow) {
    const TempFolder folder;
    const RiverScene scene(filmedRiver());
    const auto path = folder.path() / "river.mp4";
    writeRiverFilm(scene, path);
    std::int64_t told = 0;
    const auto found = findCrossings(path, scene.request(), {}, [&](const BarrierProgress& now) {
        EXPECT_EQ(now.frames, ++told);
        EXPECT_EQ(now.all, scene.frames());
    });
    const Crossings drawn = crossingsOf(scene);
    ASSERT_TRUE(found);
    EXPECT_EQ(told, scene.frames());
    EXPECT_FALSE(found->isHandHeld);
    ASSERT_FALSE(found->proposals.empty());
    ASSERT_FALSE(drawn.proposals.empty());
    const Proposal filmed = strongest(*found);
    EXPECT_NEAR(filmed.seconds, strongest(drawn).seconds, 0.016);
    EXPECT_EQ(filmed.frame, static_cast<FrameNumber>(std::ceil(filmed.seconds * 50 - 1e-4)));
}

TEST_F(LightBarrier, TellsAHandHeldCameraAndStopsWhenAsked) {
    RiverRecipe recipe = filmedRiver();
    recipe.walk = 15;
    recipe.seconds = 4;
    const RiverScene scene(recipe);
    const Crossings found = crossingsOf(scene);
    EXPECT_TRUE(found.isHandHeld);
    ASSERT_FALSE(found.notes.empty());
    EXPECT_THAT(found.notes[0], HasSubstr("tripod"));
    std::stop_source stop;
    stop.request_stop();
    RiverStream stream(scene);
    EXPECT_FALSE(findCrossings(stream, 0, 100, {{100, 20}, {100, 90}, BoatsFrom::Right},
                               {0, 0, 60, 18}, stop.get_token()));
}

TEST_F(LightBarrier, RefusesWhatCannotBeSearched) {
    const BarrierRequest right{{{200, 10}, {200, 230}, BoatsFrom::Right}, {0, 0, 100, 40}};
    EXPECT_EQ(faultOf(right), "");
    BarrierRequest wrong = right;
    wrong.line.second = {200, 300};
    EXPECT_THAT(faultOf(wrong), HasSubstr("the line's end at 200, 300 lies outside the picture of "
                                          "400 × 240 pixels"));
    wrong.line.second = {203, 12};
    EXPECT_THAT(faultOf(wrong), HasSubstr("shorter than 8 pixels"));
    wrong = right;
    wrong.boat.height = 0;
    EXPECT_THAT(faultOf(wrong), HasSubstr("no size"));
    wrong.boat = {0, 0, 500, 40};
    EXPECT_THAT(faultOf(wrong), HasSubstr("larger than the picture"));
}

TEST_F(LightBarrier, KnowsWhichWayBoatsCross) {
    const SlitPoint left = crossingDirection({{10, 0}, {10, 50}, BoatsFrom::Left});
    EXPECT_DOUBLE_EQ(left.x, -1) << "the left hand of somebody who looks down is to the right";
    const SlitPoint up = crossingDirection({{0, 10}, {50, 10}, BoatsFrom::Right});
    EXPECT_DOUBLE_EQ(up.y, -1);
}

/// The corner that is shown at the upper left lies elsewhere in a film that is stored turned.
TEST_F(LightBarrier, FindsPlacesInTurnedFilms) {
    struct TurnedCase {
        int rotation;
        SlitPoint stored; ///< of the shown 20, 40, in half pixels
    };
    for (const auto& [rotation, stored] :
         {TurnedCase{0, {9.5, 19.5}}, TurnedCase{90, {19.5, 109.5}}, TurnedCase{180, {189.5, 99.5}},
          TurnedCase{270, {179.5, 9.5}}}) {
        SCOPED_TRACE(rotation);
        VideoFacts facts;
        facts.rotation = rotation;
        const bool isTurned = rotation % 180 != 0;
        facts.storedSize = {400, 240};
        facts.shownSize = isTurned ? VideoSize{240, 400} : VideoSize{400, 240};
        const SlitPoint found = storedHalfPoint({20, 40}, facts);
        EXPECT_NEAR(found.x, stored.x, 1e-9);
        EXPECT_NEAR(found.y, stored.y, 1e-9);
    }
}

TEST(BarrierFigures, UnlockOnlyWhenEveryTargetIsReached) {
    const BarrierFigures good{6, 100, 60, 0.96, 1.5, 1.9, 0.9, false};
    EXPECT_TRUE(reachesTargets(good));
    EXPECT_THAT(tellFigures(good), HasSubstr("6 scenes of rendered water (100 runs"));
    EXPECT_FALSE(reachesTargets({})) << "what was not measured reaches nothing";
    BarrierFigures bad = good;
    bad.foundShare = 0.94;
    EXPECT_FALSE(reachesTargets(bad));
    bad = good;
    bad.falsePerHour = 2.5;
    EXPECT_FALSE(reachesTargets(bad));
    bad = good;
    bad.p95ErrorFrames = 2.1;
    EXPECT_FALSE(reachesTargets(bad));
}

} // namespace
} // namespace kavela
