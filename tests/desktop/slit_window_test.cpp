#include "desktop/slit_fixture.h"
#include "desktop/slow_disk.h"

namespace kavela::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

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
    {
        const SlowDisk slow;
        window.exportTo(file);
        EXPECT_FALSE(fs::exists(file.toStdString())) << "the window waits for no disk";
    }
    // Under its name stands a whole picture or none.
    ASSERT_TRUE(QTest::qWaitFor([&] { return fs::exists(file.toStdString()); }, SlitPatience));
    const QImage picture(file);
    EXPECT_EQ(picture.width(), window.loader().picture(0).columns);
    EXPECT_GT(picture.height(), window.loader().picture(0).height) << "with the scale below";
    EXPECT_THAT(window.told().toStdString(), Not(HasSubstr("could not be saved")));
    window.exportTo("/nowhere/at all/slit.png");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.told().contains("could not be saved"); },
                                SlitPatience));
}

TEST_F(SlitWindowTest, SavesThePictureThoughTheWindowIsClosed) {
    SlitWindow& window = openWithRace();
    const fs::path file = m_folder.path() / "slit.png";
    {
        const SlowDisk slow;
        window.view().showWhole();
        window.exportTo(QString::fromStdString(file.string()));
        m_slit.reset();
    }
    disk::waitForAll();
    EXPECT_FALSE(QImage(QString::fromStdString(file.string())).isNull());
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
    slitfile002 file = readSlitFile(slitFileOf(film())).value();
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
