#include "desktop/tracking/tracking_window.h"

#include "common/json_encode.h"
#include "common/text_file.h"
#include "desktop/film/film_deck.h"
#include "desktop/race_fixture.h"
#include "desktop/saving.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/tools.h"
#include "desktop/tracking/track_overlay.h"
#include "desktop/tracking/track_run.h"
#include "vision/tracking/scene_film.h"

#include <QSignalSpy>

#include <cmath>
#include <memory>

namespace kavela::test {
namespace {

using desktop::TrackingWindow;
using ::testing::HasSubstr;

constexpr int TrackingWait = 30000; // milliseconds
constexpr int SceneFrames = 60;

/// A boat that is gone from frame 40 on, in the window.
class TrackingWindowTest : public RaceWindowTest {
protected:
    TrackingWindowTest() {
        TrackShot shot;
        shot.seed = 350;
        shot.vanishesAt = 40;
        m_scene = std::make_unique<TrackScene>(shot);
        m_film = QString::fromStdString(
            writeScene(*m_scene, SceneFrames, m_folder.path() / "run.mp4").string());
    }

    TrackingWindow& openFilm() {
        EXPECT_TRUE(m_desktop.openIn(*desktop::toolOfKind("tracking"), m_film));
        TrackingWindow& window = *m_desktop.windowsOf<TrackingWindow>().back();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                const auto index = window.deck().index(0);
                return index && index->isComplete() && window.deck().shown(0);
            },
            TrackingWait));
        EXPECT_TRUE(isAt(window, 0));
        return window;
    }

    static bool isAt(const TrackingWindow& window, FrameNumber frame) {
        return QTest::qWaitFor(
            [&] {
                const auto* const shown = window.deck().shown(0);
                return shown && !shown->isPreview && shown->frame.number == frame;
            },
            TrackingWait);
    }

    static bool isDone(const TrackingWindow& window) {
        return QTest::qWaitFor([&] { return !window.run().isRunning(); }, TrackingWait);
    }

    /// Draws the box of the boat in the frame that is shown, with the mouse.
    void drawBoat(const TrackingWindow& window, int frame) {
        const TrackBox box = m_scene->athleteBox(frame);
        desktop::TrackOverlay& overlay = window.overlay();
        const QPoint from = overlay.shownPlace({box.x, box.y}).toPoint();
        const QPoint to = overlay.shownPlace({box.x + box.width, box.y + box.height}).toPoint();
        QTest::mousePress(&overlay, Qt::LeftButton, {}, from);
        QTest::mouseMove(&overlay, to);
        QTest::mouseRelease(&overlay, Qt::LeftButton, {}, to);
    }

    std::unique_ptr<TrackScene> m_scene;
    QString m_film;
};

TEST_F(TrackingWindowTest, JumpsThroughTheFilmByTheKeysOfEveryFilm) {
    TrackingWindow& window = openFilm();
    QTest::keyClick(&window, Qt::Key_PageDown); // the film is shorter
    EXPECT_TRUE(isAt(window, SceneFrames - 1));
    QTest::keyClick(&window, Qt::Key_PageUp);
    EXPECT_TRUE(isAt(window, 0));
    QTest::keyClick(&window, Qt::Key_End);
    EXPECT_TRUE(isAt(window, SceneFrames - 1));
    QTest::keyClick(&window, Qt::Key_Home);
    EXPECT_TRUE(isAt(window, 0));
}

TEST_F(TrackingWindowTest, FollowsADrawnBoxUntilItIsLostAndUndoesIt) {
    TrackingWindow& window = openFilm();
    drawBoat(window, 0);
    ASSERT_TRUE(isDone(window));
    const FilmTrack track = window.document().track();
    ASSERT_GT(track.points.size(), 30U) << window.told().toStdString();
    for (const TrackPoint& point : track.points)
        if (m_scene->isThere(static_cast<int>(point.frame))) {
            const PicturePlace is = m_scene->athlete(static_cast<int>(point.frame));
            EXPECT_LT(std::hypot(point.place.x - is.x, point.place.y - is.y), 20) << point.frame;
        }
    // It stops where the boat is lost, shows that frame and asks.
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Draw a new box"));
    EXPECT_TRUE(isAt(window, track.points.back().frame + 1));
    EXPECT_LE(track.points.back().frame, 48);
    window.undo();
    EXPECT_TRUE(window.document().track().points.empty());
    EXPECT_EQ(window.document().track().keys.size(), 1U);
    window.undo();
    EXPECT_TRUE(window.document().track().keys.empty());
}

