#include "desktop/motion/motion_window.h"

#include "boatmotion/hand_made_recording.h"
#include "boatmotion/session_files.h"
#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/motion/cursor_table.h"
#include "desktop/motion/motion_charts.h"
#include "desktop/motion/recording_list.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

class MotionWindowTest : public ::testing::Test {
protected:
    MotionWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.show();
    }

    ~MotionWindowTest() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    static bmrawdata_v5 session(double seconds) {
        bmrawdata_v5 session = handMade(seconds, steadyPaddling);
        session.athleteinfo.name = "Ada Example";
        return session;
    }

    fs::path add(const std::string& name, const bmrawdata_v5& content = session(30)) {
        return m_folder.add(name, encode(content));
    }

    static QString text(const fs::path& path) { return QString::fromStdString(path.string()); }

    MotionRecordings& recordings() { return m_window.recordings(); }

    [[nodiscard]] bool open(const QStringList& paths) {
        m_window.open(paths);
        return QTest::qWaitFor([this] {
            return !recordings().isBusy() &&
                   std::ranges::none_of(recordings().all(),
                                        [](const auto& one) { return one->isAnalysing; });
        });
    }

    [[nodiscard]] bool convert() {
        m_window.convertCurrent();
        return QTest::qWaitFor([this] { return !recordings().isBusy(); });
    }

    std::vector<std::string> takeAlerts() { return std::exchange(m_recorder.alerts, {}); }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          systemNow};
    MotionWindow m_window{m_workspace};
};

} // namespace

TEST_F(MotionWindowTest, ShowsARecordingOnceByWhicheverPath) {
    const fs::path file = add("a.kvb");
    const fs::path link = m_folder.path() / "link.kvb";
    fs::create_symlink(file, link);
    ASSERT_TRUE(open({text(file), text(link)}));
    EXPECT_EQ(recordings().all().size(), 1U);
    ASSERT_TRUE(open({text(link)}));
    EXPECT_EQ(recordings().all().size(), 1U);
}

TEST_F(MotionWindowTest, LaysRecordingsOverEachOtherAndReadsThemAtTheCursor) {
    bmrawdata_v5 odd = session(20);
    odd.gps.clear();
    odd.boatmotion.erase(odd.boatmotion.begin() + 500, odd.boatmotion.begin() + 700);
    std::swap(odd.boatmotion[10], odd.boatmotion[11]);
    ASSERT_TRUE(open({text(add("a.kvb")), text(add("b.kvb", odd))}));
    ASSERT_THAT(recordings().all(), SizeIs(2));
    EXPECT_THAT(m_recorder.lines,
                ElementsAre("BM data count for a.kvb 3000", "BM data count for b.kvb 1800"));
    const RecordingWords words = wordsOf(*recordings().all()[1]);
    EXPECT_EQ(words.name, "b.kvb");
    EXPECT_EQ(words.session, "Ada Example · 2024-05-04 · 0:20");
    EXPECT_EQ(words.data, "100 a second · no position · no heart · no watch");
    EXPECT_THAT(words.found.toStdString(), HasSubstr("a hole of 2.0 s"));
    EXPECT_THAT(words.found.toStdString(), HasSubstr("the clock ran backwards once"));
    EXPECT_THAT(words.found.toStdString(), HasSubstr("side unknown")) << "it has no positions";

    MotionCharts& charts = m_window.charts();
    EXPECT_NEAR(charts.view().second, 29.99, 1e-9);
    EXPECT_THAT(charts.chart(CurveKind::Forward)->series(), SizeIs(2));
    EXPECT_THAT(charts.chart(CurveKind::Speed)->series(), SizeIs(1));
    EXPECT_THAT(charts.shownKinds(), testing::Not(Contains(CurveKind::Heart))) << "none has any";
    charts.chart(CurveKind::Forward)->setView(5, 10);
    EXPECT_EQ(charts.chart(CurveKind::Roll)->view(), std::pair(5.0, 10.0));
    charts.chart(CurveKind::Forward)->showCursorAt(6);
    EXPECT_EQ(charts.chart(CurveKind::Roll)->cursor(), 6);
    const QAbstractItemModel& values = *m_window.values().model();
    EXPECT_EQ(values.index(0, 0).data(), "0:06.00");
    charts.chart(CurveKind::Forward)->showCursorAt(12);
    const int stroke = values.rowCount() - 4;
    const auto at = [&](int row, int column) {
        return values.index(row, column).data().toString().toStdString();
    };
    EXPECT_THAT(at(stroke, 1), testing::StartsWith("side unknown, "));
    EXPECT_EQ(at(stroke + 1, 1), "–") << "nor its force";
    m_window.list().choose(0);
    m_window.findChild<QComboBox*>("mount")->setCurrentIndex(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !recordings().all()[0]->isAnalysing; }));
    charts.chart(CurveKind::Forward)->showCursorAt(12.01);
    EXPECT_THAT(at(stroke, 0), testing::MatchesRegex("(left|right), [0-9]+"))
        << "of the mount that was named";

    recordings().setTicked(0, false);
    EXPECT_THAT(charts.chart(CurveKind::Forward)->series(), SizeIs(1));
    EXPECT_EQ(values.columnCount(), 1);
}

