#include "vision/path_figures.h"

#include "vision/path_csv.h"
#include "vision/track_error.h"

#include <gmock/gmock.h>

#include <sstream>

namespace kavela {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

/// A boat that goes 100 pixels a second to the right while the camera pans after it by 40.
FilmTrack pannedTrack() {
    FilmTrack track;
    track.keys = {{0, {95, 195, 10, 10}}};
    for (FrameNumber frame = 0; frame < 50; ++frame) {
        const double seconds = double(frame) / 50;
        track.cameras.push_back({frame, {1, 0, 40 * seconds, 0}});
        if (frame < 20 || frame > 24)
            track.points.push_back({frame, seconds, {100 + 60 * seconds, 200}, 1, 0.9});
    }
    return track;
}

KnownPlane tenPixelsAMetre(FrameNumber frame) {
    return {frame, {{{0, 0}, 0, 0}, {{400, 0}, 40, 0}, {{400, 300}, 40, 30}, {{0, 300}, 0, 30}}};
}

TEST(PathFigures, MeasureSpeedOnTheWaterAndNotInThePicture) {
    const auto figures = pathFigures(pannedTrack(), tenPixelsAMetre(0));
    ASSERT_EQ(figures.size(), 50U);
    for (const std::size_t frame : {0U, 10U, 19U, 25U, 49U}) {
        ASSERT_TRUE(figures[frame].speed) << frame;
        EXPECT_NEAR(*figures[frame].speed, 10, 1e-6);
        // Two pixels at a field of 400 change the scale by half a hundredth or so.
        EXPECT_GT(*figures[frame].speedError, 0.01);
        EXPECT_LT(*figures[frame].speedError, 0.5);
    }
    // Points clicked in a later frame mean the same water.
    const auto later = pathFigures(pannedTrack(), tenPixelsAMetre(40));
    EXPECT_NEAR(later[10].water->x, figures[10].water->x - 40 * 0.8 / 10, 1e-9);
}

TEST(PathFigures, NeverFillAGap) {
    const FilmTrack track = pannedTrack();
    EXPECT_EQ(track.gaps(), (std::vector<FilmTrack::Gap>{{20, 24}}));
    const auto figures = pathFigures(track, tenPixelsAMetre(0));
    for (std::size_t frame = 20; frame <= 24; ++frame)
        EXPECT_FALSE(figures[frame].place || figures[frame].steadied || figures[frame].water ||
                     figures[frame].speed || figures[frame].score);
    std::istringstream lines(pathCsv(figures));
    std::string line;
    std::getline(lines, line);
    EXPECT_THAT(line, HasSubstr("frame,seconds,x,y,steadied_x"));
    for (int i = 0; i <= 20; ++i)
        std::getline(lines, line);
    EXPECT_EQ(line, "20,,,,,,,,,,");
    // Across a gap no speed is told: the two sides may have nothing to do with each other.
    FilmTrack jump = track;
    for (TrackPoint& point : jump.points)
        if (point.frame > 24)
            point.place.y += 500;
    const auto jumped = pathFigures(jump, tenPixelsAMetre(0));
    EXPECT_NEAR(*jumped[19].speed, 10, 1e-6);
    EXPECT_NEAR(*jumped[25].speed, 10, 1e-6);
}

TEST(PathFigures, RefuseKnownPointsOfAFrameWhoseCameraIsNotKnown) {
    EXPECT_THAT([] { static_cast<void>(pathFigures(pannedTrack(), tenPixelsAMetre(70))); },
                ThrowsMessage<TrackError>(HasSubstr("in a frame of the path")));
}

} // namespace
} // namespace kavela
