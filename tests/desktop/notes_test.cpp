#include "desktop/notes_fixture.h"

#include "desktop/splitfile/code_combo.h"
#include "desktop/taking/notes/tag_page.h"

#include <QCheckBox>
#include <QListWidget>

namespace kavela::test {
namespace {

using ::testing::IsEmpty;

TEST_F(NotesTest, MarksTheUpstreamGatesInTurnAndComputesTheirTimes) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    const auto gates = m_window->document().info().upGates;
    press(Qt::CTRL | Qt::Key_3);
    EXPECT_EQ(m_window->gates().current(), gates.front());
    for (int mark = 0; mark < 3; ++mark) {
        press(Qt::Key_M);
        ASSERT_NO_FATAL_FAILURE(goOnASecond());
    }
    ASSERT_THAT(run().upstreams, SizeIs(1));
    EXPECT_THAT(run().upstreams[0].cmtimes, SizeIs(3));
    EXPECT_NEAR(run().upstreams[0].timeEntrace, 1, 1e-9);
    EXPECT_NEAR(run().upstreams[0].time, 2, 1e-9);
    EXPECT_EQ(m_window->gates().current(), gates.at(1)) << "the next gate follows";
    press(Qt::Key_P);
    EXPECT_EQ(m_window->gates().current(), gates.front()) << "among the upstream gates";
    choose("upstreamStyle", 2);
    EXPECT_EQ(run().upstreams[0].style, 2);
    EXPECT_EQ(notes().lanes().rows(), 1);
    undo(4);
    EXPECT_THAT(run().upstreams, IsEmpty());
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, MarksStrokesByHandWithTheStampsOfAllCameras) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::Key_A);
    EXPECT_THAT(run().strokes, IsEmpty()) << "in their own mode only";
    press(Qt::CTRL | Qt::Key_4);
    const auto stamps = m_window->deck().stamps();
    press(Qt::Key_A);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_D);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    ASSERT_THAT(run().strokes, SizeIs(3));
    EXPECT_EQ(run().strokes[0].cmtimes, stamps);
    EXPECT_THAT((std::array{run().strokes[0].hand, run().strokes[1].hand, run().strokes[2].hand}),
                ElementsAre(0, 1, 0));
    EXPECT_THAT(part<QLabel>("strokeRate").text().toStdString(), ::testing::StartsWith("60.0 "));
    press(Qt::Key_X);
    EXPECT_EQ(run().strokes[2].hand, 1);
    press(Qt::CTRL | Qt::Key_Left);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().strokes, SizeIs(2));
    undo(5);
    EXPECT_THAT(run().strokes, IsEmpty());
}

TEST_F(NotesTest, MovesAndRemovesTheNoteThatIsSelectedAndNoSplit) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    const auto splits = run().sectioninfo.cmtimes;
    press(Qt::Key_1); // a split is selected
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->deck().stamps() == splits[0]; }, Patience));
    press(Qt::CTRL | Qt::Key_5);
    press(Qt::Key_Delete);
    EXPECT_EQ(run().sectioninfo.cmtimes, splits) << "the mode left the split";
    EXPECT_THAT(part<QLabel>("noteTold").text().toStdString(),
                ::testing::HasSubstr("Nothing is selected"));
    press(Qt::Key_M);
    ASSERT_THAT(run().microsplits, SizeIs(1));
    const double marked = run().microsplits[0].time;
    press(Qt::ALT | Qt::Key_Right);
    EXPECT_NEAR(run().microsplits[0].time, marked + 0.02, 1e-9);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::SHIFT | Qt::Key_M);
    EXPECT_NEAR(run().microsplits[0].time, marked + 1, 1e-9);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().microsplits, IsEmpty());
    undo(1);
    EXPECT_THAT(run().microsplits, SizeIs(1));
    EXPECT_EQ(run().sectioninfo.cmtimes, splits);
}