TEST_F(MotionWindowTest, ABrokenFileLeavesTheListAsItWas) {
    const bmrawdata_v5 whole = session(5);
    std::string cut = encode(whole);
    cut.replace(cut.find("\"rotationRate\""), 14, "\"rotationRat_\"");
    const std::string older =
        contentOf(fs::path(KAVELA_EXAMPLES) / "recordings" / "old_phone_v4.kvb");
    ASSERT_TRUE(open({text(add("good.kvb"))}));
    std::vector<Alert> asked;
    bool isWanted = false;
    m_workspace.setAnswer([&](const Alert& question) {
        asked.push_back(question);
        return isWanted;
    });
    const QString old = text(m_folder.add("older.kvb", older));
    ASSERT_TRUE(
        open({text(m_folder.add("broken.kvb", cut)), old, text(m_folder.path() / "no.kvb")}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !asked.empty(); }));
    ASSERT_THAT(recordings().all(), SizeIs(1));
    EXPECT_THAT(takeAlerts(),
                ElementsAre(HasSubstr("broken.kvb: boatmotion[0]"), HasSubstr("no.kvb")));
    EXPECT_THAT(m_recorder.lines, Contains("Error converting!").Times(3));
    EXPECT_EQ(asked[0].title, "Error converting!");
    EXPECT_THAT(m_folder.names(), testing::Not(Contains("older_v5.kvb"))) << "it was not wanted";

    isWanted = true;
    m_window.open(QStringList{old});
    ASSERT_TRUE(QTest::qWaitFor([&] { return recordings().all().size() == 2; }));
    EXPECT_EQ(recordings().all()[1]->data.name, "older_v5.kvb");
    EXPECT_EQ(contentOf(m_folder.path() / "older.kvb"), older) << "it stays as it was";
    ASSERT_TRUE(open({}));
}

TEST_F(MotionWindowTest, ConvertsBesideTheRecordingAndAsksForAFurtherName) {
    const fs::path source = add("run.kvb");
    const std::string before = contentOf(source);
    ASSERT_TRUE(open({text(source)}));
    // At an even speed fixes do not tell the bow, and without the bow there is no force.
    m_window.findChild<QComboBox*>("mount")->setCurrentText("Top to the bow");
    QSignalSpy converted(&m_window, &MotionWindow::convertedTo);
    QSignalSpy opened(&m_window, &MotionWindow::openRequested);
    m_window.convertCurrent();
    EXPECT_EQ(m_window.status(), "Converting...");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !recordings().isBusy(); }));
    EXPECT_THAT(m_window.status().toStdString(), testing::StartsWith("Autosaved!"));
    EXPECT_EQ(converted.value(0).value(0), text(m_folder.path() / "run_postv5.bms"));
    EXPECT_EQ(contentOf(source), before);
    const smartAlldata_v4 first = readSmartSession(m_folder.path() / "run_postv5.bms");
    EXPECT_GT(first.strokesData.size(), 30U);
    EXPECT_EQ(first.info.name, "Ada Example");
    m_window.openConverted();
    EXPECT_EQ(opened.value(0).value(0).toStringList(),
              QStringList(text(m_folder.path() / "run_postv5.bms")));

    // A heavier boat takes more force; the first file stays as it is.
    m_window.findChild<QDoubleSpinBox*>("mass")->setValue(150);
    QStringList asked;
    QString answer;
    m_window.setAskName([&](const QString& prompt, const QString& proposed) {
        asked << prompt << proposed;
        return answer;
    });
    ASSERT_TRUE(convert());
    EXPECT_EQ(asked, QStringList({"new file name for extra bms", "run_postv5_2"}));
    EXPECT_EQ(converted.size(), 1) << "no name, no file";
    answer = "heavier";
    ASSERT_TRUE(convert());
    const smartAlldata_v4 further = readSmartSession(m_folder.path() / "heavier.bms");
    EXPECT_GT(further.strokesData.at(10).stroke.force, first.strokesData.at(10).stroke.force);
    EXPECT_THAT(m_folder.names(), Contains("run_postv5.bms"));
}

