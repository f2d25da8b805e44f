#include "desktop/taking/recording/recording_dialog.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/race/motion_panel.h"
#include "desktop/race/race_view.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "sample/recordings.h"
#include "sample/training.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

namespace kavela::test {
namespace {

using desktop::RecordingDialog;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double ClockStart = 84213.5; ///< of the recording

/// A dialog beside a film that begins five seconds after the recording.
class RunRecordingTest : public ::testing::Test {
protected:
    RunRecordingTest() {
        m_dialog.show();
        QApplication::processEvents();
    }

    void align(RecordingDialog::Event event, double film, double stamp) {
        m_position = film;
        m_dialog.setVideo(event);
        m_dialog.setStamp(event, stamp);
    }

    double m_position = 0;
    double m_shown = 0;
    desktop::RunFacts m_run{.crew = {"Example BEN"},
                            .date = sample::upstreamDrill().info.date,
                            .race = "Laps",
                            .span = RunSpan{4, 20},
                            .sections = {{"Top", 0, 10}, {"Bottom", 10, 16}}};
    std::optional<AttachedPart> m_attached;
    std::vector<Alert> m_asked;
    bool m_isMeant = true;
    RecordingDialog m_dialog{{.position = [this] { return m_position; },
                              .show = [this](double seconds) { m_shown = seconds; },
                              .run = [this] { return m_run; },
                              .attach = [this](AttachedPart part) { m_attached = std::move(part); },
                              .detach = [this] { m_attached.reset(); },
                              .isAttached = [this] { return m_attached.has_value(); },
                              .isMeant =
                                  [this](const Alert& question) {
                                      m_asked.push_back(question);
                                      return m_isMeant;
                                  }},
                             nullptr};
};

TEST_F(RunRecordingTest, AttachesThePartBetweenTheMarksOfTheRun) {
    m_dialog.setRecording(desktop::loadedRecording("drill.kvb", sample::upstreamDrill()));
    m_dialog.attach();
    EXPECT_FALSE(m_attached); // nothing is aligned yet
    align(RecordingDialog::First, 10, ClockStart + 15);
    m_dialog.attach();
    ASSERT_TRUE(m_attached);
    EXPECT_NEAR(m_attached->bm.front().timestamp, ClockStart + 9 - AttachMargin, 1e-6);
    EXPECT_NEAR(m_attached->bm.back().timestamp, ClockStart + 25 + AttachMargin, 1e-6);
}

TEST_F(RunRecordingTest, TakesTheDriftOutWithASecondMomentAndRefusesOneTooNear) {
    m_dialog.setRecording(desktop::loadedRecording("drill.kvb", sample::upstreamDrill()));
    align(RecordingDialog::First, 4, ClockStart + 9);
    align(RecordingDialog::Second, 24, ClockStart + 29.02);
    ASSERT_TRUE(m_dialog.fit());
    EXPECT_NEAR(m_dialog.fit()->rate, 1.001, 1e-9);
    align(RecordingDialog::Second, 6, ClockStart + 11);
    EXPECT_FALSE(m_dialog.fit());
}

TEST_F(RunRecordingTest, ForgetsTheAlignmentWithAnotherRunAndLeadsFromTheChartToTheFilm) {
    m_dialog.setRecording(desktop::loadedRecording("drill.kvb", sample::upstreamDrill()));
    align(RecordingDialog::First, 10, ClockStart + 15);
    emit m_dialog.chart().clickedAt(ClockStart + 20);
    EXPECT_NEAR(m_shown, 15, 1e-9);
    m_dialog.startRun();
    EXPECT_FALSE(m_dialog.fit());
}

/// The button that is pressed, as the coach does.
TEST_F(RunRecordingTest, ARecordingOfSomeoneAndSomeDayElseIsToldAndAsksFirst) {
    bmrawdata_v5 session = sample::upstreamDrill();
    session.athleteinfo.name = "Ben Example";
    m_dialog.setRecording(desktop::loadedRecording("drill.kvb", session));
    align(RecordingDialog::First, 4, ClockStart + 9);
    const auto* const whose = m_dialog.findChild<QLabel*>("whose");
    EXPECT_THAT(whose->text().toStdString(), HasSubstr("Ben Example · 2026-05-07"));
    EXPECT_THAT(whose->text().toStdString(), HasSubstr("Example BEN · 2026-05-07 · Laps"));
    const auto attach = [&] {
        m_attached.reset();
        m_asked.clear();
        for (QPushButton* const button : m_dialog.findChildren<QPushButton*>())
            if (button->text().contains("ttach the part"))
                QTest::mouseClick(button, Qt::LeftButton);
    };
    attach();
    EXPECT_TRUE(m_attached);
    EXPECT_THAT(m_asked, IsEmpty()) << "the same name, written another way";

    m_isMeant = false;
    const auto* const other = m_dialog.findChild<QLabel*>("other");
    EXPECT_FALSE(other->isVisible());
    m_run.crew = {"Jana Example"};
    m_run.date = ReferenceDate{session.info.date.seconds + 2 * 86400};
    m_dialog.showRun();
    EXPECT_TRUE(other->isVisible()) << "before anything is attached";
    attach();
    EXPECT_FALSE(m_attached);
    ASSERT_THAT(m_asked, SizeIs(1));
    EXPECT_EQ(m_asked[0].title, "The recording is of another athlete and another day.");
    EXPECT_THAT(m_asked[0].text, HasSubstr("Jana Example · 2026-05-09"));
    m_isMeant = true;
    attach();
    EXPECT_TRUE(m_attached);

    m_run.crew = {""};
    m_run.date.reset();
    m_dialog.showRun();
    attach();
    EXPECT_THAT(m_asked, IsEmpty()) << "nothing is known that could differ";
}

TEST_F(RunRecordingTest, WhatTheRecordingLeavesOutIsToldBeforeItIsAttached) {
    bmrawdata_v5 session = sample::upstreamDrill();
    std::erase_if(session.boatmotion,
                  [](const auto& sample) { return sample.timestamp < ClockStart + 21.5; });
    m_dialog.setRecording(desktop::loadedRecording("late.kvb", session));
    align(RecordingDialog::First, 4, ClockStart + 9);
    const auto told = [&] {
        std::string text;
        for (const QLabel* const label : m_dialog.findChildren<QLabel*>())
            text += label->text().toStdString() + '\n';
        return text;
    };
    EXPECT_THAT(told(), HasSubstr("Of the first 12.5 s of the run nothing is recorded."));
    EXPECT_THAT(told(), HasSubstr("Sections without strokes: Top."));
    EXPECT_THAT(told(), HasSubstr("Sections recorded in part: Bottom."));
    EXPECT_THAT(told(), HasSubstr("The film begins 0:16.5")) << "not by the stamps of a clock";
    EXPECT_FALSE(m_attached);
}

TEST_F(RunRecordingTest, NothingMovesWhenSomethingIsTold) {
    m_dialog.setRecording(desktop::loadedRecording("drill.kvb", sample::upstreamDrill()));
    QApplication::processEvents();
    std::vector<QRect> before;
    for (const QPushButton* const button : m_dialog.findChildren<QPushButton*>())
        before.push_back(QRect(button->mapTo(&m_dialog, QPoint()), button->size()));
    align(RecordingDialog::First, 4, ClockStart + 9);
    align(RecordingDialog::Second, 6, ClockStart + 11); // too near: a fault is told
    QApplication::processEvents();
    std::size_t place = 0;
    for (const QPushButton* const button : m_dialog.findChildren<QPushButton*>())
        EXPECT_EQ(QRect(button->mapTo(&m_dialog, QPoint()), button->size()), before[place++])
            << button->text().toStdString();
}

TEST_F(RunRecordingTest, StandsBesideTheFilmThatItAsksToLookAt) {
    const QRect screen(0, 0, 1280, 800);
    for (const QRect& film : {QRect(290, 80, 700, 290), QRect(20, 60, 400, 700)}) {
        m_dialog.placeBeside(film, screen);
        EXPECT_FALSE(m_dialog.geometry().intersects(film));
        EXPECT_TRUE(screen.contains(m_dialog.geometry()));
    }
    m_dialog.placeBeside(screen, screen);
    EXPECT_TRUE(screen.contains(m_dialog.geometry())) << "where there is no room beside it";
}

TEST_F(RunRecordingTest, ShowsARecordingThatIsTooShortToBeAnalysedAndTellsADamagedFile) {
    bmrawdata_v5 session = sample::upstreamDrill();
    session.boatmotion.resize(20);
    const desktop::LoadedRecording shown = desktop::loadedRecording("short.kvb", session);
    EXPECT_THAT(*shown.times, SizeIs(20));
    EXPECT_FALSE(shown.note.empty());

    const TempFolder folder;
    const QString path =
        QString::fromStdString(folder.add("damaged.kvb", "{\"info\": 3}").string());
    QSignalSpy failed(&m_dialog, &RecordingDialog::failed);
    m_dialog.load(path);
    ASSERT_TRUE(failed.count() > 0 || failed.wait());
    EXPECT_FALSE(m_dialog.hasRecording());
}

TEST(MotionPanel, TellsStrokesSpeedAndHeartAlongTheSections) {
    const TempFolder folder;
    Recorder recorder;
    desktop::Workspace workspace(Preferences(folder.path() / "preferences.ini"), recorder.log(),
                                 systemNow);
    workspace.setAlerts(&recorder);
    desktop::RaceView view(workspace);
    view.document().show(sample::gateLaps(), "gate_laps.kvx");
    view.show();
    view.side().setCurrentWidget(&view.motion());
    QApplication::processEvents();
    view.motion().showRuns({0, 1});
    const desktop::ColumnTable& shown = view.motion().table();
    const QAbstractItemModel& table = *shown.model();
    const RunMotion motion = runMotion(sample::gateLaps().athletes[0], sample::gateLaps().info);
    ASSERT_GT(table.rowCount(), 2);
    EXPECT_EQ(table.rowCount(), static_cast<int>(motion.sections.size()) + 1);
    const int strokes = table.index(table.rowCount() - 1, 1).data().toInt();
    EXPECT_NEAR(strokes, motion.seconds * 80 / 60, 5);
    EXPECT_THAT(view.motion().speedChart().series(), SizeIs(2));
    view.motion().showRuns({2}); // a lap without a recording
    EXPECT_FALSE(shown.isVisible());
    EXPECT_THAT(recorder.alerts, IsEmpty());

    // The recorder was started in the second section and lost some seconds of the last one.
    splittakerdata031 race = sample::gateLaps();
    athletedata031& run = race.athletes[0];
    const double first = run.bm.front().timestamp + AttachMargin;
    const auto& sections = motion.sections;
    const std::size_t last = sections.size() - 1;
    const double begins = first + (sections[1].start + sections[1].end) / 2;
    const double hole = first + (sections[last].start + sections[last].end) / 2;
    std::erase_if(run.bm, [&](const auto& sample) {
        const double stamp = sample.timestamp;
        return (stamp > first - 1 && stamp < begins) || (stamp > hole && stamp < hole + 2);
    });
    view.document().show(std::move(race), "gate_laps.kvx");
    view.motion().forget();
    view.motion().showRuns({0});
    const auto strokesOf = [&](std::size_t row) {
        return table.index(static_cast<int>(row), 1).data().toString().toStdString();
    };
    EXPECT_EQ(strokesOf(0), "–") << "not 0: nobody looked";
    EXPECT_THAT(strokesOf(1), ::testing::MatchesRegex("[0-9]+\\*"));
    EXPECT_THAT(strokesOf(last), ::testing::MatchesRegex("[0-9]+\\*"));
    EXPECT_EQ(strokesOf(last + 1), "–") << "no total of a part";
}

} // namespace
} // namespace kavela::test
