#include "desktop/barrier/slit_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/barrier/line_overlay.h"
#include "desktop/barrier/slit_stage.h"
#include "desktop/barrier/slit_strip.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/time_line.h"
#include "desktop/numbered_film.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/document.h"
#include "splittaking/marking.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

/// The slit picture of a film whose frames carry their numbers, and the race that its marks go to.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr int SlitPatience = 40000; // milliseconds
constexpr int SlitDigits = 16;      // over the film from left to right, the lowest first

/// Two seconds of the numbered film; they begin with its first frame.
fs::path slitFilm() {
    const fs::path kept = numberedFilm().parent_path() / "numbered-square-slit.mp4";
    if (fs::exists(kept))
        return kept;
    const fs::path fresh = kept.string() + '.' + std::to_string(::getpid()) + ".mp4";
    const std::string command = "ffmpeg -v error -y -i '" + numberedFilm().string() +
                                "' -c copy -t 2 '" + fresh.string() + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
    fs::rename(fresh, kept);
    return kept;
}

/// The number that stands in a column, of a line that was drawn over all digits.
int numberInSlit(const SlitPicture& picture, FrameNumber column) {
    const SlitTile* const tile = picture.tileOf(column);
    if (!tile)
        return -1;
    const Picture& pixels = tile->levels[0];
    int number = 0;
    for (int digit = 0; digit < SlitDigits; ++digit) {
        const int y = pixels.height * (2 * digit + 1) / (2 * SlitDigits);
        const auto at =
            static_cast<std::size_t>(y * pixels.bytesPerLine + (column - tile->first) * 4);
        if (pixels.pixels[at + 1] > 127)
            number |= 1 << digit;
    }
    return number;
}

Crossings crossingsAt(std::initializer_list<double> seconds) {
    Crossings crossings;
    for (const double each : seconds)
        crossings.proposals.push_back({static_cast<FrameNumber>(each * NumberedRate), each, 0.8});
    return crossings;
}

class SlitWindowTest : public ::testing::Test {
protected:
    SlitWindowTest() {
        fs::create_directory(films());
        fs::copy_file(slitFilm(), film());
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([](const Alert&) { return true; });
        splittakerdata031 race;
        race.info.totalsplits = 2;
        for (const char* const name : {"Ann Lee", "Bo Fox", "Cy Dal"}) {
            athletedata031 run;
            run.names = {name};
            run.videoname = {"bridge.mp4"};
            race.athletes.push_back(run);
        }
        race.athletes.emplace_back().names = {"On another film"};
        race.athletes.back().videoname = {"other.mp4"};
        std::ofstream(films() / "race.kvx", std::ios::binary) << encode(race);
    }
    ~SlitWindowTest() override {
        if (m_taking)
            m_taking->document().discard();
        m_slit.reset();
        m_taking.reset();
        disk::waitForAll();
    }

    [[nodiscard]] fs::path films() const { return m_folder.path() / "films"; }
    [[nodiscard]] fs::path film() const { return films() / "bridge.mp4"; }
    [[nodiscard]] Autosave autosave() const {
        return Autosave(QString::fromStdString((m_folder.path() / "autosave").string()));
    }

