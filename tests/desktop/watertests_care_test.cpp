#include "desktop/watertests/tests_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/refusals.h"
#include "desktop/saving.h"
#include "desktop/shell/workspace.h"
#include "desktop/watertests/entry_table.h"
#include "desktop/watertests/take_recording_dialog.h"
#include "desktop/watertests/test_list_panel.h"
#include "planning/eight_test.h"
#include "planning/test_entry.h"
#include "sample/recordings.h"
#include "sample/tests.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <cctype>

namespace kavela::test {
namespace {

using desktop::EntryTable;
using desktop::ListedTest;
using desktop::TakeRecordingDialog;
using desktop::TestId;
using desktop::TestsWindow;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

/// What is typed and chosen stays with the test it was meant for.
class TestsCareTest : public ::testing::Test {
protected:
    TestsCareTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([](const Alert&) { return true; });
    }

    QString path(const char* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }

    void open(const onWaterTests& tests) {
        saveTestsFile(tests, m_folder.path() / "tests.kvtest");
        m_window = std::make_unique<TestsWindow>(m_workspace, desktop::Autosave(path("autosave")));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window->open(path("tests.kvtest")));
        m_window->showPage(TestsWindow::ValuePage);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QApplication::processEvents();
    }

    void press(QKeyCombination keys) {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : m_window.get(), keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
        QApplication::processEvents(); // a cell closes later than its key
    }

    template <class Part>
    Part& part(const char* name) {
        return *m_window->findChild<Part*>(name);
    }

    void typeInto(QLineEdit& field, const char* text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    /// Begins to type into a cell; Enter is not pressed yet.
    void beginCell(const char* table, int row, int column, char digit) {
        auto& view = part<EntryTable>(table);
        view.setFocus();
        view.setCurrentIndex(view.model()->index(row, column));
        press(Qt::Key(std::toupper(digit)));
        ASSERT_TRUE(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    }

    const ListedTest& test(TestId id) const { return *m_window->document().find(id); }
    std::vector<TestId> listed() const { return m_window->list().listed(); }

    /// Whether each row of the table of results is the test that is listed there.
    void expectTableFollowsTheList() {
        const QAbstractItemModel& table = *part<QTableView>("table").model();
        ASSERT_EQ(table.rowCount(), std::ssize(listed()));
        for (int row = 0; row < table.rowCount(); ++row) {
            const ListedTest& shown = test(listed()[static_cast<std::size_t>(row)]);
            ASSERT_EQ(table.index(row, 0).data().toString().toStdString(),
                      shown.athlete().toStdString())
                << row;
            ASSERT_EQ(table.index(row, 1).data().toString().toStdString(),
                      shown.day().toStdString())
                << row;
        }
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{7.7e8}; }};
    std::unique_ptr<TestsWindow> m_window;
};

TEST_F(TestsCareTest, TheTableOfResultsFollowsTheOrderOfTheList) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        m_window->list().table().sortByColumn(0, order);
        expectTableFollowsTheList();
    }
    auto& table = part<QTableView>("table");
    m_window->showPage(TestsWindow::TablePage);
    const TestId wanted = listed().at(3);
    emit table.doubleClicked(table.model()->index(3, 0));
    EXPECT_EQ(m_window->list().current(), wanted);
}

TEST_F(TestsCareTest, TheTableOfResultsFollowsAFilterThroughEditAndUndo) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    m_window->list().athleteFilter().setCurrentText("MILLBRACE Freya");
    const std::size_t before = listed().size();
    m_window->list().choose(listed().at(1));
    typeInto(*part<QComboBox>("athlete").lineEdit(), "LEE Ann");
    press(Qt::Key_Tab);
    expectTableFollowsTheList();
    m_window->list().choose(listed().at(0));
    typeInto(part<QLineEdit>("location"), "Lake");
    press(Qt::Key_Tab);
    EXPECT_THAT(listed(), SizeIs(before - 1)) << "the other one is of somebody else now";
    expectTableFollowsTheList();
    m_window->document().undoStack().undo();
    m_window->document().undoStack().undo();
    EXPECT_THAT(listed(), SizeIs(before));
    expectTableFollowsTheList();
}

