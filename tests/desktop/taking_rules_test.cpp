#include "desktop/desktop.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/time_line.h"
#include "desktop/notes_fixture.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/saving.h"
#include "desktop/taking/split_mode.h"
#include "splittaking/annotations/time_losses.h"
#include "splittaking/course_setup.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>

namespace kavela::test {
namespace {

using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Two runs on film, the first of them not marked yet.
splittakerdata031 unmarkedRace() {
    splittakerdata031 race = timedRace();
    sectiondata030& timing = race.athletes[0].sectioninfo;
    timing.times.clear();
    timing.cmtimes.clear();
    timing.splitnum = 0;
    timing.totaltime = 0;
    return race;
}

/// What the keys may not do to a run, whatever is pressed.
class TakingRulesTest : public NotesTest {
protected:
    void goTo(double seconds) {
        m_window->deck().seek(seconds);
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                const auto stamps = m_window->deck().stamps();
                return !stamps.empty() && std::abs(stamps.front().seconds() - seconds) < 0.001;
            },
            Patience));
    }

    void markAt(double seconds) {
        ASSERT_NO_FATAL_FAILURE(goTo(seconds));
        press(Qt::Key_M);
    }

    std::vector<double> times() const {
        std::vector<double> taken = run().sectioninfo.times;
        while (!taken.empty() && taken.back() == 0)
            taken.pop_back();
        return taken;
    }

    std::string told() const { return part<QLabel>("noteTold").text().toStdString(); }

    std::unique_ptr<TakingWindow> opened() {
        auto window = std::make_unique<TakingWindow>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "autosave").string())));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        EXPECT_TRUE(window->open(QString::fromStdString((folder() / "films.kvx").string())));
        return window;
    }

    void type(const char* name, const char* text) {
        auto& field = part<QLineEdit>(name);
        field.setFocus();
        QTest::keyClicks(&field, text);
    }
};

auto seconds(const std::vector<double>& times) {
    return ::testing::Pointwise(::testing::DoubleNear(1e-9), times);
}

TEST_F(TakingRulesTest, TakesNoSplitBeforeTheMarkThatComesFirst) {
    ASSERT_NO_FATAL_FAILURE(open(unmarkedRace(), true));
    for (const double moment : {10.0, 20.0, 30.0})
        ASSERT_NO_FATAL_FAILURE(markAt(moment));
    EXPECT_THAT(times(), seconds({10, 10}));
    ASSERT_NO_FATAL_FAILURE(markAt(0));
    EXPECT_THAT(told(), HasSubstr("before the start at 10.00"));
    ASSERT_NO_FATAL_FAILURE(markAt(20));
    EXPECT_EQ(told(), "Split 1 is marked on this frame already.");
    EXPECT_THAT(times(), seconds({10, 10}));
    ASSERT_NO_FATAL_FAILURE(markAt(19));
    EXPECT_THAT(times(), seconds({9, 1, 10})) << "a split that was missed";
    EXPECT_EQ(m_window->splits().selectedMark(), 1U);
    EXPECT_THAT(told(), HasSubstr("put in between"));
    press(Qt::CTRL | Qt::Key_Z);
    m_window->stage().goToMark(2);
    ASSERT_NO_FATAL_FAILURE(goTo(15));
    press(Qt::SHIFT | Qt::Key_M);
    EXPECT_THAT(told(), HasSubstr("before split 1 at 20.00"));
    m_window->stage().dropMark(1, 31);
    EXPECT_THAT(told(), HasSubstr("after split 2 at 30.00"));
    EXPECT_THAT(times(), seconds({10, 10}));
    undo(3);
    EXPECT_FALSE(m_window->document().isDirty()) << "what was refused is no step";
}