TEST_F(MotionWindowTest, FailuresOfConversionAreTold) {
    ASSERT_TRUE(open({text(add("short.kvb", session(0.5)))}));
    EXPECT_FALSE(recordings().all().front()->fault.isEmpty());
    ASSERT_TRUE(convert());
    EXPECT_EQ(m_window.status(), "Error converting!");
    EXPECT_THAT(takeAlerts(), ElementsAre(HasSubstr("short.kvb")));

    fs::create_directory(m_folder.path() / "gone");
    const fs::path moved = m_folder.path() / "gone" / "run.kvb";
    fs::copy_file(add("run.kvb"), moved);
    ASSERT_TRUE(open({text(moved)}));
    fs::remove_all(moved.parent_path());
    ASSERT_TRUE(convert());
    EXPECT_EQ(m_window.status(), "Failed to create file");
    EXPECT_THAT(takeAlerts(), SizeIs(1));
    EXPECT_THAT(m_recorder.lines, Contains("Failed to create file"));
}

TEST_F(MotionWindowTest, MovesARecordingInTime) {
    bmrawdata_v5 later = session(30);
    for (auto& sample : later.boatmotion)
        sample.timestamp += 12;
    later.info.date.seconds += 12;
    for (auto& fix : later.gps)
        fix.date.seconds += 12;
    ASSERT_TRUE(open({text(add("a.kvb")), text(add("b.kvb", later))}));
    MotionCharts& charts = m_window.charts();
    m_window.list().choose(1);
    charts.setPin(8);
    charts.setCursor(5);
    m_window.alignHere();
    EXPECT_NEAR(recordings().all()[1]->shift, 3, 1e-9);
    EXPECT_NEAR(charts.view().second, 32.99, 1e-9) << "everything is still seen";
    const auto& series = charts.chart(CurveKind::Forward)->series();
    EXPECT_NEAR(series.at(1).offset, 3, 1e-9);
    m_window.alignByClock();
    EXPECT_NEAR(recordings().all()[1]->shift, 12, 0.001);
    m_window.alignStarts();
    EXPECT_EQ(recordings().all()[1]->shift, 0);
    QApplication::setActiveWindow(&m_window);
    m_window.list().setFocus();
    QTest::keyClick(&m_window, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&m_window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(recordings().all()[1]->shift, 3, 1e-9) << "what was aligned by hand is not lost";
    for (const double part : {0.5, 0.25})
        emit charts.shiftDragged(part);
    emit charts.shiftDragEnded();
    EXPECT_NEAR(recordings().all()[1]->shift, 3.75, 1e-9);
    QTest::keyClick(&m_window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NEAR(recordings().all()[1]->shift, 3, 1e-9) << "a drag is one move";
    m_window.alignStarts();

    charts.setCursor(10);
    m_window.goToStroke(1);
    const double catchTime = charts.cursor().value();
    EXPECT_NEAR(std::remainder(catchTime, 0.75), 0, 0.1);
    m_window.goToStroke(1);
    EXPECT_NEAR(charts.cursor().value() - catchTime, 0.75, 0.1);
    m_window.goToStroke(-1);
    EXPECT_NEAR(charts.cursor().value(), catchTime, 1e-6);
}

TEST_F(MotionWindowTest, HandsOtherFilesOnAndOpensNoneTwice) {
    QSignalSpy opened(&m_window, &MotionWindow::openRequested);
    const QString path = text(add("a.kvb"));
    ASSERT_TRUE(open({path, "/somewhere/a.sbm", path}));
    ASSERT_TRUE(open({path}));
    EXPECT_EQ(m_window.paths(), QStringList(path));
    EXPECT_EQ(opened.value(0).value(0).toStringList(), QStringList("/somewhere/a.sbm"));
    EXPECT_EQ(m_workspace.recentFiles(), QStringList(path));
    m_window.removeCurrent();
    EXPECT_THAT(recordings().all(), IsEmpty());
    EXPECT_EQ(m_window.windowTitle(), "Raw recordings – Kavela");
}

} // namespace kavela::test