TEST_F(TestsCareTest, ATestThatNoLongerFitsTheFilterStaysInFrontWhileItIsTyped) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    m_window->list().athleteFilter().setCurrentText("MILLBRACE Freya");
    const TestId typed = listed().at(1);
    m_window->list().choose(typed);
    typeInto(*part<QComboBox>("athlete").lineEdit(), "LEE Ann");
    press(Qt::Key_Tab);
    EXPECT_EQ(m_window->list().current(), typed);
    typeInto(part<QLineEdit>("location"), "Lake");
    press(Qt::Key_Tab);
    EXPECT_EQ(test(typed).athlete(), "LEE Ann");
    EXPECT_EQ(test(typed).location(), "Lake");
    for (const auto& other : m_window->document().value())
        EXPECT_EQ(other->location() == "Lake", other->id == typed);
}

/// Through the window system, as at the coach's desk: Ctrl is held while the new row is chosen.
TEST_F(TestsCareTest, ANewTestIsTheOnlyOneThatIsSelected) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    const std::size_t before = listed().size();
    part<QTableView>("tests").setFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_N, Qt::ControlModifier);
    QApplication::processEvents();
    ASSERT_EQ(listed().size(), before + 1);
    EXPECT_THAT(m_window->list().selected(), ElementsAre(*m_window->list().current()));
    part<QTableView>("tests").setFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Delete);
    QApplication::processEvents();
    EXPECT_EQ(listed().size(), before) << "the one that was selected before is still there";
}

TEST_F(TestsCareTest, RemovingChoosesTheNextTestAndUndoBringsAllBack) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    const std::vector<TestId> before = listed();
    m_window->list().table().setFocus();
    m_window->list().choose(before.at(3));
    press(Qt::Key_Delete);
    EXPECT_EQ(m_window->list().current(), before.at(4));
    EXPECT_THAT(m_window->list().selected(), ElementsAre(before.at(4)));
    m_window->list().choose(before.back());
    press(Qt::Key_Delete);
    EXPECT_EQ(m_window->list().current(), before.at(before.size() - 2));
    press(Qt::CTRL | Qt::Key_Z);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(listed(), before);
    m_window->list().table().selectAll();
    press(Qt::Key_Delete);
    EXPECT_FALSE(m_window->list().current());
    press(Qt::Key_Delete);
    m_window->duplicateTest();
    m_window->moveBy(1);
    EXPECT_THAT(m_window->document().value(), IsEmpty());
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(listed(), before);
}

TEST_F(TestsCareTest, PassingThroughTheFieldsChangesNothing) {
    onWaterTests tests;
    onWaterTest lap;
    lap.test = {};
    lap.test.athlete = "LEE  Ann ";
    lap.test.location = " Upper  lake";
    lap.distance = 12.57;
    lap.turnLimit = 0.123;
    tests.tests = {lap};
    onWaterEight eight;
    eight.run.athlete = "LEE  Ann ";
    eight.run.cat = "K1 ";
    eight.run.phase = " Heat  1";
    tests.eights = {eight};
    ASSERT_NO_FATAL_FAILURE(open(tests));
    for (const TestId id : listed()) {
        m_window->list().choose(id);
        part<QComboBox>("athlete").setFocus();
        for (int step = 0; step < 12; ++step)
            press(Qt::Key_Tab);
        EXPECT_FALSE(m_window->isWindowModified())
            << m_window->document().undoStack().undoText().toStdString();
    }
}

TEST_F(TestsCareTest, HandsStayInTheCellThroughSavingAndSwitching) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    press(Qt::CTRL | Qt::Key_N);
    const TestId first = *m_window->list().current();
    beginCell("sections", 0, 0, '7');
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->document().isSaving(); }));
    EXPECT_THAT(readTestsFile(m_folder.path() / "tests.kvtest").tests.at(0).test.splits,
                ElementsAre(7));
    EXPECT_EQ(QApplication::focusWidget(), &part<EntryTable>("sections"));
    press(Qt::Key_8); // at once, over the value
    press(Qt::Key_Return);
    EXPECT_THAT(test(first).run()->test.splits, ElementsAre(8));
    beginCell("sections", 1, 0, '9');
    press(Qt::CTRL | Qt::Key_D); // a copy, with what was being typed
    EXPECT_THAT(test(first).run()->test.splits, ElementsAre(8, 9));
    EXPECT_THAT(m_window->document().value().back()->run()->test.splits, ElementsAre(8, 9));
    EXPECT_NE(m_window->list().current(), first);
}