    SlitWindow& openFilm() {
        m_slit = std::make_unique<SlitWindow>(m_workspace);
        m_slit->setAttribute(Qt::WA_DeleteOnClose, false);
        m_slit->resize(1280, 800);
        m_slit->show();
        QApplication::setActiveWindow(m_slit.get());
        EXPECT_TRUE(m_slit->open(QString::fromStdString(film().string())));
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return m_slit->loader().index() != nullptr; }, SlitPatience));
        return *m_slit;
    }
    TakingWindow& openRace() {
        m_taking = std::make_unique<TakingWindow>(m_workspace, autosave());
        m_taking->setAttribute(Qt::WA_DeleteOnClose, false);
        EXPECT_TRUE(m_taking->open(QString::fromStdString((films() / "race.kvx").string())));
        return *m_taking;
    }
    /// By the mouse, across all digits of the film.
    void drawLine() {
        LineOverlay& overlay = m_slit->overlay();
        m_slit->drawLine();
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return m_slit->deck().shown(0) != nullptr; }, SlitPatience));
        QApplication::processEvents(); // the film has its place
        drag(overlay, overlay.placeOf({2, 180}), overlay.placeOf({1918, 180}));
        QTest::qWait(0);
        ASSERT_THAT(m_slit->keeping().file().lines, SizeIs(m_slit->lineNumber() + 1));
        EXPECT_NEAR(m_slit->line()->x1, 2, 4);
        EXPECT_NEAR(m_slit->line()->x2, 1918, 4);
        ASSERT_TRUE(QTest::qWaitFor(
            [this] {
                return !m_slit->loader().isReading() &&
                       m_slit->loader().picture(m_slit->lineNumber()).columns > 0;
            },
            SlitPatience));
    }
    static void drag(QWidget& widget, const QPointF& from, const QPointF& to) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from.toPoint());
        QTest::mouseMove(&widget, ((from + to) / 2).toPoint());
        QTest::mouseMove(&widget, to.toPoint());
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to.toPoint());
    }
    void press(QKeyCombination keys) {
        if (QApplication::activeWindow() != m_slit.get())
            QApplication::setActiveWindow(m_slit.get());
        QWidget* const focus = m_slit->focusWidget() ? m_slit->focusWidget() : m_slit.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }
    /// A window with a line and the race, whose first run is in front.
    SlitWindow& openWithRace() {
        TakingWindow& taking = openRace();
        SlitWindow& window = openFilm();
        window.setRace(taking.document(), taking);
        drawLine();
        return window;
    }
    [[nodiscard]] FrameNumber hairFrame() const {
        return slitFrameAt(*m_slit->loader().index(), 0, m_slit->view().hair());
    }
    /// The frame of a mark on this film of 50 frames a second; -1 where none is.
    [[nodiscard]] FrameNumber markedFrame(int run, std::size_t split) const {
        const RunMarks marks = m_taking->document().marks(run);
        if (split > marks.marks.size() || marks.marks[split - 1].empty())
            return -1;
        return m_slit->loader().index()->frameAt(marks.marks[split - 1].front()).value_or(-1);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<TakingWindow> m_taking;
    std::unique_ptr<SlitWindow> m_slit;
};

TEST_F(SlitWindowTest, EnterMarksTheFrameUnderTheHairLine) {
    SlitWindow& window = openWithRace();
    SlitView& view = window.view();
    const SlitPicture& picture = window.loader().picture(0);
    ASSERT_GE(picture.columns, 99);
    for (const FrameNumber column : {0, 1, 50, 98})
        EXPECT_EQ(numberInSlit(picture, column), column);

    QTest::mouseClick(&view, Qt::LeftButton, {},
                      QPoint(qRound(view.placeOf(37.5)), view.height() / 2));
    EXPECT_EQ(hairFrame(), 37);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    ASSERT_EQ(hairFrame(), 38);
    press(Qt::Key_Return);
    const RunMarks marks = m_taking->document().marks(0);
    ASSERT_THAT(marks.marks, SizeIs(1));
    EXPECT_EQ(marks.marks[0].front(), window.loader().index()->stampOf(38));
    EXPECT_EQ(numberInSlit(picture, hairFrame()), 38) << "what stands there is what was marked";
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const FilmPicture* const shown = window.deck().shown(0);
            return shown && !shown->isPreview && numberIn(shown->image) == 38;
        },
        SlitPatience))
        << "the film shows the frame of the hair line";

    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(m_taking->document().marks(0), RunMarks()) << "a step of the split file";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(SlitWindowTest, FinerTimesLeaveTheMarkOnItsFrame) {
    SlitWindow& window = openWithRace();
    window.stage().setHair(40.5);
    for (int i = 0; i < 3; ++i)
        press(Qt::ALT | Qt::Key_Right);
    window.mark();
    const auto timed = [&](int run) { return m_taking->document().run(run).sectioninfo; };
    EXPECT_EQ(markedFrame(0, 1), 40);
    const double whole = window.loader().index()->secondsOf(40);
    EXPECT_NEAR(timed(0).times[0], whole, 1e-9) << "not ticked: the frame's time";
    window.setFiner(true);
    window.mark(); // the next run, at the same place
    EXPECT_EQ(markedFrame(1, 1), 40);
    EXPECT_NEAR(timed(1).times[0], whole + 0.3 / NumberedRate, 1e-6);
    EXPECT_EQ(timed(1).cmtimes[0].front(), window.loader().index()->stampOf(40));
}