TEST_F(TakingRulesTest, OpensMarksThatAreOutOfOrderAsTheyAre) {
    splittakerdata031 race = unmarkedRace();
    race.athletes[0].sectioninfo.times = {10, -1, -19};
    race.athletes[0].sectioninfo.cmtimes = {{{1000, 50, 1, 0}}, {{950, 50, 1, 0}}, {{0, 50, 1, 0}}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    EXPECT_THAT(times(), seconds({10, -1, -19}));
    double others = 0;
    for (const double time : run(1).sectioninfo.times)
        others += time;
    EXPECT_GT(m_window->document().perfectTime(), others * 0.5) << "no negative time is a best";
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(TakingRulesTest, KeepsAStartWithoutASplit) {
    std::vector<std::string> questions;
    bool answer = true;
    m_workspace.setAnswer([&](const Alert& question) {
        questions.push_back(question.text);
        return answer;
    });
    ASSERT_NO_FATAL_FAILURE(open(unmarkedRace(), true));
    press(Qt::Key_M);
    EXPECT_TRUE(m_window->isWindowModified());
    const auto start = m_window->document().marks(0).start;
    ASSERT_TRUE(start);
    m_window.reset(); // as after a crash
    m_window = opened();
    EXPECT_EQ(m_window->document().marks(0).start, start);
    ASSERT_TRUE(saved(*m_window));
    EXPECT_TRUE(m_window->isWindowModified()) << "the file has no place for it";
    answer = false;
    EXPECT_FALSE(m_window->close());
    EXPECT_THAT(questions.back(), HasSubstr("1 start without a split is not stored in the file."));
    answer = true;
    EXPECT_TRUE(m_window->close());
    m_window = opened();
    EXPECT_EQ(m_window->document().marks(0).start, start) << "kept on this computer";
    m_window->document().setMarks(0, "none", {});
    ASSERT_TRUE(saved(*m_window));
    EXPECT_FALSE(m_window->isWindowModified());
    questions.clear();
    EXPECT_TRUE(m_window->close());
    EXPECT_THAT(questions, IsEmpty());
}

TEST_F(TakingRulesTest, ShowsInTheAnalyzerWhatIsNotSavedYet) {
    ASSERT_TRUE(saveSplitFile(timedRace(), folder() / "films.kvx", m_recorder.log()));
    const std::string saved = contentOf(folder() / "films.kvx");
    m_workspace.setAnswer([](const Alert&) { return true; });
    desktop::Desktop program(m_workspace, desktop::Autosave(QString::fromStdString(
                                              (m_folder.path() / "autosave").string())));
    TakingWindow* const taking =
        program.openTaking(QString::fromStdString((folder() / "films.kvx").string()));
    ASSERT_TRUE(taking);
    const auto rename = [&](const char* name) {
        taking->document().editRun(0, "crew", [&](athletedata031& run) { run.names = {name}; });
        QApplication::setActiveWindow(taking);
        QTest::keyClick(taking, Qt::Key_R, Qt::ControlModifier);
        QApplication::processEvents();
    };
    rename("Nova");
    rename("Zora");
    EXPECT_EQ(contentOf(folder() / "films.kvx"), saved) << "nothing is saved";
    ASSERT_THAT(program.windowsOf<desktop::RaceWindow>(), SizeIs(1)) << "one analyzer for one race";
    ASSERT_THAT(program.windowsOf<desktop::RaceWindow>()[0]->views(), SizeIs(1));
    EXPECT_EQ(program.windowsOf<desktop::RaceWindow>()[0]->document().wholeSet().alldata[0].name,
              "Zora");
    taking->document().undoStack().setClean();
}

TEST_F(TakingRulesTest, LeavesTheKeysToTheFieldThatIsTypedIn) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    ASSERT_NO_FATAL_FAILURE(goTo(12));
    m_window->document().editRun(0, "hand", [](athletedata031& run) { run.hand = "Left"; });
    press(Qt::CTRL | Qt::Key_F);
    auto& name = part<QLineEdit>("athlete");
    ASSERT_TRUE(name.hasFocus());
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(run().hand, "Left") << "the field has nothing to undo";
    QTest::keyClicks(&name, "Ana");
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Left})
        press(key);
    EXPECT_NEAR(m_window->deck().position(), 12, 0.001) << "the film stays where it is";
    EXPECT_EQ(name.cursorPosition(), 2);
    EXPECT_TRUE(part<QLabel>("typing").isVisible());
    press(Qt::Key_Escape);
    EXPECT_EQ(name.text(), "");
    EXPECT_TRUE(part<QTableView>("runs").hasFocus());
    EXPECT_FALSE(part<QLabel>("typing").isVisible());
    press(Qt::Key_Home);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->deck().position() < 0.1; }, Patience));
}

