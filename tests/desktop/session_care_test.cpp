#include "desktop/session_fixture.h"

#include "boatmotion/session_files.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/closing.h"
#include "desktop/odd_recordings.h"
#include "desktop/sessions/balance_view.h"
#include "desktop/sessions/gauge.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/sessions/information_dialog.h"
#include "desktop/sessions/power_meter_dialog.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tables/column_table.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <set>

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

    static void showEverything(SessionWindow& window) {
        for (int page = 0; page < window.view().tables().count(); ++page) {
            window.view().tables().setCurrentIndex(page);
            for (const double moment : {window.replay().from(), window.replay().to()})
                window.replay().setMoment(moment);
            (void)window.grab();
        }
    }

    static std::string sessionOf(const SessionWindow& window) {
        return encode(window.document().value().session);
    }
};

TEST_F(SessionCareTest, AnOddClockIsToldOrShownAndNothingIsHalfLoaded) {
    const auto window = openDrill();
    const std::string drill = sessionOf(*window);
    for (const auto& [clock, recording] : oddRecordings()) {
        SCOPED_TRACE(clock);
        m_recorder.alerts.clear();
        const std::string before = sessionOf(*window);
        const QString path = window->document().path();
        if (!opens(*window, add("odd.kvb", encode(recording)))) {
            ASSERT_THAT(m_recorder.alerts, SizeIs(1));
            EXPECT_THAT(m_recorder.alerts[0], HasSubstr("odd.kvb: "));
            EXPECT_EQ(sessionOf(*window), before);
            EXPECT_EQ(window->document().path(), path);
            continue;
        }
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
        EXPECT_LE(window->replay().from(), window->replay().to());
        showEverything(*window);
        markAt(*window, {1, 2});
        EXPECT_TRUE(window->saveSessionTo(this->path("odd.bms")));
        EXPECT_TRUE(window->saveRecording(this->path("odd_again.kvb")));
    }
}

TEST_F(SessionCareTest, OddProcessedSessionsAreShown) {
    const auto window = openDrill();
    const smartAlldata_v4 drill = window->document().value().session;
    std::vector<std::pair<const char*, smartAlldata_v4>> odd(5, {"", drill});
    odd[0].first = "backwards";
    std::ranges::reverse(odd[0].second.strokesData);
    odd[1].first = "at one moment";
    for (auto& entry : odd[1].second.strokesData)
        entry.timestamp = 7;
    odd[2].first = "one stroke";
    odd[2].second.strokesData.resize(1);
    odd[3].first = "positions that stand still, doubled";
    for (auto& fix : odd[3].second.gps)
        fix = drill.gps.front();
    odd[4].first = "segments that jump";
    for (std::size_t i = 0; i < drill.strokesData.size(); ++i)
        odd[4].second.strokesData[i].segment = i % 2 == 0 ? -4 : 1LL << 60;
    for (const auto& [what, session] : odd) {
        SCOPED_TRACE(what);
        ASSERT_TRUE(opens(*window, add("odd.bms", encode(session))));
        EXPECT_EQ(sessionOf(*window), encode(session)) << "as it was read";
        showEverything(*window);
        window->view().select(MomentRange{window->replay().from(), window->replay().to()});
        (void)window->grab();
        window->removeSelection(); // too little is left, or something is
        markAt(*window, {0, 3});
        while (window->document().undoStack().canUndo())
            press(*window, Qt::CTRL | Qt::Key_Z);
        EXPECT_EQ(sessionOf(*window), encode(session));
    }
}

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
    window->analyseAgain();
    EXPECT_FALSE(window->isEnabled());
    EXPECT_FALSE(window->close());
    drop(*window, {meter});
    drop(*window, {path("drill.kvb")});
    window->analyseAgain();
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
    ASSERT_TRUE(window->saveSessionTo(path("a.bms")));
    whenAsked<desktop::InformationDialog>([](auto& dialog) { dialog.accept(); });
    window->editInformation();
    EXPECT_FALSE(window->isWindowModified());
    whenAsked<desktop::InformationDialog>([](auto& dialog) {
        auto* const weight = dialog.template findChild<QDoubleSpinBox*>("weight");
        weight->setFocus();
        weight->selectAll();
        QTest::keyClicks(weight, "61.5");
        QTest::keyClick(weight, Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    });
    window->editInformation();
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
    window->goToStroke(1);
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
    ASSERT_TRUE(window->importPowerMeter(add("meter.csv", "Time;Power\n0;200\n1;210\n2;205\n")));
    EXPECT_EQ(window->document().value().powerMeter.front().dateDouble,
              window->replay().from() + 3.5);
    EXPECT_FALSE(window->saveSessionTo(path("missing/x.bms")));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->document().path(), path("drill_postv5.bms"));
    EXPECT_FALSE(window->saveRecording(path("missing/x.kvb")));
    ASSERT_TRUE(window->saveSessionTo(path("a.bms")));
    EXPECT_THAT(m_questions, SizeIs(1)) << "asked once";
    EXPECT_EQ(encode(readSmartSession(m_folder.path() / "a.bms")), sessionOf(*window));
}

