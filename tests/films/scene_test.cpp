#include "films/film_scene.h"
#include "films/fixed_scene.h"
#include "films/season_films.h"
#include "sample/races.h"
#include "sample/training.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>

#include <cmath>

/// What is drawn follows from the record, for every film of the season.
namespace kavela::films {
namespace {

struct Seen {
    const infodata031& info;
    const athletedata031& run;
    std::size_t camera;
    RunOnFilm film;
    CourseLayout course;
    BoatWay way;
};

Seen see(const infodata031& info, const athletedata031& run, std::size_t camera) {
    RunOnFilm film = runOnFilm(info, run, camera);
    CourseLayout course = layOut(info);
    BoatWay way(course, film);
    return {info, run, camera, std::move(film), std::move(course), std::move(way)};
}

Frames frameOf(const CMTime& stamp) {
    return std::llround(stamp.seconds() * 50);
}

/// How far the bow is past a line, in the direction in which the boat goes.
double past(const Seen& seen, double x, Frames frame) {
    const BoatPlace boat = seen.way.at(frame);
    return (boat.bow.x() - x) * (boat.heading.x() < 0 ? -1 : 1);
}

/// Far enough for the eye on each frame, and not a whole leap.
void expectCrossing(const Seen& seen, double x, Frames mark) {
    EXPECT_GT(past(seen, x, mark), 0.15);
    EXPECT_LT(past(seen, x, mark), 3);
    EXPECT_LT(past(seen, x, mark - 1), -0.15);
    EXPECT_GT(past(seen, x, mark - 1), -3);
}

void expectMarksOfTheRecord(const Seen& seen) {
    const sectiondata030& timing = seen.run.sectioninfo;
    for (std::size_t k = 0; k < timing.cmtimes.size(); ++k) {
        if (timing.cmtimes[k].empty()) {
            EXPECT_FALSE(seen.film.marks[k]);
            continue;
        }
        const Frames mark = frameOf(timing.cmtimes[k].at(seen.camera));
        EXPECT_EQ(seen.film.marks[k], mark);
        EXPECT_LT(mark, seen.film.length);
        expectCrossing(seen, seen.course.splits[k].x, mark);
    }
    if (timing.times.front() > 0)
        expectCrossing(seen, 0, seen.film.start);
}

void expectPenaltiesOfTheRecord(const Seen& seen) {
    for (std::size_t i = 0; i < seen.film.gates.size(); ++i) {
        const GatePlace& gate = seen.course.gates[i];
        const QPointF bow = seen.way.at(seen.film.gates[i]).bow;
        const double fromMiddle = std::abs(bow.y() - gate.centre.y());
        EXPECT_NEAR(bow.x(), gate.centre.x(), 4);
        const std::int64_t penalty = seen.run.sectioninfo.pens[i];
        const bool isAsTold = penalty == 0   ? fromMiddle < HalfGate - 12
                              : penalty == 2 ? std::abs(fromMiddle - HalfGate) < 7
                                             : fromMiddle > HalfGate + 8;
        EXPECT_TRUE(isAsTold) << "gate " << gate.number << ": " << fromMiddle;
        EXPECT_EQ(seen.way.at(seen.film.gates[i]).heading.x() < 0, gate.isUpstream);
    }
}

/// A boat that a film shows is on the water and never jumps.
void expectQuietWay(const Seen& seen) {
    QPointF before = seen.way.at(-1).bow;
    for (Frames frame = 0; frame < seen.film.length; ++frame) {
        const QPointF bow = seen.way.at(frame).bow;
        ASSERT_LT(std::hypot(bow.x() - before.x(), bow.y() - before.y()), 4.5) << frame;
        ASSERT_GT(bow.y(), WaterTop) << frame;
        ASSERT_LT(bow.y(), WaterBottom) << frame;
        before = bow;
    }
}

void expectAgreement(const splittakerdata031& session) {
    for (const athletedata031& run : session.athletes) {
        for (std::size_t camera = 0; camera < run.videoname.size(); ++camera) {
            SCOPED_TRACE(run.videoname[camera]);
            const Seen seen = see(session.info, run, camera);
            expectMarksOfTheRecord(seen);
            expectPenaltiesOfTheRecord(seen);
            expectQuietWay(seen);
        }
    }
}

TEST(FilmScene, ShowsEveryRunOfTheSeasonAsItsRecordTells) {
    expectAgreement(sample::holdRace(sample::harbourNight()));
    expectAgreement(sample::formTest());
    expectAgreement(sample::holdRace(sample::highlandOpen()));
    expectAgreement(sample::gateLaps());
}

TEST(FilmScene, GatesBetweenTheMarksAreWhereTheNotesSay) {
    const splittakerdata031 race = sample::holdRace(sample::harbourNight());
    int notes = 0;
    for (const athletedata031& run : race.athletes) {
        const RunOnFilm film = runOnFilm(race.info, run, 0);
        for (const microsplitsdata025& split : run.microsplits) {
            EXPECT_THAT(film.gates, testing::Contains(frameOf(split.cmtime)));
            EXPECT_EQ(frameOf(split.cmtime) - film.start, std::llround(split.time * 50));
            ++notes;
        }
        for (const upstreamdata025& upstream : run.upstreams)
            EXPECT_EQ(film.gates.at(static_cast<std::size_t>(upstream.num) - 1),
                      frameOf(upstream.cmtimes.at(1)));
    }
    EXPECT_GT(notes, 50);
}

TEST(FilmScene, RefusesARunThatNoFilmCanShow) {
    const splittakerdata031 session = sample::formTest();
    athletedata031 run = session.athletes.back();
    run.sectioninfo.cmtimes[2][0].value += 1;
    EXPECT_THROW((void)runOnFilm(session.info, run, 0), std::invalid_argument);
    run.sectioninfo.cmtimes.assign(8, {});
    EXPECT_THROW((void)runOnFilm(session.info, run, 0), std::invalid_argument);
    EXPECT_THROW((void)runOnFilm({}, session.athletes.back(), 0), std::invalid_argument);
}

TEST(FixedScene, BoatsCrossBothLinesOneAfterTheOtherAtTheFramesOfTheSession) {
    const std::vector<sample::SprintPassage> passages = sample::sprintPassages();
    const FixedScene scene(passages);
    ASSERT_EQ(passages.size(), sample::sprintSession().athletes.size());
    ASSERT_GE(passages.size(), 4U);
    YuvPicture before(FilmWidth, FilmHeight);
    YuvPicture after(FilmWidth, FilmHeight);
    Frames last = 0;
    for (std::size_t i = 0; i < passages.size(); ++i) {
        const auto& [boat, start, finish, lane] = passages[i];
        EXPECT_LT(scene.bowAt(i, start - 1).x(), FixedScene::StartColumn);
        EXPECT_GT(scene.bowAt(i, start).x(), FixedScene::StartColumn);
        EXPECT_LT(scene.bowAt(i, finish - 1).x(), FixedScene::FinishColumn);
        EXPECT_GT(scene.bowAt(i, finish).x(), FixedScene::FinishColumn);
        EXPECT_GT(start, last) << "one after the other";
        last = finish;
        // Half a boat further there is deck on the line where there was water.
        constexpr Frames HalfABoat = 15;
        scene.draw(finish - HalfABoat, before);
        scene.draw(finish + HalfABoat, after);
        const auto row = static_cast<int>(scene.bowAt(i, finish).y());
        const auto column = static_cast<int>(FixedScene::FinishColumn);
        EXPECT_NE(before.yLine(row)[column], after.yLine(row)[column]) << boat.crew();
    }
    EXPECT_LT(last + sample::FramesPerSecond, scene.length());
}

} // namespace
} // namespace kavela::films
