#include "desktop/session_fixture.h"

#include "boatmotion/power_meter.h"
#include "boatmotion/session_files.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/imports/csv_mapping_dialog.h"
#include "desktop/saving.h"
#include "desktop/sessions/course_map.h"
#include "desktop/sessions/gauge.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/sessions/information_dialog.h"
#include "desktop/sessions/power_meter_dialog.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_imports.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/sessions/track_offset_dialog.h"
#include "desktop/shell/tables/column_table.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace kavela::test {
namespace {

using desktop::Autosave;
using desktop::Gauge;
using desktop::SessionMeasure;
using desktop::SessionTables;
using desktop::SessionWindow;
using desktop::TestSessionWindow;
using desktop::Workspace;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class SessionWindowTest : public SessionFixture {
protected:
    template <class Dialog>
    static void whenAsked(std::function<void(Dialog&)> act) {
        QTimer::singleShot(0, [act = std::move(act)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
            dialog->accept();
        });
    }

    static std::string gauge(const SessionWindow& window, const char* name) {
        return window.findChild<Gauge*>(name)->text().toStdString();
    }
};

TEST_F(SessionWindowTest, ConvertsARecordingAndSavesItBesideTheSource) {
    const auto window = openDrill();
    EXPECT_THAT(m_recorder.lines, Contains("BM data count for drill.kvb 2000"));
    EXPECT_EQ(window->document().path(), path("drill_postv5.bms"));
    ASSERT_TRUE(savedAs(*window, path("drill.sbm")));
    EXPECT_THAT(m_recorder.lines, Contains("Autosaved!"));
    const smartAlldata_v4 saved = readSmartSession(m_folder.path() / "drill.sbm");
    EXPECT_EQ(encode(saved), encode(window->document().value().session));
    EXPECT_FALSE(saved.strokesData.empty());
    EXPECT_FALSE(savedAs(*window, path("missing/x.bms")));
    EXPECT_THAT(m_recorder.lines, Contains("Failed to create file"));
}

TEST_F(SessionWindowTest, FewerThanTwoMarksMakeNoSegments) {
    const auto window = openDrill();
    window->saveSegments();
    EXPECT_THAT(m_recorder.alerts,
                ElementsAre("If you want to have segments, mark at least two of them."));
    markAt(*window, {10});
    EXPECT_FALSE(savedAs(*window, path("a.bms")));
    EXPECT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_THAT(m_folder.names(), Not(Contains("a.bms")));
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_TRUE(savedAs(*window, path("a.bms"))) << "without a mark no segments are wanted";
}

TEST_F(SessionWindowTest, SegmentsAreNumberedAndThereWhenItIsOpenedAgain) {
    const auto window = openDrill();
    markAt(*window, {5, 25, 15});
    press(*window, Qt::ALT | Qt::Key_Right); // the one at 15 s
    const double begin = window->replay().from();
    EXPECT_NEAR(window->document().value().marks.at(1), begin + 15.1, 1e-9);
    ASSERT_TRUE(savedAs(*window, path("a.bms")));
    const auto again = makeWindow();
    ASSERT_TRUE(opens(*again, path("a.bms")));
    EXPECT_THAT(again->document().value().marks, SizeIs(3));
    EXPECT_FALSE(again->isWindowModified());
    const SessionGrid& segments = *again->view().tables().gridOf(SessionTables::SegmentPage);
    EXPECT_THAT(segments.rows, SizeIs(3)) << "two segments, and the rest";
    for (const smartBMdata_v4& entry : again->document().value().session.strokesData)
        EXPECT_EQ(entry.segment, entry.timestamp < begin + 5 || entry.timestamp >= begin + 25 ? 0
                                 : entry.timestamp < begin + 15.1                             ? 1
                                                                                              : 2);
}

TEST_F(SessionWindowTest, WhatCannotBeOpenedIsToldAndWhatWasOpenStays) {
    const auto window = openDrill();
    const std::string before = encode(window->document().value().session);
    bmrawdata_v5 one = sample::upstreamDrill();
    one.boatmotion.resize(1);
    bmrawdata_v5 none = one;
    none.boatmotion.clear();
    const struct {
        QString file;
        const char* told;
    } cases[] = {
        {add("one.kvb", encode(one)), "one.kvb: "},
        {add("none.kvb", encode(none)), "none.kvb: "},
        {add("cut.kvb", encode(one).substr(0, 200)), "cut.kvb: "},
        {add("wrong.sbm", encode(sample::upstreamDrill())), "raw session"},
        {path("missing.bms"), "there is no such file"},
    };
    for (const auto& row : cases) {
        m_recorder.alerts.clear();
        EXPECT_FALSE(opens(*window, row.file));
        ASSERT_THAT(m_recorder.alerts, SizeIs(1)) << row.told;
        EXPECT_THAT(m_recorder.alerts[0], HasSubstr(row.told));
        EXPECT_EQ(encode(window->document().value().session), before);
    }
    EXPECT_TRUE(opens(*window, add("empty.bms", encode(smartAlldata_v4()))));
    (void)window->grab();
    smartAlldata_v4 damaged;
    damaged.strokesData.resize(3);
    damaged.strokesData[0].timestamp = -1e308;
    damaged.strokesData[1].stroke = {.strokeRate = 1e-300, .force = 1e308, .hand = 77};
    damaged.gps = {{{1e300}, -1, 91, 0}, {{5}, 1e308, 1, 1}, {{6}, 0, -80, 170}};
    damaged.heart = {{{-1e300}, 1e308}};
    EXPECT_TRUE(opens(*window, add("damaged.bms", encode(damaged))));
    for (int page = 0; page < window->view().tables().count(); ++page) {
        window->view().tables().setCurrentIndex(page);
        window->replay().setMoment(window->replay().to());
        (void)window->grab();
    }
}

TEST_F(SessionWindowTest, ACutIsSavedAsARecordingAndCanBeTakenBack) {
    const auto window = openDrill();
    const double begin = window->replay().from();
    const std::string before = encode(window->document().value().session);
    emit window->view().charts().chart(SessionMeasure::Speed).rangeSelected(10, 30);
    EXPECT_THAT(window->findChild<QLabel*>("selection")->text().toStdString(),
                HasSubstr("0:10.0 – 0:30.0: 20.0 s"));
    window->edits().keepSelection();
    whenAsked<desktop::InformationDialog>([](auto& dialog) {
        dialog.template findChild<QLineEdit*>("athlete")->setText("LEE Ann");
        dialog.template findChild<QDoubleSpinBox*>("weight")->setValue(60);
    });
    window->edits().editInformation();
    ASSERT_TRUE(savesRecording(*window, path("cut.kvb")));
    const bmrawdata_v5 cut = readRawSession(m_folder.path() / "cut.kvb");
    EXPECT_EQ(cut.athleteinfo.name, "LEE Ann");
    EXPECT_EQ(cut.athleteinfo.weight, 60);
    EXPECT_EQ(cut.athleteinfo.paddleLength, sample::upstreamDrill().athleteinfo.paddleLength);
    EXPECT_GE(cut.boatmotion.front().timestamp, begin + 10);
    EXPECT_LT(cut.boatmotion.back().timestamp, begin + 30);
    EXPECT_TRUE(opens(*makeWindow(), path("cut.kvb")));
    press(*window, Qt::CTRL | Qt::Key_Z);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(encode(window->document().value().session), before);
}

TEST_F(SessionWindowTest, NoiseIsTakenOutOfTheTable) {
    const auto window = openDrill();
    const std::size_t before = window->document().value().session.strokesData.size();
    QTableView& table = *window->view().tables().view(SessionTables::StrokePage);
    table.setFocus();
    press(*window, Qt::SHIFT | Qt::Key_Right); // follows the cursor, selects no second row
    EXPECT_THAT(table.selectionModel()->selectedRows(), SizeIs(1));
    table.selectionModel()->setCurrentIndex(table.model()->index(2, 0),
                                            QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
    const double gone = window->view().figures().strokes.at(2).time;
    EXPECT_EQ(window->replay().moment(), gone) << "a row moves the cursor";
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(window->document().value().session.strokesData.size(), before - 1);
    for (const smartBMdata_v4& entry : window->document().value().session.strokesData)
        EXPECT_NE(entry.timestamp, gone);
}

TEST_F(SessionWindowTest, PowerMeterDataGoesIntoTheStrokesAfterAYes) {
    const auto window = openDrill();
    std::string list = "Time;Power;HR\nx;1;1\n";
    for (int second = 0; second < 60; ++second)
        list += std::to_string(second) + ";" + std::to_string(200 + second) + ";150\n";
    whenAsked<desktop::PowerMeterDialog>([](auto& dialog) {
        EXPECT_EQ(dialog.template findChild<QLabel*>("count")->text(),
                  "Samples: 60. Lines refused: 1.");
    });
    ASSERT_TRUE(window->imports().importPowerMeter(add("meter.csv", list)));
    m_isYes = false;
    ASSERT_TRUE(savedAs(*window, path("without.sbm")));
    EXPECT_THAT(m_questions,
                ElementsAre("Would you like to save the powermeter data into sbm file?"));
    m_isYes = true;
    ASSERT_TRUE(savedAs(*window, path("with.sbm")));
    ASSERT_TRUE(savedAs(*window, path("again.sbm")));
    EXPECT_THAT(m_questions, SizeIs(2)) << "it is in the session now";
    const double begin = window->replay().from();
    const auto powersOf = [&](const char* name) {
        std::vector<double> powers;
        for (const auto& entry : readSmartSession(m_folder.path() / name).strokesData)
            if (entry.stroke.strokeRate > 0)
                powers.push_back(entry.stroke.power - 200 - (entry.timestamp - begin));
        return powers;
    };
    EXPECT_THAT(powersOf("with.sbm"),
                ::testing::Each(::testing::AllOf(::testing::Gt(-0.6), ::testing::Lt(1.6))));
    EXPECT_THAT(powersOf("without.sbm"), Not(Contains(::testing::Gt(-0.6))));
}

TEST_F(SessionWindowTest, WhatIsNotKnownIsADash) {
    bmrawdata_v5 recording = sample::upstreamDrill();
    recording.gps.clear();
    recording.heart.clear();
    const auto window = makeWindow();
    ASSERT_TRUE(opens(*window, add("bare.kvb", encode(recording))));
    window->view().goToStroke(1);
    EXPECT_THAT(gauge(*window, "strokeRateGauge"), HasSubstr("1/min"));
    for (const char* const name :
         {"speedGauge", "forceGauge", "impulseGauge", "powerGauge", "heartGauge"})
        EXPECT_EQ(gauge(*window, name), "–") << name;
    const QAbstractItemModel& strokes =
        *window->view().tables().view(SessionTables::StrokePage)->model();
    EXPECT_EQ(strokes.index(0, 5).data().toString(), "–") << "force";
    window->exports().exportTable(SessionTables::StrokePage, path("strokes.csv"));
    EXPECT_THAT(contentOf(m_folder.path() / "strokes.csv"), Not(HasSubstr("–")));
    EXPECT_TRUE(window->view().charts().chart(SessionMeasure::Force).series().empty());
    (void)window->grab();
}

TEST_F(SessionWindowTest, OneCursorRunsThroughChartMapAndTables) {
    const auto window = openDrill();
    auto& view = window->view();
    const double begin = window->replay().from();
    emit view.charts().chart(SessionMeasure::Force).clickedAt(20);
    EXPECT_NEAR(window->replay().moment(), begin + 20, 1e-9);
    QTableView& strokes = *view.tables().view(SessionTables::StrokePage);
    const auto& found =
        view.figures().strokes.at(static_cast<std::size_t>(strokes.currentIndex().row()));
    EXPECT_NEAR(found.time, begin + 20, 0.6) << "the nearest stroke";
    EXPECT_NE(gauge(*window, "speedGauge"), "–");
    QApplication::processEvents();
    const auto marker = view.map().markerAt(0);
    ASSERT_TRUE(marker) << "the drill has turns and fixes";
    QTest::mouseClick(&view.map(), Qt::LeftButton, {}, marker->toPoint());
    EXPECT_EQ(window->replay().moment(), view.figures().turns[0].time);
    EXPECT_THAT(desktop::CourseMap::turnText(*view.figures().turns[0].marker).toStdString(),
                HasSubstr("Turn 1\nDuration "));
    const double before = window->replay().moment();
    window->replay().setSpeed(16);
    press(*window, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->replay().moment() > before + 1; }));
    press(*window, Qt::Key_Space);
    EXPECT_FALSE(window->replay().isPlaying());
}

