#include "desktop/watertests/tests_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/refusals.h"
#include "desktop/shell/workspace.h"
#include "desktop/watertests/chart_card.h"
#include "desktop/watertests/chart_view.h"
#include "desktop/watertests/entry_table.h"
#include "desktop/watertests/take_recording_dialog.h"
#include "desktop/watertests/take_run_dialog.h"
#include "desktop/watertests/test_list_panel.h"
#include "planning/test_entry.h"
#include "sample/recordings.h"
#include "sample/tests.h"
#include "sample/training.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::ChartCard;
using desktop::ChartGroup;
using desktop::EntryTable;
using desktop::ListedTest;
using desktop::TestKind;
using desktop::TestsWindow;
using desktop::Workspace;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class TestsWindowTest : public ::testing::Test {
protected:
    TestsWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([](const Alert&) { return true; });
    }

    QString path(const char* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }

    std::unique_ptr<TestsWindow> makeWindow() {
        auto window = std::make_unique<TestsWindow>(m_workspace, Autosave(path("autosave")));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        return window;
    }

    static void show(TestsWindow& window) {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }

    std::unique_ptr<TestsWindow> openWindow(const onWaterTests& tests) {
        saveTestsFile(tests, m_folder.path() / "tests.kvtest");
        auto window = makeWindow();
        if (!window->open(path("tests.kvtest")))
            return nullptr;
        show(*window);
        return window;
    }

    static void press(TestsWindow& window, QKeyCombination keys) {
        if (QApplication::activeWindow() != &window)
            QApplication::setActiveWindow(&window); // no window manager does
        QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    /// Types a number into the current cell, as hands on the keyboard do.
    static void type(const QString& text) {
        QTest::keyClick(QApplication::focusWidget(), text[0].toLatin1());
        QWidget* const field = QApplication::focusWidget();
        ASSERT_TRUE(qobject_cast<QLineEdit*>(field));
        QTest::keyClicks(field, text.mid(1));
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents(); // the cell closes,
        QApplication::processEvents(); // then a refusal is told
    }

    static void startIn(TestsWindow& window, const char* table, int row, int column) {
        auto* const view = window.findChild<EntryTable*>(table);
        view->setFocus();
        view->setCurrentIndex(view->model()->index(row, column));
    }

    template <class Dialog>
    static void whenAsked(std::function<void(Dialog&)> act) {
        QTimer::singleShot(0, [act = std::move(act)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
            dialog->accept();
        });
    }

    static const ListedTest& last(const TestsWindow& window) {
        return *window.document().value().back();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7.7e8}; }}; // in May 2025
};

