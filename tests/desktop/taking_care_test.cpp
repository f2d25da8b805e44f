#include "common/json_encode.h"
#include "desktop/film/film_stage.h"
#include "desktop/notes_fixture.h"
#include "desktop/refusals.h"
#include "desktop/saving.h"
#include "desktop/taking/split_mode.h"
#include "splittaking/annotations/time_losses.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QPushButton>

namespace kavela::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What a coach types and selects stays with the run it was meant for.
class TakingCareTest : public NotesTest {
protected:
    void type(const char* name, const char* text) {
        auto& field = part<QLineEdit>(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    const std::string& crew(int index) const { return run(index).names.front(); }
};

TEST_F(TakingCareTest, LeavesASelectedMarkThatUndoTookAway) {
    splittakerdata031 race = timedRace();
    for (athletedata031& each : race.athletes)
        each.sectioninfo.cmtimes.clear();
    race.athletes[0].sectioninfo.times.clear();
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    const Stamps first{{100, 50, 1, 0}};
    const Stamps second{{200, 50, 1, 0}};
    m_window->document().setMarks(0, "marks", {.start = first, .marks = {second}});
    m_window->stage().goToMark(1);
    ASSERT_EQ(m_window->splits().selectedMark(), 1U);
    undo(1);
    EXPECT_FALSE(m_window->splits().selectedMark());
    for (const auto key :
         {QKeyCombination(Qt::Key_Delete), Qt::SHIFT | Qt::Key_M, Qt::ALT | Qt::Key_Right})
        press(key);
    EXPECT_FALSE(m_window->document().isDirty()) << "there was nothing to act on";
}

TEST_F(TakingCareTest, TakesWhatIsTypedBeforeTheRunsChangePlaces) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    const std::string other = crew(1);
    type("crew", "Nova");
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_Down);
    EXPECT_EQ(crew(1), "Nova");
    EXPECT_EQ(crew(0), other);
    EXPECT_EQ(m_window->currentRun(), 1) << "the run that moved stays in front";
    type("crew", "Zora");
    m_window->removeRun();
    EXPECT_EQ(m_window->document().runCount(), 1);
    EXPECT_EQ(crew(0), other);
    EXPECT_EQ(m_window->currentRun(), 0);
    EXPECT_EQ(part<QLineEdit>("crew").text(), QString::fromStdString(other));
    m_window->undo();
    EXPECT_EQ(crew(1), "Zora") << "it was typed before the run went";
    m_window->undo();
    EXPECT_EQ(crew(1), "Nova");
    EXPECT_EQ(m_window->currentRun(), 0);
}

TEST_F(TakingCareTest, StaysAtTheRunWhoseTimeIsRefusedInEveryPart) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    auto& runs = table("runs");
    type("realTime", "9x");
    QTest::mouseClick(runs.viewport(), Qt::LeftButton, {},
                      runs.visualRect(runs.cellAt(1, 0)).center());
    EXPECT_THAT(refusalIn(*m_window), HasSubstr("9x"));
    EXPECT_EQ(m_window->currentRun(), 0);
    EXPECT_EQ(runs.currentPlace(), 0);
    EXPECT_THAT(runs.selectedPlaces(), ElementsAre(0)) << "what is marked is what is shown";
}

TEST_F(TakingCareTest, KeepsTheRunInFrontThatWasCorrectedInTheList) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    const auto& runs = table("runs");
    enter("runs", 1, 0, "Nova");
    EXPECT_EQ(crew(1), "Nova");
    EXPECT_EQ(m_window->currentRun(), 0);
    table("runs").choose(1);
    EXPECT_EQ(m_window->currentRun(), 1);
    m_window->moveRun(-1);
    EXPECT_EQ(cell("runs", 0, 0), "Nova");
    EXPECT_EQ(runs.currentPlace(), 0);
    undo(1);
    EXPECT_EQ(runs.currentPlace(), 1);
    EXPECT_EQ(m_window->currentRun(), 1);
    m_window->removeRun();
    EXPECT_EQ(runs.currentPlace(), 0) << "the last one is gone";
    EXPECT_EQ(m_window->currentRun(), 0);
    undo(2);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(TakingCareTest, PutsARunInFrontAsSoonAsThereIsOne) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    while (m_window->document().runCount() > 0)
        m_window->removeRun();
    EXPECT_EQ(m_window->currentRun(), -1);
    m_window->moveRun(1);
    m_window->selectRun(7);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(m_window->document().runCount(), 1);
    EXPECT_EQ(m_window->currentRun(), 0);
}