/// The names of two ways, one typed behind the other: no letter of them is a key.
TEST_F(TakingRulesTest, TakesLettersBehindATypedEntryAsLetters) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    press(Qt::CTRL | Qt::Key_9);
    part<QPushButton>("strategyAdd").click();
    type("strategyNewWay", "left");
    press(Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), "offt");
    EXPECT_THAT(run().sectioninfo.pens, Each(0));
    EXPECT_EQ(part<QLineEdit>("strategyNewWay").text(), "offt");
    press(Qt::Key_Return);
    EXPECT_THAT(run().strategies.at(0).options, ElementsAre("left", "offt"));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(run().strategies.at(0).options, ElementsAre("left"));
    press(Qt::CTRL | Qt::Key_1);
    for (const char* const field : {"crew", "cat", "runPhase", "hand", "realTime", "sprint"}) {
        type(field, "7");
        press(Qt::Key_Return);
        EXPECT_TRUE(part<QLineEdit>(field).hasFocus()) << field;
    }
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TakingRulesTest, DeletesEverythingOnlyWhereThatIsMeant) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    const auto resetAnd = [&](Qt::Key key) {
        QString told;
        QTimer::singleShot(0, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            told = box->informativeText();
            EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::Cancel));
            QTest::keyClick(box, key);
        });
        m_window->reset();
        return told;
    };
    const QString told = resetAnd(Qt::Key_Return);
    EXPECT_EQ(m_window->document().runCount(), 2);
    EXPECT_THAT(told.toStdString(), HasSubstr(m_window->document().title().toStdString()));
    EXPECT_THAT(told.toStdString(), HasSubstr("2 runs"));
    resetAnd(Qt::Key_Escape);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(TakingRulesTest, ShowsWhatAListHasForWhomBeforeItIsTaken) {
    splittakerdata031 race = timedRace();
    race.athletes[0].sectioninfo.realtime = 0;
    race.athletes[0].sectioninfo.realpen = 0;
    const std::string first = race.athletes[0].names.front();
    race.athletes[1].names = {"Nobody Known"};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    const fs::path list = m_folder.add("list.csv", "pos;bib;name;nat;time;pen\n1;1;" + first +
                                                       ";X;88.5;2\n2;2;Other "
                                                       "Name;X;90;0\nrubbish\n");
    m_window->setChooseFiles([&](const QString&, const QString&) {
        return QStringList{QString::fromStdString(list.string())};
    });
    const auto importAnd = [&](QDialogButtonBox::ButtonRole role) {
        QString told;
        QTimer::singleShot(0, [&] {
            auto* const dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            told = dialog->findChild<QLabel*>("resultsCount")->text();
            auto& table = *dialog->findChild<desktop::ColumnTable*>("resultsOfRuns")->model();
            const auto isTicked = [&] {
                return table.setData(table.index(1, 0), Qt::Checked, Qt::CheckStateRole);
            };
            const auto isChosen = [&](const char* line) {
                return table.setData(table.index(1, 3), line);
            };
            EXPECT_FALSE(isTicked()) << "there is no line to take";
            EXPECT_FALSE(isChosen("nobody")) << "stands in no line";
            EXPECT_FALSE(isChosen("0")) << "stands in both";
            EXPECT_TRUE(isChosen("other n"));
            EXPECT_TRUE(isTicked());
            auto* const box = dialog->findChild<QDialogButtonBox*>();
            for (QAbstractButton* const button : box->buttons())
                if (box->buttonRole(button) == role)
                    button->click();
        });
        m_window->exchange().importResults();
        return told;
    };
    EXPECT_THAT(importAnd(QDialogButtonBox::RejectRole).toStdString(),
                HasSubstr("No line was found for Nobody Known."));
    EXPECT_FALSE(m_window->document().isDirty());
    importAnd(QDialogButtonBox::AcceptRole);
    EXPECT_EQ(run(0).sectioninfo.realtime, 88.5);
    EXPECT_EQ(run(0).sectioninfo.realpen, 2);
    EXPECT_EQ(run(1).sectioninfo.realtime, 90) << "chosen by hand";
    EXPECT_THAT(m_window->document().info().resultsCSVdata, SizeIs(::testing::Ge(2U)));
    undo(1);
    EXPECT_FALSE(m_window->document().isDirty()) << "one step";
}

TEST_F(TakingRulesTest, ShowsWhichSectionOfTheCourseIsWrong) {
    const infodata031 before = timedRace().info;
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    QTimer::singleShot(0, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        QApplication::setActiveWindow(dialog);
        dialog->findChild<QPushButton*>("share")->click();
        auto& table = *dialog->findChild<desktop::ColumnTable*>("sections");
        const auto type = [&](const QString& gates) {
            table.edit(1, 1);
            QTest::keyClicks(QApplication::focusWidget(), gates);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QApplication::processEvents(); // which closes the cell
        };
        const QString gates = table.cellAt(1, 1).data().toString();
        type("999");
        EXPECT_NE(table.currentPlace(), 1) << "Enter goes on to the next section";
        dialog->accept();
        EXPECT_EQ(table.currentPlace(), 1);
        type(gates);
        dialog->accept();
    });
    m_window->exchange().setUpCourse();
    ASSERT_THAT(m_recorder.alerts, ::testing::SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("Section 2: Gate 999 is not on a course"));
    const infodata031& info = m_window->document().info();
    EXPECT_EQ(info.definedsections, defaultSections(before.gates, before.totalsplits));
    EXPECT_EQ(info.date, before.date) << "the fields that nobody typed in";
    EXPECT_EQ(info.session, before.session);
}