/// The question itself, answered by keys.
TEST_F(SessionCareTest, CancellingTheQuestionAboutThePowerMeterSavesNothing) {
    const auto window = openDrill();
    ASSERT_TRUE(window->saveSessionTo(path("a.bms")));
    const std::string before = contentOf(m_folder.path() / "a.bms");
    whenAsked<desktop::PowerMeterDialog>([](auto& dialog) { dialog.accept(); });
    ASSERT_TRUE(window->importPowerMeter(add("meter.csv", "Time;Power\n0;200\n1;210\n2;205\n")));
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

/// Whatever the cursor stands on, gauge and chart read one value.
TEST_F(SessionCareTest, GaugesTellWhatTheChartsTell) {
    using desktop::SessionMeasure;
    const auto window = openDrill();
    const auto gauge = [&](const char* name) {
        return window->findChild<desktop::Gauge*>(name)->text();
    };
    const auto compare = [&](const char* when) {
        SCOPED_TRACE(when);
        const double from = window->replay().from();
        for (double second = 0; second <= window->replay().to() - from; second += 0.25) {
            window->replay().setMoment(from + second);
            const auto chart = [&](SessionMeasure measure, int decimals, const char* unit) {
                const auto& series = window->view().charts().chart(measure).series();
                const double at = window->replay().moment() - from;
                const auto value = series.empty() ? std::nullopt : valueAt(series[0], at);
                const QString text = desktop::valueText(value, decimals);
                return value ? text + ' ' + unit : text;
            };
            EXPECT_EQ(gauge("strokeRateGauge"), chart(SessionMeasure::StrokeRate, 0, "1/min"));
            EXPECT_EQ(gauge("forceGauge"), chart(SessionMeasure::Force, 0, "N"));
            EXPECT_EQ(gauge("speedGauge"), chart(SessionMeasure::Speed, 2, "m/s"));
        }
    };
    compare("as it was read");
    const auto strokes = window->view().figures().strokes;
    const double begin = window->replay().from();
    window->view().select(MomentRange{begin + 16, begin + 22});
    window->removeSelection();
    compare("with a stretch taken out");
    window->replay().setMoment(begin + 19);
    for (const char* const name : {"strokeRateGauge", "forceGauge", "speedGauge"})
        EXPECT_EQ(gauge(name), "–") << name << ", in the stretch";
    press(*window, Qt::CTRL | Qt::Key_Z);

    QTableView& table = *window->view().tables().view(SessionTables::StrokePage);
    table.setFocus();
    table.selectRow(10);
    press(table, Qt::Key_Delete);
    compare("without a stroke");
    window->replay().setMoment(strokes[10].time + 0.1);
    EXPECT_EQ(gauge("forceGauge"), "–") << "neither that of the stroke before nor of the next";
    window->replay().setMoment(strokes[9].time + 0.1);
    EXPECT_NE(gauge("forceGauge"), "–");
}

TEST_F(SessionCareTest, WithoutPositionsTheRoomIsForTheChartsThatTellSomething) {
    const auto window = makeWindow();
    bmrawdata_v5 session = sample::upstreamDrill();
    session.gps.clear();
    session.heart.clear();
    ASSERT_TRUE(opens(*window, add("drill.kvb", encode(session))));
    window->resize(1280, 800);
    QApplication::processEvents();
    std::vector<desktop::SessionMeasure> shown;
    for (const auto measure : window->view().charts().measures())
        if (window->view().charts().chart(measure).isVisible())
            shown.push_back(measure);
    EXPECT_THAT(shown, ElementsAre(desktop::SessionMeasure::StrokeRate));
    const auto* const empty = window->findChild<QLabel*>("emptyCharts");
    EXPECT_TRUE(empty->isVisible());
    EXPECT_THAT(empty->text().toStdString(), HasSubstr("Force, Impulse, Phases: not known"));
    EXPECT_THAT(empty->text().toStdString(), HasSubstr("Heart rate: none was recorded"));

    // What has to be known about the figures is read whole.
    const auto* const remarks = window->findChild<QLabel*>("remarks");
    ASSERT_TRUE(remarks->isVisible());
    EXPECT_GE(remarks->height(), remarks->heightForWidth(remarks->width()));
    for (const QChar sign : remarks->text())
        EXPECT_TRUE(sign.unicode() < 0x2400 || sign.unicode() >= 0x2500)
            << "no sign for which a font has to be found";
    ASSERT_TRUE(opens(*window, add("whole.kvb", encode(sample::upstreamDrill()))));
    EXPECT_FALSE(empty->isVisible());
}

/// Without positions front and back may be swapped: no side is shown as if it were known.
TEST_F(SessionCareTest, SidesAreUnknownUntilTheCoachNamesTheMount) {
    const auto window = makeWindow();
    bmrawdata_v5 session = sample::upstreamDrill();
    session.gps.clear();
    ASSERT_TRUE(opens(*window, add("drill.kvb", encode(session))));
    const auto hands = [&] {
        std::set<std::string> texts;
        const auto& rows = window->view().tables().gridOf(SessionTables::StrokePage)->rows;
        for (const SessionGrid::Row& row : rows)
            texts.insert(desktop::cellText(row.cells[2], 0).toStdString());
        return texts;
    };
    const auto rate = [&] {
        return window->findChild<desktop::Gauge*>("strokeRateGauge")
            ->accessibleName()
            .toStdString();
    };
    const auto* const balance = window->findChild<desktop::BalanceView*>();
    window->goToStroke(1);
    EXPECT_THAT(hands(), ElementsAre("–"));
    EXPECT_THAT(rate(), ::testing::EndsWith(", side unknown"));
    EXPECT_THAT(balance->accessibleDescription().toStdString(), HasSubstr("Side unknown"));
    window->view().tables().setCurrentIndex(SessionTables::BalancePage);
    (void)window->grab();

    auto* const name = window->findChild<QToolButton*>("nameMount");
    ASSERT_TRUE(name->isVisible());
    name->menu()->actions().at(1)->trigger();
    ASSERT_TRUE(rests(*window));
    EXPECT_THAT(hands(), ElementsAre("left", "right"));
    EXPECT_THAT(rate(),
                ::testing::AnyOf(::testing::EndsWith("left"), ::testing::EndsWith("right")));
    EXPECT_EQ(balance->accessibleDescription(), "");
    EXPECT_FALSE(name->isVisible());
    const std::string named = sessionOf(*window);
    press(*window, Qt::Key_F5);
    ASSERT_TRUE(rests(*window));
    EXPECT_EQ(sessionOf(*window), named) << "the mount stays named";
    press(*window, Qt::CTRL | Qt::Key_Z);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(hands(), ElementsAre("–"));
}

TEST_F(SessionCareTest, ClosingStaysOpenWhereItCannotSave) {
    const auto window = openDrill();
    ASSERT_TRUE(window->saveSessionTo(path("a.bms")));
    markAt(*window, {5});
    EXPECT_FALSE(window->close()) << "one mark makes no segment";
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_FALSE(opens(*window, path("drill.kvb")));
    EXPECT_THAT(window->document().value().marks, SizeIs(1));
    markAt(*window, {9});
    EXPECT_TRUE(closes(*window));
    EXPECT_THAT(editedSession(readSmartSession(m_folder.path() / "a.bms")).marks, SizeIs(2));
}

TEST_F(SessionCareTest, FilesThatAreDroppedAreKnownByTheirKind) {
    const auto window = openDrill();
    ASSERT_TRUE(window->saveSessionTo(path("a.sbm")));
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

TEST_F(SessionCareTest, TestSessionsOfEveryShapeAreShown) {
    varoTestAlldata ragged;
    ragged.test = {
        {1, {{{5}, "", {}, 0}, {{5}, "stroke", {1, 2, 3}, 1}, {{4}, "", {1e308}, -3}}, {}},
        {2, {}, {{{1e300}, 5, 150}, {{-1e300}, 6, 0}}},
        {2, {}, {}}};
    varoTestAlldata one;
    one.test = {{7, {{{5}, "All kinds", {1}, 0}}, {}}};
    desktop::TestSessionWindow window(m_workspace, desktop::Autosave(path("autosave")));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    for (const auto* const session : {&ragged, &one}) {
        ASSERT_TRUE(window.open(add("test.json", encode(*session))));
        for (int place = 0; place < std::ssize(session->test); ++place) {
            window.chooseAttempt(place);
            auto& kinds = *window.findChild<QComboBox*>("kinds");
            for (int kind = 0; kind < kinds.count(); ++kind) {
                kinds.setCurrentIndex(kind);
                (void)window.grab();
                auto* const table = window.findChild<QTableView*>();
                for (int row = 0; row < window.table().rowCount(); ++row)
                    table->selectRow(row);
                if (!window.chart().content().series.empty())
                    emit window.chart().pointActivated(0, 0);
            }
        }
    }
    ASSERT_TRUE(window.open(add("none.json", encode(varoTestAlldata()))));
    EXPECT_EQ(window.table().rowCount(), 0) << "nothing of the session before is left";
    EXPECT_THAT(window.chart().content().series, IsEmpty());
    (void)window.grab();
    EXPECT_TRUE(window.close());
}

} // namespace
} // namespace kavela::test