TEST_F(SessionWindowTest, FullScreenShowsWhatThePreferencesAskFor) {
    const auto window = openDrill();
    m_workspace.setPreference("fullscreenBMPitch", false);
    m_workspace.setPreference("gaugeImpulse", false);
    const auto before = window->view().charts().measures();
    window->view().setFullScreen(true);
    EXPECT_THAT(window->view().charts().measures(),
                ElementsAre(SessionMeasure::Roll, SessionMeasure::HeartRate));
    EXPECT_FALSE(window->view().tables().isVisible());
    EXPECT_FALSE(window->findChild<Gauge*>("impulseGauge")->isVisible());
    window->view().setFullScreen(false);
    EXPECT_EQ(window->view().charts().measures(), before);
}

TEST_F(SessionWindowTest, WorkThatWasNotSavedOutlivesTheWindow) {
    {
        const auto window = openDrill();
        markAt(*window, {5, 25});
    }
    const auto again = makeWindow();
    again->startNew(path("drill_postv5.bms"));
    EXPECT_THAT(again->document().value().marks, SizeIs(2));
    EXPECT_TRUE(again->isWindowModified());
}

TEST_F(SessionWindowTest, ShowsTheAttemptsOfATestSession) {
    varoTestAlldata tests;
    tests.info = {{7.7e8}, "LEE Ann", "200 m"};
    tests.test = {{1, {{{100}, "stroke", {1, 2}, 140}, {{101}, "turn", {3}, 0}}, {}},
                  {2, {}, {{{200}, 5, 150}, {{201.5}, 6, 0}}}};
    TestSessionWindow window(m_workspace, Autosave(path("autosave")));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(window.open(add("test.json", encode(tests))));
    EXPECT_EQ(window.table().rowCount(), 1) << "of the first kind";
    window.findChild<QComboBox*>("kinds")->setCurrentText("turn");
    EXPECT_EQ(window.table().index(0, 3).data().toString(), "3.000");
    EXPECT_EQ(window.table().index(0, 2).data().toString(), "–") << "no heart rate";
    window.chooseAttempt(1);
    ASSERT_EQ(window.table().rowCount(), 2);
    EXPECT_EQ(window.table().index(1, 0).data().toString(), "1.50");
    EXPECT_THAT(window.chart().content().series, SizeIs(2));
    EXPECT_FALSE(window.open(add("no.json", encode(smartAlldata_v4()))));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("smart session")));
    (void)window.grab();
}