TEST_F(TestsCareTest, EnterGoesOnBelowTheLastTurn) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    press(Qt::CTRL | Qt::Key_N);
    const int rows = part<EntryTable>("turns").model()->rowCount();
    ASSERT_NO_FATAL_FAILURE(beginCell("turns", rows - 1, 0, '2'));
    press(Qt::Key_Return);
    press(Qt::Key_3);
    press(Qt::Key_Return);
    const std::vector<double>& turns =
        m_window->document().value().front()->run()->test.leftRotations;
    ASSERT_EQ(std::ssize(turns), rows + 1);
    EXPECT_EQ(turns.back(), 3);
}

TEST_F(TestsCareTest, ACellThatIsTypedWhileItsTestGoesChangesNoOther) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    const auto before = encode(readTestsFile(m_folder.path() / "tests.kvtest"));
    press(Qt::CTRL | Qt::Key_N);
    ASSERT_NO_FATAL_FAILURE(beginCell("sections", 0, 0, '7'));
    m_window->document().undoStack().undo();
    QApplication::processEvents();
    press(Qt::Key_Return);
    while (m_window->document().undoStack().canUndo())
        m_window->document().undoStack().undo();
    ASSERT_TRUE(savedAs(m_window->document(), path("again.kvtest")));
    EXPECT_EQ(encode(readTestsFile(m_folder.path() / "again.kvtest")), before);
}

TEST_F(TestsCareTest, TheEditMenuTakesWhatIsBeingTyped) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    press(Qt::CTRL | Qt::Key_N);
    ASSERT_NO_FATAL_FAILURE(beginCell("sections", 0, 0, '7'));
    emit m_window->menuBar()->actions().at(1)->menu()->aboutToShow();
    EXPECT_EQ(m_window->document().undoStack().undoText(), "section 1");
}

TEST_F(TestsCareTest, ACountThatIsTypedIsSavedWithoutEnter) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    press(Qt::CTRL | Qt::Key_N);
    auto& laps = part<QSpinBox>("laps");
    laps.setFocus();
    laps.selectAll();
    press(Qt::Key_8);
    EXPECT_TRUE(saved(*m_window));
    EXPECT_EQ(readTestsFile(m_folder.path() / "tests.kvtest").tests.at(0).laps, 8);
    EXPECT_TRUE(laps.hasFocus());
    laps.selectAll();
    press(Qt::Key_3);
    press(Qt::Key_Return);
    press(Qt::CTRL | Qt::Key_N);
    EXPECT_EQ(m_window->document().value().front()->run()->laps, 3);
}

TEST_F(TestsCareTest, ATimeOfZeroIsRefusedAndNotEmptied) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    press(Qt::CTRL | Qt::Key_N);
    const TestId id = *m_window->list().current();
    beginCell("sections", 0, 0, '7');
    press(Qt::Key_Return);
    for (const char* wrong : {"0", "abc", "0,00"}) {
        beginCell("sections", 0, 0, wrong[0]);
        QTest::keyClicks(QApplication::focusWidget(), wrong + 1);
        press(Qt::Key_Return);
        EXPECT_THAT(refusalIn(*m_window), HasSubstr("Time")) << wrong;
        EXPECT_THAT(test(id).run()->test.splits, ElementsAre(7)) << wrong;
        EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), wrong);
        press(Qt::Key_Escape);
    }
}

TEST_F(TestsCareTest, ATotalWaitsForAllOfItsParts) {
    onWaterTests tests;
    tests.eights.resize(1);
    tests.eights[0].run.sp1 = 14.9;
    tests.eights[0].run.sp2 = 15.1;
    scoreEightTest(tests.eights[0].run);
    tests.tests.resize(1);
    tests.tests[0].laps = 5;
    tests.tests[0].test.splits = {30, 31};
    tests.tests[0].test.totalTime = 61;
    ASSERT_NO_FATAL_FAILURE(open(tests));
    for (const auto& each : m_window->document().value()) {
        m_window->list().choose(each->id);
        EXPECT_EQ(part<QLabel>(each->eight() ? "score" : "total").text(),
                  each->eight() ? "Total – · 2 of 5 splits are timed"
                                : "Total: – · 2 of 5 sections are timed");
    }
    const QAbstractItemModel& table = *part<QTableView>("table").model();
    const int total = 7; // behind name, date and five splits
    ASSERT_EQ(table.headerData(total, Qt::Horizontal).toString(), "Total");
    for (int row = 0; row < table.rowCount(); ++row) {
        if (test(listed()[static_cast<std::size_t>(row)]).eight()) {
            EXPECT_EQ(table.index(row, total).data().toString(), "");
        }
    }
}

