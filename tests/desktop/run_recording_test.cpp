#include "desktop/taking/recording/recording_dialog.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/race/motion_panel.h"
#include "desktop/race/race_view.h"
#include "desktop/shell/workspace.h"
#include "sample/recordings.h"
#include "sample/training.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

namespace kavela::test {
namespace {

using desktop::RecordingDialog;
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
    std::optional<RunSpan> m_span = RunSpan{4, 20};
    std::optional<AttachedPart> m_attached;
    RecordingDialog m_dialog{
        {[this] { return m_position; }, [this](double seconds) { m_shown = seconds; },
         [this] { return m_span; }, [] { return QString("Jana"); },
         [this](AttachedPart part) { m_attached = std::move(part); },
         [this] { m_attached.reset(); }, [this] { return m_attached.has_value(); }},
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
    const QTableWidget& table = view.motion().table();
    const RunMotion motion = runMotion(sample::gateLaps().athletes[0], sample::gateLaps().info);
    ASSERT_GT(table.rowCount(), 2);
    EXPECT_EQ(table.rowCount(), static_cast<int>(motion.sections.size()) + 1);
    const int strokes = table.item(table.rowCount() - 1, 1)->text().toInt();
    EXPECT_NEAR(strokes, motion.seconds * 80 / 60, 5);
    EXPECT_THAT(view.motion().speedChart().series(), SizeIs(2));
    view.motion().showRuns({2}); // a lap without a recording
    EXPECT_FALSE(table.isVisible());
    EXPECT_THAT(recorder.alerts, IsEmpty());
}

} // namespace
} // namespace kavela::test