TEST_F(TestsWindowTest, ATestTypedByKeysIsInTheFileAndEveryStepCanBeTakenBack) {
    const auto window = openWindow({});
    ASSERT_TRUE(window);
    press(*window, Qt::CTRL | Qt::Key_N);
    QTest::keyClicks(QApplication::focusWidget(), "LEE Ann");
    startIn(*window, "sections", 0, 0);
    type("12.5");
    type("0:13,25"); // Enter went on to the second lap
    startIn(*window, "sections", 0, 1);
    type("8");
    startIn(*window, "turns", 0, 2);
    type("2.25");
    window->findChild<QSpinBox*>("laps")->stepUp();
    EXPECT_THAT(window->findChild<QLabel*>("description")->text().toStdString(),
                StartsWith("The test consist in doing 6 laps around two gated separated by 12.5 "));
    press(*window, Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    const onWaterTests saved = readTestsFile(m_folder.path() / "tests.kvtest");
    ASSERT_THAT(saved.tests, SizeIs(1));
    const testStruct& test = saved.tests[0].test;
    EXPECT_EQ(test.athlete, "LEE Ann");
    EXPECT_EQ(dayText(test.date), "2025-05-27");
    EXPECT_THAT(test.splits, ElementsAre(12.5, 13.25));
    EXPECT_THAT(test.straightTime, ElementsAre(8));
    EXPECT_THAT(test.rightRotations, ElementsAre(2.25));
    EXPECT_EQ(saved.tests[0].laps, 6);
    EXPECT_FALSE(window->isWindowModified());
    while (window->document().undoStack().canUndo())
        press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(window->document().value(), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TestsWindowTest, WhatWasTypedStaysWithItsTestAndOutlivesTheWindow) {
    onWaterTests tests = sample::formTests();
    {
        const auto window = openWindow(tests);
        ASSERT_TRUE(window);
        const auto first = window->list().listed().at(0);
        window->list().choose(first);
        window->showPage(TestsWindow::ValuePage);
        auto* const location = window->findChild<QLineEdit*>("location");
        location->setFocus();
        location->selectAll();
        QTest::keyClicks(location, "Lake");
        press(*window, Qt::ALT | Qt::Key_Down); // no Enter before it
        EXPECT_EQ(window->list().current(), window->list().listed().at(1));
        EXPECT_EQ(window->document().find(first)->location(), "Lake");
        EXPECT_EQ(location->text(), "Home water") << "of the next test";
        EXPECT_TRUE(location->hasFocus());
    }
    const auto again = makeWindow(); // the file was never saved
    ASSERT_TRUE(again->open(path("tests.kvtest")));
    EXPECT_EQ(again->document().value().size(), tests.tests.size() + tests.eights.size());
    EXPECT_EQ(again->document().find(again->list().listed().at(0))->location(), "Lake");
}

TEST_F(TestsWindowTest, RefusesWhatIsNoTime) {
    const auto window = openWindow(sample::formTests());
    ASSERT_TRUE(window);
    window->showPage(TestsWindow::ValuePage);
    window->list().choose(window->document().value().front()->id);
    const auto before = window->document().undoStack().count();
    for (const auto& [column, typed] : {std::pair{0, "1x"}, {0, "99999"}, {1, "500"}}) {
        startIn(*window, "sections", 0, column);
        type(typed);
        EXPECT_THAT(refusalIn(*window), HasSubstr(column == 1 ? "straight line" : typed));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }
    EXPECT_EQ(window->document().undoStack().count(), before);
}

TEST_F(TestsWindowTest, ExportsAndCopiesTheTestsThatAreListed) {
    const auto window = openWindow(sample::formTests());
    ASSERT_TRUE(window);
    window->list().athleteFilter().setCurrentText("MILLBRACE Freya");
    window->exportTable(path("table.csv"));
    const std::string table = contentOf(m_folder.path() / "table.csv");
    EXPECT_THAT(table, StartsWith("Name;Date;Times (s);;;;;Total;Stroke rate (strokes/min);;;;;"));
    EXPECT_EQ(std::ranges::count(table, '\n'), 2 + 6) << "five runs and an eight test";
    EXPECT_THAT(table, HasSubstr("\nMILLBRACE Freya;2026-05-21;"));
    window->copyTable();
    const QStringList copied = QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
    EXPECT_THAT(copied, SizeIs(1 + 6));
    EXPECT_EQ(copied[0].count('\t'), 52);
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    window->exportTable(path("missing/table.csv"));
    QTRY_COMPARE(m_recorder.alerts.size(), 1UL);
}

TEST_F(TestsWindowTest, LaysTheTestsOfAnAthleteOverEachOther) {
    const auto window = openWindow(sample::formTests());
    ASSERT_TRUE(window);
    window->list().choose(window->document().value()[2]->id); // the lap test in May
    const auto chart = [&](std::size_t place) -> ChartCard& {
        return *window->charts().cards().at(place);
    };
    EXPECT_EQ(chart(0).chart().content().yTitle, "Time (s)");
    EXPECT_THAT(chart(4).figures().toStdString(), HasSubstr("\nTotal increase: -"));
    EXPECT_THAT(chart(0).figures().toStdString(), HasSubstr("\nTotal variation: +"))
        << "who tires gets slower";
    window->list().tickHistory();
    ASSERT_THAT(chart(0).chart().content().series, SizeIs(3));
    EXPECT_EQ(chart(0).chart().content().series[0].name, "2026-03-10");
    window->charts().showGroup(ChartGroup::Strokes);
    EXPECT_THAT(window->charts().cards(), SizeIs(13));
    EXPECT_FALSE(chart(3).chart().content().series[2].points.empty());
    EXPECT_EQ(chart(3).chart().content().yTitle, "Maximun force (N)");
    window->list().choose(last(*window).id); // an eight test: the ticked laps are left out
    EXPECT_THAT(chart(0).chart().content().series, SizeIs(1));
    EXPECT_THAT(window->findChild<QLabel*>("note")->text().toStdString(), HasSubstr("3 ticked"));
}

TEST_F(TestsWindowTest, TakesARunInAsAnEightTestWithItsMarks) {
    splittakerdata031 session = sample::gateLaps();
    (void)m_folder.add("laps.kvx", encode(session));
    const auto window = openWindow({});
    ASSERT_TRUE(window);
    whenAsked<desktop::TakeRunDialog>([](auto& dialog) {
        dialog.template findChild<QComboBox*>("kind")->setCurrentIndex(2);
        dialog.template findChild<QTableView*>("runs")->selectRow(1); // the one with sensors
    });
    window->takeIn({path("laps.kvx")});
    ASSERT_THAT(window->document().value(), SizeIs(1));
    const datafor8& eight = last(*window).eight()->run;
    const sectiondata030& timing = session.athletes[1].sectioninfo;
    EXPECT_EQ(eight.sp2, timing.times[1]);
    EXPECT_EQ(eight.videotimes2, timing.cmtimes[1][0]);
    EXPECT_EQ(eight.zrotation.size(), session.athletes[1].bm.size());
    EXPECT_GT(eight.totalsplit, 0);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(window->document().value(), IsEmpty());
}

TEST_F(TestsWindowTest, TakesASprintInFromARecording) {
    (void)m_folder.add("sprint.kvb", encode(sample::sprintWithWatch()));
    (void)m_folder.add("broken.kvb", "{}");
    const auto window = openWindow({});
    ASSERT_TRUE(window);
    whenAsked<desktop::TakeRecordingDialog>([](auto& dialog) {
        dialog.template findChild<QSpinBox*>("laps")->setValue(50);
        EXPECT_THAT(dialog.template findChild<QLabel*>("fault")->text().toStdString(),
                    HasSubstr(" of 50"))
            << "told at once";
        dialog.template findChild<QComboBox*>("kind")->setCurrentIndex(1);
    });
    window->takeIn({path("sprint.kvb")});
    ASSERT_THAT(window->document().value(), SizeIs(1));
    const testStruct& test = last(*window).run()->test;
    EXPECT_THAT(test.splits, SizeIs(5));
    EXPECT_GT(test.strokeDate.size(), 10U);
    EXPECT_EQ(test.waterPhase.size(), test.strokeDate.size());
    window->takeIn({path("broken.kvb")});
    EXPECT_THAT(m_recorder.alerts, Contains(HasSubstr("It is no raw recording")));
}

TEST_F(TestsWindowTest, ShowsDamagedTestsAndTellsWhatIsWrong) {
    onWaterTests tests;
    onWaterTest damaged;
    damaged.kind = "unheard of";
    damaged.laps = -3;
    damaged.test.splits = {0, 1e300};
    damaged.test.strokeDate = {{5}, {1}};
    damaged.test.strokeRate = {1, 2, 3};
    tests.tests = {damaged, {}};
    onWaterEight eight;
    eight.run.zrotation = {1, 2, 3};
    tests.eights = {eight};
    const auto window = openWindow(tests);
    ASSERT_TRUE(window);
    for (const auto& test : window->document().value()) {
        window->list().choose(test->id);
        for (const auto group : {ChartGroup::Sections, ChartGroup::Turns, ChartGroup::Strokes})
            window->charts().showGroup(group);
        for (const auto page :
             {TestsWindow::ChartPage, TestsWindow::ValuePage, TestsWindow::TablePage}) {
            window->showPage(page);
            (void)window->grab();
        }
        const std::string told = window->findChild<QLabel*>("oddities")->text().toStdString();
        const bool isNew = test->run() && test->run()->test.splits.empty();
        EXPECT_EQ(told.empty(), isNew) << told;
    }
    (void)m_folder.add("none.kvtest", "[1");
    EXPECT_FALSE(makeWindow()->open(path("none.kvtest")));
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
}

} // namespace
} // namespace kavela::test