TEST_F(TakingCareTest, SavesWhatIsStillBeingTyped) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    press(Qt::CTRL | Qt::Key_8);
    table("comments").edit(0, 1);
    QTest::keyClicks(QApplication::focusWidget(), "Wide");
    EXPECT_TRUE(saved(*m_window));
    const auto saved =
        recogniseSplitFile(m_window->document().path().toStdString(), m_recorder.log(), systemNow);
    EXPECT_EQ(saved.document.athletes[0].sectioninfo.comments.at(0), "Wide");
    EXPECT_FALSE(m_window->document().isDirty());

    const auto splits = run().sectioninfo.cmtimes;
    auto& score = part<QDoubleSpinBox>("coachsScore");
    score.setFocus();
    score.selectAll();
    QTest::keyClicks(&score, "7.5");
    press(Qt::Key_Up);
    EXPECT_EQ(m_window->currentRun(), 0) << "the arrows are the number's";
    press(Qt::Key_Return);
    EXPECT_EQ(run().coachsscore, 8);
    EXPECT_EQ(run().sectioninfo.cmtimes, splits) << "Enter was for the score";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TakingCareTest, KeepsTheWordsOfALossWhenAnotherRunComes) {
    splittakerdata031 race = timedRace();
    race.athletes[0].timeslosses.assign(2, lossAgainst(race.athletes[0], race.athletes[1]));
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    press(Qt::CTRL | Qt::Key_7);
    click("losses", 0);
    type("lossComment", "Too high");
    click("losses", 1);
    EXPECT_EQ(part<QLineEdit>("lossComment").text(), "");
    type("lossComment", "Late");
    m_window->selectRun(1);
    EXPECT_EQ(run(0).timeslosses[0].comments, "Too high");
    EXPECT_EQ(run(0).timeslosses[1].comments, "Late");
    EXPECT_THAT(run(1).timeslosses, IsEmpty());
}

TEST_F(TakingCareTest, ShowsAScoreBeyondTheBestAndLeavesIt) {
    splittakerdata031 race = timedRace();
    race.athletes[0].coachsscore = 12;
    race.athletes[1].coachsscore = 3;
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    press(Qt::CTRL | Qt::Key_8);
    auto& score = part<QDoubleSpinBox>("coachsScore");
    EXPECT_EQ(score.value(), 12);
    m_window->selectRun(1);
    EXPECT_EQ(score.value(), 3);
    EXPECT_EQ(score.maximum(), 10);
    m_window->selectRun(0);
    EXPECT_FALSE(m_window->document().isDirty()) << "looking changes nothing";
    score.stepBy(-1);
    EXPECT_EQ(run().coachsscore, 10) << "no more than the best can be given";
    EXPECT_EQ(score.value(), 10);
}

TEST_F(TakingCareTest, RemovesTheRowOfTheMenuAndNotTheSplitThatIsSelected) {
    splittakerdata031 race = timedRace();
    race.athletes[0].microsplits = {{{100, 50, 1, 0}, 0}, {{200, 50, 1, 0}, 0}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    const auto splits = run().sectioninfo.cmtimes;
    press(Qt::CTRL | Qt::Key_5);
    auto& micros = table("microSplits");
    m_window->stage().goToMark(1);
    micros.choose(0);
    for (QAction* const action : micros.actions())
        if (action->text() == "Remove")
            action->trigger();
    EXPECT_EQ(run().sectioninfo.cmtimes, splits);
    ASSERT_THAT(run().microsplits, SizeIs(1));
    EXPECT_EQ(run().microsplits[0].cmtime.seconds(), 4);
    micros.setFocus();
    micros.choose(0);
    m_window->stage().goToMark(1);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().microsplits, SizeIs(1)) << "the split was selected last";
}

