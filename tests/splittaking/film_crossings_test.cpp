#include "splittaking/film_crossings.h"

#include "splitdata/film_marks.h"
#include "splittaking/annotations/camera_sync.h"
#include "splittaking/marking.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Optional;

constexpr std::int64_t Splits = 3;

CMTime frame(std::int64_t number) {
    return {number, 50, 1, 0};
}

/// A run on two cameras, the second of which began two seconds before the first.
athletedata031 twoCameras() {
    athletedata031 run;
    run.videoname = {"run.mp4", "bank.mp4"};
    return run;
}

RunMarks markedOnBoth() {
    return {Stamps{frame(100), frame(200)}, {{frame(600), frame(700)}}};
}

} // namespace

TEST(FilmCrossings, MarkOnASecondCameraTakesTheFirstOneAlong) {
    const athletedata031 run = twoCameras();
    const auto film = filmOfRun(run, "bank.mp4");
    ASSERT_EQ(film, (CameraOfRun{1, false}));
    RunMarks marks = markedOnBoth();
    EXPECT_EQ(setMarkOnFilm(run, marks, *film, 2, frame(1300), Splits), std::nullopt);
    ASSERT_EQ(marks.marks.size(), 2U);
    ASSERT_EQ(marks.marks[1].size(), 2U);
    EXPECT_EQ(marks.marks[1][1], frame(1300)) << "the frame that was seen, to the tick";
    EXPECT_TRUE(orderOf(marks.marks[1][0], frame(1200)) == 0);
    EXPECT_EQ(markOnFilm(run, marks, *film, 2), frame(1300));

    RunMarks none;
    const auto refused = setMarkOnFilm(run, none, *film, 1, frame(700), Splits);
    ASSERT_TRUE(refused) << "nothing tells how the cameras lie to each other";
    EXPECT_EQ(none, RunMarks());
}

TEST(FilmCrossings, FixedCameraMarksTheRunsOwnFilmByTheirLag) {
    athletedata031 run;
    run.videoname = {"run.mp4"};
    run.fixcameras = {"bridge.mp4"};
    const auto film = filmOfRun(run, "bridge.mp4");
    ASSERT_EQ(film, (CameraOfRun{0, true}));
    RunMarks marks;
    EXPECT_TRUE(setMarkOnFilm(run, marks, *film, 1, frame(5000), Splits)) << "not synchronised";
    markSync(run, 0, frame(100), frame(4100), std::nullopt);
    EXPECT_EQ(setMarkOnFilm(run, marks, *film, 1, frame(5000), Splits), std::nullopt);
    EXPECT_TRUE(orderOf(marks.marks.at(0).at(0), frame(1000)) == 0);
    EXPECT_THAT(markOnFilm(run, marks, *film, 1)->seconds(), DoubleNear(100, 1e-9));
}

TEST(FilmCrossings, KeepsTheOrderOfMarksAndTheSplitsOfTheCourse) {
    const athletedata031 run = twoCameras();
    const CameraOfRun film{0, false};
    RunMarks marks = markedOnBoth();
    const RunMarks before = marks;
    EXPECT_TRUE(setMarkOnFilm(run, marks, film, 2, frame(600), Splits)) << "on split 1";
    EXPECT_TRUE(setMarkOnFilm(run, marks, film, 0, frame(650), Splits)) << "behind split 1";
    EXPECT_TRUE(setMarkOnFilm(run, marks, film, 4, frame(900), Splits)) << "no such split";
    EXPECT_EQ(marks, before);
    EXPECT_EQ(setMarkOnFilm(run, marks, film, 3, frame(900), Splits), std::nullopt);
    EXPECT_TRUE(marks.marks.at(1).empty()) << "the split between was not seen";
    clearMark(marks, 3);
    EXPECT_EQ(marks, before) << "nothing is left of what was marked for it";
}

TEST(FilmCrossings, PartOfAFrameGoesFromOneSectionToTheNext) {
    athletedata031 run = twoCameras();
    const RunMarks marks{Stamps{frame(100)}, {{frame(600)}, {}, {frame(1100)}}};
    applyMarks(marks, run, Splits);
    refineMark(run.sectioninfo, 1, 0.006);
    EXPECT_THAT(run.sectioninfo.times,
                ElementsAre(DoubleNear(10.006, 1e-9), 0, DoubleNear(9.994, 1e-9)));
    EXPECT_THAT(run.sectioninfo.totaltime, DoubleNear(20, 1e-9));
    refineMark(run.sectioninfo, 3, -0.004);
    EXPECT_THAT(run.sectioninfo.totaltime, DoubleNear(19.996, 1e-9));
    EXPECT_EQ(run.sectioninfo.cmtimes[0].front(), frame(600)) << "the stamp stays the frame's";
}

TEST(FilmCrossings, CrossingsFallToTheRunsInTheOrderOfTheirStarts) {
    const auto owners = [](std::vector<double> crossings,
                           std::vector<std::optional<double>> marked) {
        return runsOfCrossings(crossings, marked);
    };
    const auto No = std::nullopt;
    EXPECT_THAT(owners({10, 20, 30}, {No, No}), ElementsAre(Optional(0U), Optional(1U), No));
    EXPECT_THAT(owners({10, 20, 30}, {No, 20.2, No}),
                ElementsAre(Optional(0U), Optional(1U), Optional(2U)));
    EXPECT_THAT(owners({25}, {10.0, 20.0, No}), ElementsAre(Optional(2U)))
        << "runs that were marked earlier are past";
    EXPECT_THAT(owners({15}, {10.0, 20.0, No}), ElementsAre(No))
        << "a spectator between two runs that follow each other";
}

} // namespace kavela::test