TEST_F(TrackingWindowTest, KeepsThePathBesideTheFilmAndOpensItWithTheFilm) {
    TrackingWindow& window = openFilm();
    drawBoat(window, 0);
    ASSERT_TRUE(isDone(window));
    const FilmTrack track = window.document().track();
    QSignalSpy saved(window.file(), &desktop::EditedFile::saved);
    window.saveToBeside(QString::fromStdString((m_folder.path() / "run.track.json").string()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !saved.isEmpty(); }, TrackingWait));
    EXPECT_EQ(readTrack(m_folder.path() / "run.track.json").film, "run.mp4");
    window.close();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_desktop.windowsOf<TrackingWindow>().isEmpty(); },
                                TrackingWait));
    EXPECT_EQ(openFilm().document().track(), track);
}

TEST_F(TrackingWindowTest, FindsTheFilmThatWasRenamedWithItsPath) {
    track001 record;
    record.film = "run.mp4";
    const fs::path path = m_folder.add("Ann Heats.track.json", encode(record));
    fs::rename(m_folder.path() / "run.mp4", m_folder.path() / "Ann Heats.mp4");
    EXPECT_TRUE(
        m_desktop.openIn(*desktop::toolOfKind("tracking"), QString::fromStdString(path.string())));
    const TrackingWindow& window = *m_desktop.windowsOf<TrackingWindow>().back();
    EXPECT_TRUE(isAt(window, 0));
}

TEST_F(TrackingWindowTest, MeasuresOnTheWaterFromPointsThatAreClicked) {
    TrackingWindow& window = openFilm();
    drawBoat(window, 0);
    ASSERT_TRUE(isDone(window));
    window.goTo(0);
    ASSERT_TRUE(isAt(window, 0));
    window.setTakesPoints(true);
    // A metre is ten pixels of the river.
    for (const auto& [x, y] : {std::pair(120.0, 120.0), std::pair(280.0, 120.0)}) {
        const QPoint at = window.overlay().shownPlace(m_scene->seen({x, y}, 0)).toPoint();
        QTest::mouseClick(&window.overlay(), Qt::LeftButton, {}, at);
    }
    ASSERT_EQ(window.document().value().plane.points.size(), 2U);
    window.document().edit("metres", [](track001& record) { record.plane.points[1].metresX = 16; });
    const auto speedAt = [&](std::size_t at) {
        return at < window.figures().size() ? window.figures()[at].speed : std::nullopt;
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return speedAt(20).has_value(); }, TrackingWait));
    // 2.5 pixels a frame and the way of the waves, 50 frames a second.
    EXPECT_NEAR(*speedAt(20), 12.5, 6);
    const QString target = QString::fromStdString((m_folder.path() / "path.csv").string());
    window.writeCsv(target);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.told() == "path.csv is there."; }));
    EXPECT_THAT(readTextFile(m_folder.path() / "path.csv"), HasSubstr("frame,seconds,x,y"));
}

/// By what it holds a film is opened to be timed.
TEST_F(TrackingWindowTest, AFilmWithoutASavedPathComesBackToBeFollowed) {
    TrackingWindow* const window = &openFilm();
    m_desktop.rememberSession();
    delete window;
    Desktop next(m_workspace,
                 desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
    ASSERT_TRUE(next.restoreSession());
    QTRY_COMPARE(next.windows().size(), 1);
    EXPECT_EQ(next.windowsOf<TrackingWindow>().size(), 1);
}

TEST_F(TrackingWindowTest, TellsWhyAPathCannotBeExported) {
    TrackingWindow& window = openFilm();
    window.writeCsv(QString::fromStdString((m_folder.path() / "none" / "path.csv").string()));
    QTRY_COMPARE(m_recorder.alerts.size(), 1UL);
    EXPECT_THAT(m_recorder.alerts.front(), HasSubstr("path.csv"));
    EXPECT_FALSE(window.told().contains("path.csv"));
}

TEST_F(TrackingWindowTest, TellsWhyABoxCannotBeFollowed) {
    TrackingWindow& window = openFilm();
    window.drawBox({-20, 10, 60, 60});
    ASSERT_TRUE(isDone(window));
    EXPECT_THAT(window.told().toStdString(), HasSubstr("does not lie within the picture"));
    EXPECT_TRUE(window.document().track().keys.empty()) << "a box that cannot be followed is none";
}

} // namespace
} // namespace kavela::test
