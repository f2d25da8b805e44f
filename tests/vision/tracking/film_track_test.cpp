#include "vision/film_track.h"

#include "common/temp_folder.h"
#include "vision/tracking/scene_film.h"
#include "vision/tracking/track_scene.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>
#include <stop_token>
#include <vector>

namespace kavela {
namespace {

std::vector<TrackPoint> lineOf(FrameNumber from, FrameNumber to, double y) {
    std::vector<TrackPoint> points;
    for (FrameNumber frame = from; frame <= to; ++frame)
        points.push_back({frame, double(frame) / 50, {double(frame), y}, 1, 0.9});
    return points;
}

TEST(JoinedPoints, LeaveAGapWhereBothSidesContradictEachOther) {
    // Never at one place: nobody knows where one of them went wrong.
    const auto apart = joinedPoints(lineOf(0, 9, 0), lineOf(1, 10, 100), 40);
    ASSERT_EQ(apart.size(), 2U);
    EXPECT_EQ(apart.front().frame, 0);
    EXPECT_EQ(apart.back().frame, 10);
    // They meet: before that the one side is right, behind it the other.
    auto backwards = lineOf(1, 10, 100);
    for (TrackPoint& point : backwards)
        point.place.y = point.frame < 4 ? 300 : 102;
    auto forwards = lineOf(0, 9, 100);
    for (TrackPoint& point : forwards)
        point.place.y = point.frame > 6 ? 500 : 100;
    const auto met = joinedPoints(forwards, backwards, 40);
    ASSERT_EQ(met.size(), 11U);
    for (const TrackPoint& point : met)
        EXPECT_NEAR(point.place.y, 101, 1.01) << point.frame;
}

TEST(JoinedPoints, KeepAGapThatNeitherSideSaw) {
    const auto joined = joinedPoints(lineOf(0, 3, 0), lineOf(8, 10, 0), 40);
    FilmTrack track;
    track.points = joined;
    EXPECT_EQ(track.gaps(), (std::vector<FilmTrack::Gap>{{4, 7}}));
}

/// A boat that is gone from frame 30 on.
class FollowedFilm : public ::testing::Test {
protected:
    FollowedFilm() {
        TrackShot shot;
        shot.seed = 340;
        shot.vanishesAt = 30;
        m_scene = std::make_unique<TrackScene>(shot);
        m_film = std::make_unique<FilmPlanes>(
            readVideoIndex(writeScene(*m_scene, 65, m_folder.path() / "shot.mp4")));
    }

    test::TempFolder m_folder;
    std::unique_ptr<TrackScene> m_scene;
    std::unique_ptr<FilmPlanes> m_film;
};

TEST_F(FollowedFilm, EndsWhereTheBoatIsLostAndSaysSo) {
    std::vector<FrameNumber> told;
    const FollowedStretch stretch =
        followStretch(*m_film, {{0, m_scene->athleteBox(0)}, {}, 64}, {},
                      [&](const TrackProgress& now) { told.push_back(now.frame); });
    ASSERT_TRUE(stretch.lostAt);
    EXPECT_NEAR(double(*stretch.lostAt), 30, 6);
    EXPECT_EQ(stretch.points.back().frame + 1, *stretch.lostAt);
    EXPECT_EQ(told.front(), 1);
    EXPECT_EQ(told.back(), stretch.last);
    EXPECT_LT(stretch.last, 64); // nobody looks on for ever
}

TEST_F(FollowedFilm, RunsFromBothSidesBetweenTwoBoxes) {
    FilmTrack track;
    track.keys = {{0, m_scene->athleteBox(0)}, {28, m_scene->athleteBox(28)}};
    track = withStretch(track, followStretch(*m_film, stretchOf(track, 0, 64)));
    ASSERT_EQ(track.points.size(), 29U);
    EXPECT_EQ(track.cameras.size(), 29U);
    for (const TrackPoint& point : track.points) {
        const PicturePlace is = m_scene->athlete(static_cast<int>(point.frame));
        EXPECT_LT(std::hypot(point.place.x - is.x, point.place.y - is.y), 12) << point.frame;
    }
    // Another box behind the end leaves what lies before it.
    const std::vector<TrackPoint> before = track.points;
    track = withStretch(track, followStretch(*m_film, stretchOf(track, 1, 64)));
    EXPECT_EQ(std::vector(track.points.begin(), track.points.begin() + 28),
              std::vector(before.begin(), before.begin() + 28));
}

TEST_F(FollowedFilm, KeepsWhatItFoundWhenItIsStopped) {
    std::stop_source stop;
    const FollowedStretch stretch = followStretch(*m_film, {{0, m_scene->athleteBox(0)}, {}, 64},
                                                  stop.get_token(), [&](const TrackProgress& now) {
                                                      if (now.frame == 10)
                                                          stop.request_stop();
                                                  });
    EXPECT_EQ(stretch.points.size(), 11U);
    EXPECT_EQ(stretch.last, 10);
    EXPECT_FALSE(stretch.lostAt);
}

} // namespace
} // namespace kavela