TEST_F(SlitWindowTest, RunsAreMarkedInTheirOrderAndMarksAreDragged) {
    SlitWindow& window = openWithRace();
    EXPECT_EQ(window.runTable().model()->rowCount(), 3) << "the run of another film is not here";
    for (const int frame : {20, 50, 80}) {
        window.stage().setHair(frame + 0.5);
        press(Qt::Key_Return);
    }
    EXPECT_EQ(markedFrame(0, 1), 20);
    EXPECT_EQ(markedFrame(1, 1), 50);
    EXPECT_EQ(markedFrame(2, 1), 80);
    EXPECT_EQ(markedFrame(3, 1), -1);

    window.stage().setHair(5.5);
    SlitView& view = window.view();
    const int y = view.height() / 2;
    drag(view, QPointF(view.placeOf(50.5), y), QPointF(view.placeOf(60.5), y));
    EXPECT_EQ(markedFrame(1, 1), 60);
    EXPECT_EQ(markedFrame(0, 1), 20);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(markedFrame(1, 1), 50);

    // A second line is for the next split, whose mark cannot stand before the first.
    LineOverlay& overlay = window.overlay();
    window.drawLine();
    drag(overlay, overlay.placeOf({300, 100}), overlay.placeOf({300, 900}));
    ASSERT_THAT(window.keeping().file().lines, SizeIs(2));
    EXPECT_EQ(window.line()->split, 2);
    window.stage().setHair(10.5);
    window.mark();
    EXPECT_EQ(markedFrame(0, 2), -1);
    EXPECT_THAT(window.told().toStdString(), HasSubstr("split 1"));
    window.stage().setHair(30.5);
    window.mark();
    EXPECT_EQ(markedFrame(0, 2), 30);
    EXPECT_EQ(markedFrame(0, 1), 20);
}

TEST_F(SlitWindowTest, RefusedProposalsStayRefused) {
    SlitWindow& window = openWithRace();
    const auto search = [](SlitWindow& in, double shift) {
        const slitline001 line = *in.line();
        in.search().keep(lineOf(line), boatOf(line),
                         crossingsAt({0.4 + shift, 1.0 + shift, 1.6 + shift}));
    };
    search(window, 0);
    EXPECT_EQ(window.proposalTable().model()->rowCount(), 3);
    press(Qt::Key_PageDown);
    EXPECT_EQ(hairFrame(), 20);
    press(Qt::Key_PageDown);
    press(Qt::Key_Delete);
    EXPECT_THAT(window.proposals(), SizeIs(2));
    search(window, 0.04); // another search finds them a little later
    EXPECT_THAT(window.proposals(), SizeIs(2));

    disk::waitForAll();
    m_slit.reset();
    SlitWindow& again = openFilm();
    ASSERT_TRUE(again.line()) << "the line is kept beside the film";
    search(again, 0);
    EXPECT_THAT(again.proposals(), SizeIs(2));
    again.forgetRefusals();
    EXPECT_THAT(again.proposals(), SizeIs(3));
}