TEST_F(TakingRulesTest, BeginsTheNextLossOnceOneIsMarked) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::CTRL | Qt::Key_7);
    for (const double moment : {12.0, 14.0, 16.0, 18.0})
        ASSERT_NO_FATAL_FAILURE(markAt(moment));
    ASSERT_THAT(run().timeslosses, SizeIs(2));
    for (const timeloss031& loss : run().timeslosses)
        EXPECT_NEAR(stretchSeconds(loss, OwnSide).value_or(0), 2, 1e-9);
    click("losses", 0);
    ASSERT_NO_FATAL_FAILURE(goTo(11));
    part<QPushButton>("lossMark1").click();
    EXPECT_THAT(told(), HasSubstr("before the start of the stretch at 12.00"));
    press(Qt::CTRL | Qt::Key_T);
    ASSERT_EQ(m_window->currentRun(), 1);
    const auto start = [&](int place) { return startOf(run(place))->seconds(); };
    const double expected = start(1) + 12 - start(0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return std::abs(m_window->deck().position() - expected) < 0.05; }, Patience))
        << "as long after the start";
    press(Qt::CTRL | Qt::Key_T);
    part<QPushButton>("lossNew").click();
    ASSERT_NO_FATAL_FAILURE(markAt(20));
    EXPECT_THAT(run().timeslosses, SizeIs(3));
}

TEST_F(TakingRulesTest, LetsEqualNotesStandOnce) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::CTRL | Qt::Key_2);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_M);
    ASSERT_THAT(run().sectioninfo.pendetails, SizeIs(1));
    EXPECT_THAT(run().sectioninfo.pendetails[0].gate, SizeIs(1));
    EXPECT_THAT(told(), HasSubstr("Gate 1 has this penalty already."));
    part<QPushButton>("penaltyAnother").click();
    choose("penaltyPole", 1);
    press(Qt::Key_M);
    EXPECT_THAT(run().sectioninfo.pendetails[0].polekind, ElementsAre(0, 1));
    press(Qt::CTRL | Qt::Key_5);
    press(Qt::Key_M);
    press(Qt::Key_M);
    EXPECT_THAT(run().microsplits, SizeIs(1));
    click("microSplits", 0);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().microsplits, IsEmpty()) << "the row that was clicked";
    press(Qt::CTRL | Qt::Key_4);
    press(Qt::Key_A);
    press(Qt::Key_A);
    EXPECT_THAT(run().strokes, SizeIs(1));
}

TEST_F(TakingRulesTest, TellsOfTheLastSplitWithoutABoxWhereItWouldBeInTheWay) {
    splittakerdata031 race = timedRace();
    race.info.totalsplits = std::ssize(race.athletes[0].sectioninfo.cmtimes);
    ASSERT_NO_FATAL_FAILURE(open(race, true));
    const auto splits = run().sectioninfo.cmtimes;
    ASSERT_NO_FATAL_FAILURE(goTo(splits.front().front().seconds()));
    const auto isTold = [&] {
        press(Qt::Key_M);
        return QTest::qWaitFor(
            [&] { return told().find(messages::SplitLimitReached) != std::string::npos; },
            Patience);
    };
    press(Qt::CTRL | Qt::Key_8);
    EXPECT_TRUE(isTold()) << "beside the comments";
    press(Qt::CTRL | Qt::Key_1);
    EXPECT_THAT(told(), IsEmpty());
    m_window->deck().play(1);
    EXPECT_TRUE(isTold()) << "while the film runs";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    EXPECT_EQ(run().sectioninfo.cmtimes, splits);
}

TEST_F(TakingRulesTest, TimesAWayOnceAndRemovesTheGateThatWasClicked) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::CTRL | Qt::Key_9);
    part<QPushButton>("strategyAdd").click();
    type("strategyNewWay", "Spin");
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    ASSERT_NO_FATAL_FAILURE(markAt(10));
    ASSERT_NO_FATAL_FAILURE(markAt(21));
    ASSERT_NO_FATAL_FAILURE(markAt(25));
    ASSERT_NO_FATAL_FAILURE(markAt(26));
    EXPECT_NEAR(run().strategies.at(0).times.at(0), 11, 1e-9);
    EXPECT_THAT(told(), HasSubstr("Spin is timed: 11.00 s"));
    enter("strategyWays", 0, 2, "");
    ASSERT_NO_FATAL_FAILURE(markAt(25));
    ASSERT_NO_FATAL_FAILURE(markAt(26));
    EXPECT_NEAR(run().strategies.at(0).times.at(0), 1, 1e-9);

    press(Qt::CTRL | Qt::Key_3);
    ASSERT_NO_FATAL_FAILURE(markAt(30));
    ASSERT_NO_FATAL_FAILURE(markAt(29));
    EXPECT_THAT(told(), HasSubstr("before the entrance at 30.00"));
    press(Qt::CTRL | Qt::Key_1);
    press(Qt::CTRL | Qt::Key_3);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().upstreams, SizeIs(1)) << "nothing was selected";
    click("upstreams", 0);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().upstreams, IsEmpty());
}

} // namespace
} // namespace kavela::test