TEST_F(SessionWindowTest, AListOfALoggerBecomesARecordingAndATrackJoinsIt) {
    const auto window = makeWindow();
    const std::string examples = std::string(KAVELA_EXAMPLES) + "/recordings/";
    const QString track = QString::fromStdString(examples + "watch.gpx");
    window->imports().importFrom({track});
    ASSERT_TRUE(rests(*window));
    EXPECT_THAT(m_recorder.alerts, SizeIs(1)) << "there is nothing that it could join yet";
    QTimer::singleShot(200, [] {
        auto* const dialog =
            qobject_cast<desktop::CsvMappingDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        auto* const import = dialog->findChild<QPushButton*>("import");
        ASSERT_TRUE(import);
        ASSERT_TRUE(QTest::qWaitFor([&] { return import->isEnabled(); }));
        import->click();
    });
    window->imports().importFrom({QString::fromStdString(examples + "phone_logger.csv")});
    ASSERT_TRUE(rests(*window));
    ASSERT_TRUE(window->document().value().recording);
    EXPECT_FALSE(window->document().value().session.strokesData.empty());
    const std::size_t before = window->document().value().session.heart.size();
    window->imports().importFrom({track});
    ASSERT_TRUE(rests(*window));
    const std::size_t readings = window->document().value().session.heart.size();
    EXPECT_GT(readings, before);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(window->document().value().session.heart.size(), before);

    // The same from a watch whose clock is three days behind.
    std::string late = contentOf(examples + "watch.gpx");
    const std::string day = late.substr(late.find("<time>") + 6, 10);
    const QDate before3 = QDate::fromString(QString::fromStdString(day), Qt::ISODate).addDays(-3);
    for (std::size_t at = late.find(day); at != late.npos; at = late.find(day, at))
        late.replace(at, day.size(), before3.toString(Qt::ISODate).toStdString());
    whenAsked<desktop::TrackOffsetDialog>([](auto& dialog) {
        auto* const begin = dialog.template findChild<QDateTimeEdit*>("begin");
        const auto* const overlap = dialog.template findChild<QLabel*>("overlap");
        EXPECT_THAT(overlap->text().toStdString(), HasSubstr("before the recording"));
        begin->setDateTime(begin->dateTime().addDays(3));
        EXPECT_FALSE(overlap->text().contains("before the recording"));
    });
    m_recorder.alerts.clear();
    window->imports().importFrom({add("late.gpx", late)});
    ASSERT_TRUE(rests(*window));
    const auto heart = [&] { return window->document().value().session.heart; };
    ASSERT_THAT(heart(), Not(IsEmpty()));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("heart rates were taken over")));
    const double first = heart().front().date.seconds;
    whenAsked<desktop::TrackOffsetDialog>([](auto& dialog) {
        auto* const begin = dialog.template findChild<QDateTimeEdit*>("begin");
        begin->setDateTime(begin->dateTime().addSecs(2));
    });
    window->imports().moveTrack();
    ASSERT_TRUE(rests(*window));
    EXPECT_NEAR(heart().front().date.seconds, first + 2, 1.5) << "moved, and not joined twice";
    EXPECT_LE(heart().size(), readings);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(heart().front().date.seconds, first);
    EXPECT_TRUE(savesRecording(*window, path("logger.kvb")));
    EXPECT_FALSE(readRawSession(m_folder.path() / "logger.kvb").boatmotion.empty());
}

} // namespace
} // namespace kavela::test
