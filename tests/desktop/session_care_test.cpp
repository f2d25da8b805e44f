#include "desktop/session_fixture.h"

#include "boatmotion/session_files.h"
#include "desktop/closing.h"
#include "desktop/saving.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/sessions/information_dialog.h"
#include "desktop/sessions/power_meter_dialog.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_imports.h"
#include "desktop/sessions/session_view.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tables/column_table.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace kavela::test {
namespace {

using desktop::SessionTables;
using desktop::SessionWindow;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

template <class Dialog>
void whenAsked(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        act(*dialog);
        dialog->close();
    });
}

/// A window with the drill of the sample season, forty seconds.
class SessionCareTest : public SessionFixture {
protected:
    static void drop(QWidget& widget, const QStringList& paths) {
        QMimeData files;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        files.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(SessionCareTest, OfStrokesAtOneMomentTheOneThatIsChosenIsRemoved) {
    const auto window = openDrill();
    smartAlldata_v4 session = window->document().value().session;
    for (const std::size_t place : {1U, 2U, 3U})
        session.strokesData[place].timestamp = session.strokesData[0].timestamp + 0.5;
    ASSERT_TRUE(opens(*window, add("doubled.bms", encode(session))));
    QTableView& strokes = *window->view().tables().view(SessionTables::StrokePage);
    for (const int row : {2, 1, 3}) {
        strokes.setFocus();
        strokes.scrollToTop();
        for (const int clicked : {0, row})
            QTest::mouseClick(strokes.viewport(), Qt::LeftButton, {},
                              strokes.visualRect(strokes.model()->index(clicked, 0)).center());
        const std::size_t entry = *window->view()
                                       .tables()
                                       .gridOf(SessionTables::StrokePage)
                                       ->rows[static_cast<std::size_t>(row)]
                                       .entry;
        EXPECT_THAT(window->view().tables().selectedEntries(), ElementsAre(entry));
        smartAlldata_v4 left = session;
        left.strokesData.erase(left.strokesData.begin() + static_cast<std::ptrdiff_t>(entry));
        press(strokes, Qt::Key_Delete);
        EXPECT_TRUE(sessionOf(*window) == encode(left)) << row;
        press(strokes, Qt::CTRL | Qt::Key_Z);
    }
}

TEST_F(SessionCareTest, AWindowTakesNoKeysWhileWorkIsDoneOnItsContent) {
    const auto window = openDrill();
    markAt(*window, {5, 25});
    const int steps = window->document().undoStack().index();
    desktop::BackgroundWork beside;
    for (const bool fails : {false, true}) {
        const auto gate = std::make_shared<QSemaphore>();
        QStringList ends;
        beside.runOver(
            {window.get(), "work"},
            [gate, fails] {
                gate->acquire();
                if (fails)
                    throw MotionError("no motion");
            },
            [&] { ends << "done"; }, {.failed = [&](const std::exception_ptr& fault) {
                ends << QString::fromStdString(desktop::messageOf(fault));
            }});
        for (const auto key : {QKeyCombination(Qt::Key_M), Qt::CTRL | Qt::Key_Z,
                               QKeyCombination(Qt::Key_Delete), QKeyCombination(Qt::Key_F5)})
            press(*window, key);
        EXPECT_FALSE(window->close());
        gate->release();
        QTRY_COMPARE(ends, QStringList(fails ? "no motion" : "done"));
        EXPECT_EQ(window->document().undoStack().index(), steps);
        EXPECT_TRUE(window->isEnabled());
    }
    markAt(*window, {10});
    EXPECT_THAT(window->document().value().marks, SizeIs(3));
}

/// Everything that is pressed, dropped and called while a recording is being analysed.
TEST_F(SessionCareTest, NothingIsEditedBehindTheBackOfAnAnalysis) {
    const auto window = openDrill();
    markAt(*window, {5, 25});
    const QString meter = add("meter.csv", "Time;Power\n0;200\n1;210\n2;205\n");
    const std::string before = sessionOf(*window);
    const auto marks = window->document().value().marks;
    const int steps = window->document().undoStack().count();
    window->edits().analyseAgain();
    EXPECT_FALSE(window->isEnabled());
    EXPECT_FALSE(window->close());
    drop(*window, {meter});
    drop(*window, {path("drill.kvb")});
    window->edits().analyseAgain();
    EXPECT_FALSE(QApplication::activeModalWidget());
    ASSERT_TRUE(rests(*window));
    EXPECT_EQ(window->document().undoStack().count(), steps + 1) << "the analysis alone";
    EXPECT_EQ(sessionOf(*window), before) << "it finds what it found before";
    EXPECT_EQ(window->document().value().marks, marks);
}

TEST_F(SessionCareTest, ATableKeepsTheFocusThroughAnAnalysis) {
    const auto window = openDrill();
    QTableView& strokes = *window->view().tables().view(SessionTables::StrokePage);
    strokes.setFocus();
    press(strokes, Qt::Key_F5);
    ASSERT_TRUE(rests(*window));
    EXPECT_TRUE(strokes.hasFocus());
}

TEST_F(SessionCareTest, InformationThatNobodyChangedIsNoEdit) {
    const auto window = openDrill();
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    whenAsked<desktop::InformationDialog>([](auto& dialog) { dialog.accept(); });
    window->edits().editInformation();
    EXPECT_FALSE(window->isWindowModified());
    whenAsked<desktop::InformationDialog>([](auto& dialog) {
        auto* const weight = dialog.template findChild<QDoubleSpinBox*>("weight");
        weight->setFocus();
        weight->selectAll();
        QTest::keyClicks(weight, "61.5");
        QTest::keyClick(weight, Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    });
    window->edits().editInformation();
    EXPECT_EQ(window->document().value().session.info.weight, 61.5);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(SessionCareTest, StrokesThatWereSelectedAreNotSelectedAfterUndo) {
    const auto window = openDrill();
    const std::string before = sessionOf(*window);
    QTableView& strokes = *window->view().tables().view(SessionTables::StrokePage);
    strokes.setFocus();
    strokes.clearSelection();
    for (const int row : {2, 3, 4})
        strokes.selectionModel()->select(strokes.model()->index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    ASSERT_THAT(window->view().tables().selectedEntries(), SizeIs(::testing::Ge(3U)));
    press(strokes, Qt::Key_Delete);
    EXPECT_LE(window->view().tables().selectedEntries().size(), 1U) << "that at the cursor";
    press(strokes, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(sessionOf(*window), before);
    EXPECT_LE(window->view().tables().selectedEntries().size(), 1U);
    strokes.selectAll();
    press(strokes, Qt::Key_Delete);
    EXPECT_THAT(window->view().figures().strokes, IsEmpty());
    press(strokes, Qt::Key_Delete);
    window->view().goToStroke(1);
    showEverything(*window);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(sessionOf(*window), before);
}

TEST_F(SessionCareTest, AMarkIsNeverPushedOntoAnotherOrOverTheEnd) {
    const auto window = openDrill();
    const double begin = window->replay().from();
    markAt(*window, {5, 5.1});
    window->replay().setMoment(begin + 5);
    press(*window, Qt::ALT | Qt::Key_Right);
    EXPECT_THAT(window->document().value().marks, SizeIs(2)) << "two marks stay two";
    press(*window, Qt::Key_End);
    press(*window, Qt::Key_M);
    const int steps = window->document().undoStack().count();
    press(*window, Qt::ALT | Qt::Key_Right);
    EXPECT_EQ(window->document().undoStack().count(), steps) << "nothing was moved";
    while (window->document().undoStack().canUndo())
        press(*window, Qt::CTRL | Qt::Key_Z);
    for (const auto key : {QKeyCombination(Qt::Key_Delete), Qt::SHIFT | Qt::Key_M,
                           Qt::ALT | Qt::Key_Left, Qt::CTRL | Qt::Key_Left})
        press(*window, key);
    EXPECT_FALSE(window->document().isDirty()) << "there is no mark left to act on";
}

TEST_F(SessionCareTest, ASaveThatFailsKeepsWhatWasAskedAndDone) {
    const auto window = openDrill();
    whenAsked<desktop::PowerMeterDialog>([](auto& dialog) {
        auto* const begin = dialog.template findChild<QDoubleSpinBox*>("begin");
        begin->setFocus();
        begin->selectAll();
        QTest::keyClicks(begin, "3.5");
        QTest::keyClick(begin, Qt::Key_Return);
    });
    ASSERT_TRUE(
        window->imports().importPowerMeter(add("meter.csv", "Time;Power\n0;200\n1;210\n2;205\n")));
    EXPECT_EQ(window->document().value().powerMeter.front().dateDouble,
              window->replay().from() + 3.5);
    EXPECT_FALSE(savedAs(*window, path("missing/x.bms")));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->document().path(), path("drill_postv5.bms"));
    EXPECT_FALSE(savesRecording(*window, path("missing/x.kvb")));
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    EXPECT_THAT(m_questions, SizeIs(1)) << "asked once";
    EXPECT_EQ(encode(readSmartSession(m_folder.path() / "a.bms")), sessionOf(*window));
}

/// The question itself, answered by keys.
TEST_F(SessionCareTest, CancellingTheQuestionAboutThePowerMeterSavesNothing) {
    const auto window = openDrill();
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    const std::string before = contentOf(m_folder.path() / "a.bms");
    whenAsked<desktop::PowerMeterDialog>([](auto& dialog) { dialog.accept(); });
    ASSERT_TRUE(
        window->imports().importPowerMeter(add("meter.csv", "Time;Power\n0;200\n1;210\n2;205\n")));
    window->setAskPowerMeter(nullptr);
    const auto answer = [&](const char* button) {
        QTimer::singleShot(0, [button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), "Would you like to save the powermeter data into sbm file?");
            for (QAbstractButton* const one : box->buttons())
                if (one->text() == button)
                    return one->click();
            QTest::keyClick(box, Qt::Key_Escape);
        });
        press(*window, Qt::CTRL | Qt::Key_S);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    };
    answer("Escape");
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(contentOf(m_folder.path() / "a.bms"), before);
    EXPECT_THAT(m_recorder.lines, Contains("Autosaved!").Times(1)) << "of the first time";

    press(*window, Qt::Key_M);
    window->replay().setMoment(window->replay().to());
    press(*window, Qt::Key_M);
    answer("Save without it");
    EXPECT_NE(contentOf(m_folder.path() / "a.bms"), before) << "the marks are saved";
    EXPECT_TRUE(window->isWindowModified()) << "its data are in no file yet";
    EXPECT_THAT(window->document().value().powerMeter, SizeIs(3));
    bool isAsked = false;
    window->setAskPowerMeter([&](const QString&) {
        isAsked = true;
        return std::optional(true);
    });
    m_questions.clear();
    EXPECT_TRUE(closes(*window));
    EXPECT_THAT(m_questions, SizeIs(1)) << "whether to save";
    EXPECT_TRUE(isAsked) << "and with what";
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(encode(readSmartSession(m_folder.path() / "a.bms")), sessionOf(*window));
}

TEST_F(SessionCareTest, ARecordingOfVersion4IsConvertedAndOpened) {
    const auto window = openDrill();
    const std::string old = encode(sample::oldPhone());
    m_isYes = false;
    EXPECT_FALSE(opens(*window, add("old.kvb", old)));
    EXPECT_EQ(window->document().path(), path("drill_postv5.bms"));
    ASSERT_THAT(m_questions, SizeIs(1));
    EXPECT_THAT(m_questions[0], HasSubstr("“old_v5.kvb” is written beside it"));
    m_isYes = true;
    ASSERT_TRUE(opens(*window, path("old.kvb")));
    EXPECT_EQ(window->document().path(), path("old_v5_postv5.bms"));
    EXPECT_EQ(contentOf(m_folder.path() / "old.kvb"), old);
    ASSERT_TRUE(opens(*window, path("old.kvb")));
    EXPECT_THAT(m_folder.names(), Not(Contains("old_v5_2.kvb"))) << "it is there already";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(SessionCareTest, ClosingStaysOpenWhereItCannotSave) {
    const auto window = openDrill();
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    markAt(*window, {5});
    EXPECT_FALSE(window->close()) << "one mark makes no segment";
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_FALSE(opens(*window, path("drill.kvb")));
    EXPECT_THAT(window->document().value().marks, SizeIs(1));
    markAt(*window, {9});
    EXPECT_TRUE(closes(*window));
    EXPECT_THAT(editedSession(readSmartSession(m_folder.path() / "a.bms")).marks, SizeIs(2));
}

TEST_F(SessionCareTest, AnotherFileOpensOnceTheWorkIsWrittenAndAThirdAfterIt) {
    const auto window = openDrill();
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    markAt(*window, {5, 9});
    drop(*window, {path("drill.kvb")});
    drop(*window, {path("a.bms")}); // while the marks are still being written
    ASSERT_TRUE(rests(*window));
    EXPECT_THAT(editedSession(readSmartSession(m_folder.path() / "a.bms")).marks, SizeIs(2));
    EXPECT_EQ(window->document().path(), path("a.bms"));
    EXPECT_THAT(window->document().value().marks, SizeIs(2));
    EXPECT_THAT(m_questions, SizeIs(1));
}

TEST_F(SessionCareTest, FilesThatAreDroppedAreKnownByTheirKind) {
    const auto window = openDrill();
    ASSERT_TRUE(savedAs(*window, path("a.sbm")));
    QSignalSpy others(window.get(), &SessionWindow::openRequested);
    drop(*window, {path("drill.kvb")});
    ASSERT_TRUE(rests(*window));
    EXPECT_TRUE(window->document().value().recording);
    drop(*window, {path("a.sbm")});
    ASSERT_TRUE(rests(*window));
    EXPECT_FALSE(window->document().value().recording);
    EXPECT_EQ(window->document().path(), path("a.sbm"));
    drop(*window,
         {add("notes.txt", "no list"), add("binary.csv", "\xff\xfe\x80"), path("nowhere.bms")});
    ASSERT_TRUE(rests(*window));
    EXPECT_THAT(m_recorder.alerts, Not(IsEmpty()));
    EXPECT_EQ(window->document().path(), path("a.sbm"));
    drop(*window, {path("drill.kvb"), path("a.sbm")});
    ASSERT_TRUE(rests(*window));
    ASSERT_THAT(others, SizeIs(2));
    EXPECT_EQ(others.takeLast().at(0).toStringList().size(), 2);
    EXPECT_EQ(window->document().path(), path("a.sbm"));
}

} // namespace
} // namespace kavela::test