TEST_F(TestsCareTest, ADayThatIsNoneShowsNotThatOfAnotherTest) {
    onWaterTests tests;
    tests.tests.resize(3);
    tests.tests[0].test.date = {1e300};
    tests.tests[1].test.date = {-1e300};
    tests.tests[2].test.date = {7.7e8};
    ASSERT_NO_FATAL_FAILURE(open(tests));
    const auto& all = m_window->document().value();
    const std::vector<TestId> ids{all[0]->id, all[1]->id};
    for (const TestId id : ids) {
        m_window->list().choose(all[2]->id);
        EXPECT_EQ(part<QDateEdit>("date").text(), "2025-05-27");
        m_window->list().choose(id);
        EXPECT_NE(part<QDateEdit>("date").text(), "2025-05-27");
        part<QDateEdit>("date").setDate(QDate(2025, 5, 27));
        EXPECT_EQ(test(id).day(), "2025-05-27");
    }
    (void)m_window->grab();
}

/// Marks that were typed are not thrown away by an Enter in another field.
TEST_F(TestsCareTest, EnterInARecordingsFieldsKeepsTheMarksAndTakesTheTestIn) {
    (void)m_folder.add("sprint.kvb", encode(sample::sprintWithWatch()));
    ASSERT_NO_FATAL_FAILURE(open({}));
    QTimer::singleShot(0, [] {
        auto* const dialog = qobject_cast<TakeRecordingDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->findChild<QComboBox*>("kind")->setCurrentIndex(1);
        QAbstractItemModel& marks = *dialog->findChild<EntryTable*>("marks")->model();
        ASSERT_TRUE(marks.setData(marks.index(0, 0), "1.25"));
        auto* const athlete = dialog->findChild<QLineEdit*>("athlete");
        athlete->setFocus();
        athlete->setText("LEE Ann");
        QTest::keyClick(athlete, Qt::Key_Return);
        EXPECT_EQ(marks.index(0, 0).data(Qt::EditRole).toString(), "1.25");
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        dialog->close();
    });
    m_window->takeIn({path("sprint.kvb")});
    ASSERT_THAT(m_window->document().value(), SizeIs(1));
    EXPECT_EQ(m_window->document().value().front()->athlete(), "LEE Ann");
}

TEST_F(TestsCareTest, RecordingsThatTellNothingAreToldAndTakenInByNobody) {
    ASSERT_NO_FATAL_FAILURE(open({}));
    bmrawdata_v5 none = sample::upstreamDrill();
    none.boatmotion.clear();
    bmrawdata_v5 one = sample::upstreamDrill();
    one.boatmotion.resize(1);
    bmrawdata_v5 still = sample::upstreamDrill();
    for (auto& sample : still.boatmotion)
        sample.timestamp = 5;
    const std::pair<const char*, bmrawdata_v5> cases[] = {
        {"none.kvb", none}, {"one.kvb", one}, {"still.kvb", still}};
    for (const auto& [name, recording] : cases) {
        m_recorder.alerts.clear();
        (void)m_folder.add(name, encode(recording));
        m_window->takeIn({path(name)});
        EXPECT_THAT(m_recorder.alerts, SizeIs(1)) << name;
        EXPECT_FALSE(m_window->document().isDirty());
    }
}

TEST_F(TestsCareTest, ASaveThatFailsLeavesTheWorkAndTheFile) {
    ASSERT_NO_FATAL_FAILURE(open(sample::formTests()));
    const std::string before = contentOf(m_folder.path() / "tests.kvtest");
    m_window->duplicateTest();
    EXPECT_FALSE(savedAs(m_window->document(), path("missing/x.kvtest")));
    EXPECT_THAT(m_recorder.alerts, Not(IsEmpty()));
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(m_window->document().path(), path("tests.kvtest"));
    EXPECT_EQ(contentOf(m_folder.path() / "tests.kvtest"), before);
    EXPECT_TRUE(saved(*m_window));
    EXPECT_NE(contentOf(m_folder.path() / "tests.kvtest"), before);
}

} // namespace
} // namespace kavela::test