TEST_F(TakingCareTest, RemovesThePenaltyAndNotTheSplitThatWasSelectedBefore) {
    splittakerdata031 race = timedRace();
    race.athletes[0].sectioninfo.pens.at(4) = 2;
    race.athletes[0].sectioninfo.pens.at(2) = 2;
    race.athletes[0].sectioninfo.pendetails = {
        {{5, 3}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    const auto splits = run().sectioninfo.cmtimes;
    press(Qt::CTRL | Qt::Key_2);
    m_window->stage().goToMark(1);
    click("penalties", 0);
    press(Qt::Key_Delete);
    EXPECT_EQ(run().sectioninfo.cmtimes, splits);
    EXPECT_THAT(run().sectioninfo.pendetails.at(0).gate, ElementsAre(3));
    click("penalties", 0); // gate 3, at the place that gate 5 had
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::Key_Delete);
    EXPECT_EQ(run().sectioninfo.pens.at(4), 2) << "another penalty came to that place";
    EXPECT_EQ(run().sectioninfo.pens.at(2), 0);
}

/// What every mode writes is in the file, and shown again.
TEST_F(TakingCareTest, ReopensWhatEveryModeWrote) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    const auto press2 = [&](QKeyCombination mode, QKeyCombination key) {
        press(mode);
        press(key);
    };
    press2(Qt::CTRL | Qt::Key_2, Qt::Key_M);
    press2(Qt::CTRL | Qt::Key_3, Qt::Key_M);
    press2(Qt::CTRL | Qt::Key_4, Qt::Key_D);
    press2(Qt::CTRL | Qt::Key_5, Qt::Key_M);
    press(Qt::CTRL | Qt::Key_6);
    part<QComboBox>("tagName").setEditText("Wave");
    press(Qt::Key_M);
    press2(Qt::CTRL | Qt::Key_7, Qt::Key_M);
    press(Qt::CTRL | Qt::Key_8);
    part<QDoubleSpinBox>("athletesScore").setValue(6.5);
    enter("comments", 2, 1, "High line");
    press(Qt::CTRL | Qt::Key_9);
    part<QPushButton>("strategyAdd").click();
    type("strategyNewWay", "Spin");
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    press(Qt::Key_M);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    ASSERT_TRUE(saved(*m_window));
    const auto notesOf = [](athletedata031 record) {
        record.sectioninfo.xTime = record.sectioninfo.xPer = 0; // computed as it is written
        return encode(record);
    };
    const std::string written = notesOf(run());
    const QStringList marks = listed();
    EXPECT_THAT(marks, SizeIs(::testing::Ge(12)));
    const QString path = m_window->document().path();
    m_window.reset();

    m_window = std::make_unique<TakingWindow>(
        m_workspace,
        desktop::Autosave(QString::fromStdString((m_folder.path() / "autosave").string())));
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(m_window->open(path));
    EXPECT_EQ(notesOf(run()), written);
    EXPECT_EQ(run().strokes.at(0).hand, 1);
    EXPECT_NEAR(run().strategies.at(0).times.at(0), 1, 1e-9);
    EXPECT_EQ(run().sectioninfo.pens.at(0), 2);
    EXPECT_EQ(listed().size(), marks.size());
    notes().setMode(NoteMode::Strategies);
    EXPECT_EQ(cell("strategyWays", 0, 2), "1.00");
    notes().setMode(NoteMode::Comments);
    EXPECT_EQ(cell("comments", 2, 1), "High line");
}

/// As other programs may write them.
TEST_F(TakingCareTest, OpensRunsWhoseMarksAreNoMomentsOfTheSecondFilm) {
    splittakerdata031 race = timedRace();
    for (athletedata031& each : race.athletes) {
        each.videoname.push_back(each.videoname.front());
        for (Stamps& stamps : each.sectioninfo.cmtimes)
            stamps.resize(2, CMTime{});
    }
    for (const films::PlannedFilm& film :
         films::sessionFilms(timedRace(), {}, [](const fs::path&) { return true; }))
        (void)m_folder.add("films/" + film.name.filename().string(), filmOf(film));
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const auto index = m_window->deck().index(1);
            return index && index->isComplete();
        },
        Patience));
    QApplication::processEvents();
    EXPECT_FALSE(m_window->document().isDirty());
}

} // namespace
} // namespace kavela::test
