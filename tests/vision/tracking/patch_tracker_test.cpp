#include "vision/patch_tracker.h"

#include "vision/camera_motion.h"
#include "vision/track_error.h"
#include "vision/tracking/track_scene.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

/// Rendered shots by hand: jerky pans, zooms, shakes, sun and clouds, gates before the boat. Where
/// everything is in them is known.
namespace kavela {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

constexpr int ShotFrames = 60;
constexpr int MostWrongFrames = 8;

struct ShotResult {
    std::vector<double> errors; ///< pixels, of the frames in which it was found
    int longestWrong = 0;       ///< frames in a row in which it is said to be elsewhere
    int foundGone = 0;          ///< frames in which it is found and is not there
    int lost = 0;               ///< frames in which it is there and not found
    double cameraError = 0;     ///< how far off what stands still is at last, pixels
};

double distanceOf(const PicturePlace& a, const PicturePlace& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

ShotResult followShot(const TrackShot& shot, bool hasCamera = true) {
    TrackScene scene(shot);
    const TrackPicture first = scene.picture(0);
    PatchTracker tracker(first, scene.athleteBox(0));
    CameraMotion camera;
    static_cast<void>(camera.follow(first, scene.athleteBox(0)));
    const PicturePlace fixed{240, 120};
    PictureMotion moved;
    ShotResult result;
    int wrong = 0;
    for (int frame = 1; frame < ShotFrames; ++frame) {
        const TrackPicture picture = scene.picture(frame);
        PictureMotion motion;
        if (hasCamera)
            motion = camera.follow(picture, tracker.expectedBox()).value_or(PictureMotion());
        moved = moved.then(motion);
        const auto found = tracker.follow(picture, motion);
        if (found && scene.isThere(frame)) {
            const TrackBox box = scene.athleteBox(frame);
            result.errors.push_back(distanceOf(found->place, box.middle()));
            wrong = result.errors.back() > 0.6 * std::max(box.width, box.height) ? wrong + 1 : 0;
        } else {
            wrong = found ? wrong + 1 : 0;
            result.foundGone += found ? 1 : 0;
            result.lost += !found && scene.isThere(frame) ? 1 : 0;
        }
        result.longestWrong = std::max(result.longestWrong, wrong);
    }
    result.cameraError = distanceOf(moved(scene.seen(fixed, 0)), scene.seen(fixed, ShotFrames - 1));
    std::ranges::sort(result.errors);
    return result;
}

/// None of these seeds was looked at when the tracker was made.
TrackShot shotOf(unsigned number) {
    TrackShot shot;
    shot.seed = 301 + number;
    shot.pan = number % 5 == 4 ? 0 : 1;
    shot.zoom = number % 3 * 0.25;
    shot.shake = 1 + number % 4;
    shot.light = number % 2 * 0.3;
    shot.speed = shot.pan > 0 ? 1.5 + number % 3 : 1.5;
    shot.hasPoles = number % 2 == 1;
    return shot;
}

TEST(PatchTracker, FollowsAnAthleteThroughShotsByHandAndIsSeldomSilentlyWrong) {
    constexpr unsigned Shots = 10;
    std::vector<double> errors;
    unsigned wrong = 0;
    for (unsigned number = 0; number < Shots; ++number) {
        const ShotResult result = followShot(shotOf(number));
        errors.insert(errors.end(), result.errors.begin(), result.errors.end());
        wrong += result.longestWrong > MostWrongFrames ? 1 : 0;
    }
    ASSERT_GT(errors.size(), Shots * ShotFrames * 7 / 10);
    std::ranges::sort(errors);
    EXPECT_LE(errors[errors.size() / 2], 5);
    EXPECT_LE(wrong, 1U);
}

TEST(PatchTracker, LosesABoatThatIsGoneInsteadOfFindingWater) {
    TrackShot shot;
    shot.seed = 320;
    shot.vanishesAt = 30;
    const ShotResult result = followShot(shot);
    EXPECT_LE(result.foundGone, MostWrongFrames);
    EXPECT_LE(result.lost, 5);
}

TEST(PatchTracker, TakesTheMotionOfTheCameraOut) {
    TrackShot shot;
    shot.seed = 330;
    shot.shake = 3;
    const ShotResult steadied = followShot(shot);
    EXPECT_LT(steadied.cameraError, 8);
    // Without it the bank runs away, or the shot would prove nothing.
    EXPECT_GT(followShot(shot, false).cameraError, 40);
}

TEST(CameraMotion, ComesBackToWhereALongPanBegan) {
    constexpr int Frames = 300;
    TrackShot shot;
    shot.seed = 501;
    shot.speed = 4;
    shot.shake = 3;
    shot.light = 0.3;
    shot.turnsAt = Frames / 2;
    TrackScene scene(shot);
    CameraMotion camera;
    PictureMotion moved;
    double worst = 0;
    double last = 0;
    for (int frame = 0; frame < Frames; ++frame) {
        const auto motion = camera.follow(scene.picture(frame), scene.athleteBox(frame));
        ASSERT_TRUE(motion) << frame;
        moved = moved.then(*motion);
        // A place on the bank that is in view, and how far off it is told to have been at first.
        const double way = shot.speed * std::min(frame, Frames - frame);
        const PicturePlace bank{200 + way, 120};
        last = distanceOf(moved(scene.seen(bank, 0)), scene.seen(bank, frame));
        worst = std::max(worst, last);
    }
    EXPECT_LT(worst, 6) << "six hundred pixels away";
    EXPECT_LT(last, 2);
}

TEST(PatchTracker, RefusesBoxesThatCannotBeFollowed) {
    std::vector<std::uint8_t> grey(320 * 240, 90);
    TrackPicture picture;
    picture.planes[0] = {grey.data(), 320, 320, 240};
    picture.planes[1] = picture.planes[2] = {grey.data(), 160, 160, 120};
    const auto told = [&](const TrackBox& box, const char* text) {
        EXPECT_THAT([&] { PatchTracker(picture, box); },
                    ThrowsMessage<TrackError>(HasSubstr(text)));
    };
    told({100, 100, 40, 40}, "nothing in the box");
    told({300, 100, 40, 40}, "320 × 240");
    told({-1, 100, 40, 40}, "within the picture");
    told({100, 100, 4, 40}, "too small");
}

} // namespace
} // namespace kavela