TEST_F(SlitWindowTest, AProposalBringsTheRunThatItIsHeldFor) {
    SlitWindow& window = openWithRace();
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()),
                         crossingsAt({0.2, 0.76, 1.32, 1.88}));
    window.stage().setHair(0.5);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(hairFrame(), 38);
    EXPECT_EQ(window.runTable().currentPlace(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(markedFrame(0, 1), -1);
    EXPECT_EQ(markedFrame(1, 1), 38);
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    EXPECT_EQ(hairFrame(), 10);
    EXPECT_EQ(window.runTable().currentPlace(), 0);

    ColumnTable& proposals = window.proposalTable();
    const auto click = [&](int row) {
        const QModelIndex index = proposals.model()->index(row, 0);
        proposals.scrollTo(index);
        const QRect cell = proposals.visualRect(index);
        QTest::mouseClick(proposals.viewport(), Qt::LeftButton, {}, cell.center());
    };
    click(2);
    EXPECT_EQ(hairFrame(), 66);
    EXPECT_EQ(window.runTable().currentPlace(), 2);
    click(3); // falls to no run
    EXPECT_EQ(hairFrame(), 94);
    EXPECT_EQ(window.runTable().currentPlace(), 2);
}

TEST_F(SlitWindowTest, EnterOnceTooOftenIsTold) {
    SlitWindow& window = openWithRace();
    window.stage().setHair(20.5);
    press(Qt::Key_Return);
    EXPECT_THAT(window.told().toStdString(), Not(HasSubstr("Ann Lee")));
    press(Qt::Key_Return); // the next run, for which nothing was looked
    EXPECT_EQ(markedFrame(1, 1), 20) << "two boats can be side by side";
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Ann Lee"));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(markedFrame(1, 1), -1);
    EXPECT_EQ(markedFrame(0, 1), 20);

    for (int run = 1; run < 3; ++run) {
        window.runTable().choose(run);
        window.stage().setHair(20.5 + 30 * run);
        press(Qt::Key_Return);
    }
    ASSERT_EQ(markedFrame(2, 1), 80);
    const int steps = m_taking->document().undoStack().index();
    press(Qt::Key_Return); // all are marked
    EXPECT_EQ(m_taking->document().undoStack().index(), steps);
    EXPECT_THAT(window.told().toStdString(), HasSubstr("Cy Dal"));
    EXPECT_THAT(window.told().toStdString(), Not(HasSubstr("Bo Fox")));
}

TEST_F(SlitWindowTest, UndoTakesBackLinesRefusalsAndMarksInTheirOrder) {
    SlitWindow& window = openWithRace();
    const QKeyCombination undo = Qt::CTRL | Qt::Key_Z;
    const QKeyCombination redo = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;
    const auto refused = [&] { return window.line() ? window.line()->refused.size() : 0; };
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()), crossingsAt({0.4, 1.6}));
    window.stage().setHair(20.5);
    press(Qt::Key_Return);
    ASSERT_EQ(markedFrame(0, 1), 20);
    window.stage().setHair(80.5);
    press(Qt::Key_Delete);
    ASSERT_EQ(refused(), 1U);
    press(Qt::Key_Return);
    ASSERT_EQ(markedFrame(1, 1), 80);

    press(undo);
    EXPECT_EQ(markedFrame(1, 1), -1);
    EXPECT_EQ(refused(), 1U);
    press(undo);
    EXPECT_EQ(refused(), 0U);
    EXPECT_EQ(markedFrame(0, 1), 20);
    press(undo);
    EXPECT_EQ(markedFrame(0, 1), -1);
    press(undo);
    EXPECT_THAT(window.keeping().file().lines, IsEmpty());
    for (int i = 0; i < 4; ++i)
        press(redo);
    EXPECT_EQ(refused(), 1U);
    EXPECT_EQ(markedFrame(1, 1), 80);

    // A line that is removed comes back, also in the file.
    window.removeLine();
    press(undo);
    EXPECT_EQ(refused(), 1U);
    disk::waitForAll();
    const auto kept = readSlitFile(slitFileOf(film()));
    ASSERT_TRUE(kept);
    EXPECT_THAT(kept->lines, SizeIs(1));

    // What is marked after split taking took its steps back is later than the lines.
    window.turnArrow();
    window.setSplit(1); // as it is: no step
    const bool isTurned = window.line()->fromLeft;
    m_taking->undo();
    m_taking->undo();
    window.runTable().choose(2);
    window.stage().setHair(90.5);
    window.mark();
    ASSERT_EQ(markedFrame(2, 1), 90);
    press(undo);
    EXPECT_EQ(markedFrame(2, 1), -1);
    EXPECT_EQ(window.line()->fromLeft, isTurned);
    press(undo);
    EXPECT_EQ(window.line()->fromLeft, !isTurned);
}

/// Which of the two it is the figures of the search say.
TEST_F(SlitWindowTest, AcceptAllMarksEveryRunInOneStepOrTellsWhyNot) {
    SlitWindow& window = openWithRace();
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()),
                         crossingsAt({0.4, 1.0, 1.6}));
    const bool isLocked = !window.lockOfAcceptAll().isEmpty();
    window.acceptAll();
    EXPECT_EQ(m_recorder.alerts.empty(), !isLocked);
    for (int run = 0; run < 3; ++run)
        EXPECT_EQ(markedFrame(run, 1), isLocked ? -1 : 20 + 30 * run);
    if (!isLocked)
        window.race().undo();
    EXPECT_EQ(markedFrame(2, 1), -1);
}

