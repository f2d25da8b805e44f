#include "desktop/taking/recording/recording_dialog.h"

#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/odd_recordings.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

namespace kavela::test {
namespace {

using desktop::RecordingDialog;
using ::testing::HasSubstr;

/// A recording beside the film of a run.
class RecordingCareTest : public ::testing::Test {
protected:
    RecordingCareTest() {
        m_dialog = std::make_unique<RecordingDialog>(
            RecordingDialog::Film{
                .position = [this] { return m_position; },
                .show = [](double) {},
                .run = [this] { return desktop::RunFacts{.span = m_span}; },
                .attach = [this](AttachedPart part) { m_attached = std::move(part); },
                .detach = [this] { m_attached.reset(); },
                .isAttached = [this] { return m_attached.has_value(); },
                .isMeant = [](const Alert&) { return true; }},
            nullptr);
        m_dialog->show();
        QApplication::processEvents();
    }

    QString add(const char* name, const bmrawdata_v5& recording) const {
        return QString::fromStdString(m_folder.add(name, encode(recording)).string());
    }

    void alignAt(double film, double stamp) {
        m_position = film;
        m_dialog->setVideo(RecordingDialog::First);
        m_dialog->setStamp(RecordingDialog::First, stamp);
    }

    /// The first line of the dialog that is shown and holds a text; empty for none.
    std::string lineWith(const QString& part) const {
        for (const QLabel* const label : m_dialog->findChildren<QLabel*>())
            if (!label->isHidden() && label->text().contains(part))
                return label->text().toStdString();
        return {};
    }
    std::string fault() const { return lineWith("⚠"); }
    bool says(const QString& part) const { return !lineWith(part).empty(); }

    TempFolder m_folder;
    double m_position = 0;
    std::optional<RunSpan> m_span = RunSpan{4, 20};
    std::optional<AttachedPart> m_attached;
    std::unique_ptr<RecordingDialog> m_dialog;
};

TEST_F(RecordingCareTest, AnOddClockIsShownAndAttachesOnlyWhatLiesInTheRun) {
    for (const auto& [clock, recording] : oddRecordings()) {
        SCOPED_TRACE(clock);
        m_attached.reset();
        m_dialog->setRecording(desktop::loadedRecording("odd.kvb", recording));
        (void)m_dialog->grab();
        emit m_dialog->chart().clickedAt(13);
        const auto& samples = recording.boatmotion;
        alignAt(4, samples.empty() ? 0 : samples.front().timestamp);
        m_dialog->attach();
        EXPECT_EQ(m_attached.has_value(), fault().empty()) << fault();
        EXPECT_FALSE(m_attached && m_attached->isEmpty());
        (void)m_dialog->grab();
    }
}

TEST_F(RecordingCareTest, AFaultGoesWhenItIsMended) {
    const bmrawdata_v5 drill = sample::upstreamDrill();
    const double begin = drill.boatmotion.front().timestamp;
    m_dialog->setRecording(desktop::loadedRecording("drill.kvb", drill));
    alignAt(4, begin + 5000);
    m_dialog->attach();
    EXPECT_THAT(fault(), HasSubstr("Nothing of the recording"));
    EXPECT_FALSE(m_attached);
    m_span = RunSpan{4 - 4995, 20 - 4995};
    m_dialog->showRun();
    m_dialog->attach();
    EXPECT_TRUE(m_attached);
    EXPECT_EQ(fault(), "");
    EXPECT_TRUE(says("is attached"));
    m_attached.reset(); // undone in the window beside
    m_dialog->showRun();
    EXPECT_FALSE(says("is attached"));
}

TEST_F(RecordingCareTest, OfTwoRecordingsTheOneThatWasWantedLastIsThere) {
    bmrawdata_v5 none = sample::upstreamDrill();
    none.boatmotion.clear();
    const QString slow = add("slow.kvb", sample::upstreamDrill());
    const QString quick = add("quick.kvb", none);
    QSignalSpy loaded(m_dialog.get(), &RecordingDialog::loaded);
    m_dialog->load(slow);
    m_dialog->load(quick);
    QThreadPool::globalInstance()->waitForDone();
    QApplication::processEvents();
    EXPECT_TRUE(says("quick.kvb"));
    EXPECT_EQ(loaded.count(), 1);
}

TEST_F(RecordingCareTest, ADamagedFileLeavesTheRecordingAndItsMoments) {
    m_dialog->setRecording(desktop::loadedRecording("drill.kvb", sample::upstreamDrill()));
    alignAt(4, sample::upstreamDrill().boatmotion.front().timestamp + 5);
    QSignalSpy failed(m_dialog.get(), &RecordingDialog::failed);
    m_dialog->load(QString::fromStdString(m_folder.add("damaged.kvb", "{\"info\": 3}").string()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return failed.count() > 0; }));
    EXPECT_TRUE(m_dialog->fit());
    m_dialog->attach();
    EXPECT_TRUE(m_attached);
}

TEST_F(RecordingCareTest, ADialogThatGoesWhileItReadsLeavesNothingBehind) {
    m_dialog->load(add("drill.kvb", sample::upstreamDrill()));
    m_dialog.reset();
    QApplication::processEvents();
    EXPECT_FALSE(m_attached);
}

} // namespace
} // namespace kavela::test