TEST_F(NotesTest, KeepsTheNameOfATagAndPlaysJustItsPart) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    m_workspace.setPreference("comtagIndex", std::int64_t{1});
    press(Qt::CTRL | Qt::Key_6);
    auto& name = part<QComboBox>("tagName");
    EXPECT_EQ(name.currentText(), "Wave") << "the one chosen last";
    name.setFocus();
    name.lineEdit()->selectAll();
    QTest::keyClicks(&name, "Eddy");
    press(Qt::Key_Return);
    EXPECT_THAT(run().customData, IsEmpty()) << "Enter takes the name";
    press(Qt::Key_Return);
    EXPECT_THAT(run().customData, SizeIs(1)) << "once more it is the marking key";
    press(Qt::Key_Escape);
    press(Qt::Key_M);
    EXPECT_THAT(run().customData[0].tags, SizeIs(1)) << "the tag is there on this frame";
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    ASSERT_THAT(run().customData, SizeIs(::testing::Ge(1U)));
    EXPECT_EQ(run().customData[0].tags.front(), "Eddy");
    EXPECT_THAT(m_workspace.preferences().array("savedtags"), ElementsAre("Eddy"));
    EXPECT_EQ(m_workspace.preferences().integer("comtagIndex"), 2);
    press(Qt::CTRL | Qt::Key_Left);
    press(Qt::SHIFT | Qt::Key_Space);
    EXPECT_TRUE(m_window->deck().isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->deck().isPlaying(); }, Patience));
    EXPECT_NEAR(m_window->deck().position(), 1, 0.5) << "the next tag ends the part";
}

TEST_F(NotesTest, DescribesPenaltiesInStepWithTheirSeconds) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    press(Qt::CTRL | Qt::Key_2);
    press(Qt::Key_N);
    choose("penaltyKind", 1);
    press(Qt::Key_M);
    EXPECT_EQ(run().sectioninfo.pens.at(1), 50);
    choose("penaltyKind", 0);
    choose("penaltyWay", 1);
    EXPECT_EQ(run().sectioninfo.pens.at(1), 2);
    ASSERT_THAT(run().sectioninfo.pendetails, SizeIs(1));
    EXPECT_THAT(run().sectioninfo.pendetails[0].gate, ElementsAre(2));
    EXPECT_THAT(run().sectioninfo.pendetails[0].penway, ElementsAre(1));
    press(Qt::Key_0);
    EXPECT_THAT(run().sectioninfo.pendetails, IsEmpty()) << "a clean gate has no details";
    undo(1);
    press(Qt::Key_P);
    press(Qt::Key_Delete);
    EXPECT_EQ(run().sectioninfo.pens.at(1), 0);
    undo(4);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, ComparesAStretchWithTheOtherRunOnBothFilms) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::CTRL | Qt::Key_7);
    press(Qt::Key_M);
    for (int i = 0; i < 2; ++i)
        ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    press(Qt::CTRL | Qt::Key_T);
    ASSERT_EQ(m_window->currentRun(), 1);
    ASSERT_TRUE(settles());
    press(Qt::Key_M);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    EXPECT_THAT(run(1).timeslosses, IsEmpty()) << "the loss is the other run's";
    ASSERT_THAT(run().timeslosses, SizeIs(1));
    EXPECT_NEAR(run().timeslosses[0].timeloss, 1, 1e-9);
    EXPECT_NEAR(run().timeslosses[0].timelossper, 100, 1e-9);
    press(Qt::CTRL | Qt::Key_T);
    EXPECT_EQ(m_window->currentRun(), 0);
    choose("lossWater", 3);
    EXPECT_EQ(run().timeslosses[0].waterFeature, 3);
    auto& reason = part<QLineEdit>("lossNewReason");
    reason.setFocus();
    QTest::keyClicks(&reason, "Late");
    press(Qt::Key_Return);
    EXPECT_THAT(run().timeslosses[0].reasons, ElementsAre("Late"));
    EXPECT_THAT(m_workspace.preferences().array("savedTLreasons"), ElementsAre("Late"));
    part<QListWidget>("lossReasons").item(0)->setCheckState(Qt::Unchecked);
    EXPECT_TRUE(QTest::qWaitFor([&] { return run().timeslosses[0].reasons.empty(); }, Patience));
    undo(7);
    EXPECT_THAT(run().timeslosses, IsEmpty());
}