TEST_F(SlitWindowTest, TellsWhatIsMissingInsteadOfMarking) {
    SlitWindow& window = openFilm();
    window.mark();
    EXPECT_THAT(window.told().toStdString(), HasSubstr("line"));
    LineOverlay& overlay = window.overlay();
    window.drawLine();
    drag(overlay, overlay.placeOf({500, 500}), overlay.placeOf({502, 500}));
    EXPECT_THAT(window.keeping().file().lines, IsEmpty()) << "a slip of the mouse";
    EXPECT_FALSE(window.told().isEmpty());
    drawLine();
    QSignalSpy asked(&window, &SlitWindow::raceRequested);
    window.mark();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_THAT(asked.front().front().toString().toStdString(), HasSubstr("race.kvx"));
    // Split taking that is closed takes its race along.
    TakingWindow& taking = openRace();
    window.setRace(taking.document(), taking);
    EXPECT_EQ(window.runTable().model()->rowCount(), 3);
    m_taking.reset();
    EXPECT_FALSE(window.race().isThere());
    EXPECT_EQ(window.runTable().model()->rowCount(), 0);
}

TEST_F(SlitWindowTest, ArrowKeysMoveTheLineWhileTheFilmHasTheFocus) {
    SlitWindow& window = openWithRace();
    const slitline001 before = *window.line();
    const double hair = window.view().hair();
    window.overlay().setFocus();
    press(Qt::SHIFT | Qt::Key_Down);
    EXPECT_NEAR(window.line()->y1, before.y1 + 10, 1e-9);
    EXPECT_EQ(window.line()->y2, before.y2) << "the first end alone";
    EXPECT_EQ(window.view().hair(), hair) << "the hair line rests";
    window.overlay().setFocus();
    for (int i = 0; i < 3; ++i)
        press(Qt::SHIFT | Qt::Key_Left);
    EXPECT_EQ(window.line()->x1, 0) << "no farther than the edge of the film";
}

TEST_F(SlitWindowTest, SavesWhatIsSeenAsAPicture) {
    SlitWindow& window = openWithRace();
    const auto file = QString::fromStdString((m_folder.path() / "slit.png").string());
    window.view().showWhole();
    EXPECT_EQ(window.exportTo(file), QString());
    const QImage picture(file);
    EXPECT_EQ(picture.width(), window.loader().picture(0).columns);
    EXPECT_GT(picture.height(), window.loader().picture(0).height) << "with the scale below";
    EXPECT_FALSE(window.exportTo("/nowhere/at all/slit.png").isEmpty());
}

TEST_F(SlitWindowTest, SplitTakingShowsTheStripAndAClickSeeks) {
    openFilm();
    drawLine();
    disk::waitForAll();
    m_slit.reset();
    TakingWindow& taking = openRace();
    taking.resize(1280, 800);
    taking.show();
    taking.selectRun(0);
    auto* const strip = taking.findChild<SlitStrip*>();
    ASSERT_TRUE(strip);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return strip->isVisible() && strip->loader().picture(0).columns > 90; },
        SlitPatience));
    const int place = taking.stage().line().placeOf(1.2);
    QTest::mouseClick(strip, Qt::LeftButton, {}, QPoint(place, strip->height() / 2));
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(taking.deck().position() - 1.2) < 0.1; },
                                SlitPatience));

    // With a line for each split it is that of the next one, though it was not drawn in that order.
    slitfile001 file = readSlitFile(slitFileOf(film())).value();
    file.lines.insert(file.lines.begin(), file.lines.front());
    file.lines.front().split = 2;
    writeSlitFile(file, slitFileOf(film()));
    strip->follow();
    EXPECT_EQ(strip->shownLine(), 1U) << "no split is marked";
    const auto index = taking.deck().index(0);
    ASSERT_TRUE(index);
    RunMarks marks;
    marks.marks.push_back({index->stampOf(20)});
    taking.document().setMarks(0, "marked", marks);
    EXPECT_EQ(strip->shownLine(), 0U);
    taking.selectRun(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip->shownLine() == 1; }, SlitPatience))
        << "of another run";
    taking.selectRun(3); // its film is not there
    EXPECT_TRUE(QTest::qWaitFor([&] { return !strip->isVisible(); }, SlitPatience));
}

} // namespace
} // namespace kavela::test