TEST_F(NotesTest, TakesCommentsOnTheRunTheyWereTypedFor) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    press(Qt::CTRL | Qt::Key_8);
    auto& comments = table("comments");
    EXPECT_TRUE(comments.isVisible());
    const auto type = [&](const char* text) {
        comments.edit(1, 1);
        QTest::keyClicks(QApplication::focusWidget(), text);
    };
    comments.setFocus();
    comments.choose(0, 1);
    press(Qt::Key_W);
    EXPECT_FALSE(comments.findChild<QLineEdit*>()) << "a key of the film that was missed";
    type("Too wide");
    press(Qt::Key_Return);
    EXPECT_EQ(run().sectioninfo.comments.at(1), "Too wide");
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return comments.currentPlace() == 2 &&
               qobject_cast<QLineEdit*>(QApplication::focusWidget());
    })) << "Enter goes on to the next one";
    type("Late");
    m_window->selectRun(1);
    EXPECT_EQ(run().sectioninfo.comments.at(1), "Late");
    EXPECT_THAT(run(1).sectioninfo.comments, IsEmpty());
    EXPECT_EQ(cell("comments", 1, 1), "");
    part<QCheckBox>("commentsVisible").click();
    EXPECT_FALSE(comments.isVisible());
    EXPECT_FALSE(m_workspace.preferences().boolean("coachswordvisible"));
    undo(2);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, RefusesModesThatHaveNothingToWorkOn) {
    splittakerdata031 race = timedRace();
    race.info.upGates.clear();
    race.athletes.clear();
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    while (m_window->document().runCount() > 0)
        m_window->document().removeRun(0);
    press(Qt::CTRL | Qt::Key_3);
    press(Qt::CTRL | Qt::Key_6);
    EXPECT_THAT(m_recorder.alerts, ElementsAre(messages::NoUpstreams, messages::NoAthleteSelected));
    EXPECT_EQ(notes().mode(), NoteMode::Splits);
    m_recorder.alerts.clear();
    for (const Qt::Key mode : {Qt::Key_2, Qt::Key_4, Qt::Key_5, Qt::Key_7, Qt::Key_8}) {
        press(Qt::CTRL | mode);
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_X, Qt::Key_N})
            press(key);
        press(Qt::SHIFT | Qt::Key_M);
    }
    EXPECT_THAT(m_recorder.alerts, IsEmpty()) << "nothing to work on, nothing happens";
}

/// As a file from elsewhere may be: its film is gone, and its codes are those of a later release.
TEST_F(NotesTest, ListsAndEditsTheMarksOfARunWithoutItsFilm) {
    splittakerdata031 race = timedRace();
    athletedata031& run = race.athletes[0];
    run.videoname.clear();
    run.upstreams = {{race.info.upGates[0], 9, 77, {{-90, 30, 1, 0}, {60, 30, 1, 0}}, 5, 0, 0}};
    run.microsplits = {{{9000000, 30, 1, 0}, 3e5}};
    run.strokes = {{{{45, 30, 1, 0}}, 1.5, 12, 0}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    const QStringList before = listed();
    EXPECT_EQ(before.front(), QString("Gate %1 entrance").arg(race.info.upGates[0]));
    notes().list().setFilter(onlyKinds(std::array{MarkKind::Stroke}));
    EXPECT_EQ(listed(), QStringList{"12"});
    notes().list().setFilter(MarkFilter().set());
    auto& tree = part<QTreeWidget>("marks");
    emit tree.itemClicked(tree.topLevelItem(0), 0);
    EXPECT_EQ(notes().mode(), NoteMode::Upstreams) << "a mark brings its mode";
    EXPECT_EQ(part<QComboBox>("upstreamStyle").currentText(), "77");
    press(Qt::ALT | Qt::Key_Right);
    EXPECT_NEAR(this->run().upstreams[0].cmtimes[0].seconds(), -2.99, 1e-6);
    EXPECT_EQ(this->run().upstreams[0].style, 77);
    press(Qt::Key_Delete);
    EXPECT_EQ(this->run().upstreams[0].time, 0);
    undo(2);
    EXPECT_EQ(listed(), before);
    EXPECT_EQ(this->run().upstreams[0].time, 5) << "as the file had it";
    press(Qt::Key_M);
    EXPECT_THAT(m_recorder.alerts, ElementsAre(messages::NoVideo));
}

TEST_F(NotesTest, JumpsFromTheListAndTellsWhatLiesOutsideTheFilm) {
    splittakerdata031 race = timedRace();
    race.athletes[0].microsplits = {{{100, 50, 1, 0}, 0}, {{500000, 50, 1, 0}, 1e4}};
    ASSERT_NO_FATAL_FAILURE(open(race, true));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return listed().last().endsWith("outside the film"); }, Patience));
    press(Qt::CTRL | Qt::Key_5);
    press(Qt::CTRL | Qt::Key_Right);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const auto stamps = m_window->deck().stamps();
            return !stamps.empty() && stamps.front().seconds() == 2;
        },
        Patience));
    ASSERT_TRUE(notes().selected());
    EXPECT_EQ(notes().selected()->handle.record, 0U);
    const CMTime outside = run().microsplits[1].cmtime;
    EXPECT_EQ(m_window->deck().nudged(0, outside, -1), later(outside, -0.01))
        << "a mark behind the film does not jump into it";
    EXPECT_FALSE(m_window->document().isDirty()) << "looking changes nothing";
}

} // namespace
} // namespace kavela::test
