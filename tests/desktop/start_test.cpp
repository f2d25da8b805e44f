#include "desktop/desktop.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/cross_window.h"
#include "desktop/motion/motion_window.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/planning/planning_window.h"
#include "desktop/race/race_window.h"
#include "desktop/selection/selection_window.h"
#include "desktop/shell/edited_file.h"
#include "desktop/team/team_window.h"
#include "desktop/tools.h"
#include "desktop/watertests/tests_window.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <set>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::Desktop;
using desktop::ToolWindow;
using desktop::Workspace;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class StartTest : public ::testing::Test {
protected:
    StartTest() { m_workspace.setAlerts(&m_recorder); }

    QString copied(const char* example) const {
        const fs::path from = fs::path(KAVELA_EXAMPLES) / example;
        fs::copy_file(from, m_folder.path() / from.filename(),
                      fs::copy_options::overwrite_existing);
        return QString::fromStdString((m_folder.path() / from.filename()).string());
    }

    [[nodiscard]] Autosave autosave() const {
        return Autosave(QString::fromStdString((m_folder.path() / "kept").string()));
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{8e8}; }};
};

struct Case {
    const char* name;
    const char* example;
    std::function<bool(const ToolWindow*)> isItsTool;
};

template <class Window>
Case tool(const char* name, const char* example) {
    return {name, example, [](const ToolWindow* window) {
                return qobject_cast<const Window*>(window) != nullptr;
            }};
}

TEST_F(StartTest, EveryToolStandsOnTheHomeScreenOnce) {
    std::multiset<QString> shown;
    for (const desktop::HomeGroup& group : desktop::homeGroups())
        for (const desktop::ToolKind* const tool : group.tools)
            shown.insert(tool->title);
    std::multiset<QString> made;
    for (const desktop::ToolKind& tool : desktop::toolKinds())
        if (!tool.sentence.isEmpty())
            made.insert(tool.title);
    EXPECT_EQ(shown, made);
}

TEST_F(StartTest, OpensEachFileInItsToolWhateverItIsCalledAndAgainAtTheNextStart) {
    const std::vector<Case> cases{
        tool<desktop::TeamWindow>("team", "team/kavela_team.kvteam"),
        tool<desktop::SelectionWindow>("selection", "selection/spring_selection.kvsr"),
        tool<desktop::PlanningWindow>("planning", "planning/season.planning"),
        tool<desktop::TestsWindow>("tests", "tests/form_tests.kvtest")};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        const QString renamed =
            QString::fromStdString((m_folder.path() / each.name).string()) + ".json";
        ASSERT_TRUE(QFile::rename(copied(each.example), renamed));
        {
            Desktop program(m_workspace, autosave());
            program.open(renamed);
            ASSERT_THAT(program.windows(), SizeIs(1));
            EXPECT_TRUE(each.isItsTool(program.windows().front()));
        }
        Desktop next(m_workspace, autosave());
        EXPECT_TRUE(next.restoreSession());
        ASSERT_THAT(next.windows(), SizeIs(1));
        EXPECT_TRUE(each.isItsTool(next.windows().front()));
    }
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(StartTest, OpensASplitFileWithoutRunsAsItsKayakCross) {
    Desktop program(m_workspace, autosave());
    program.open(copied("races/harbour_cross.kvx"));
    EXPECT_THAT(program.windowsOf<desktop::CrossWindow>(), SizeIs(1));
    EXPECT_THAT(program.windowsOf<desktop::RaceWindow>(), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(StartTest, OpensRecordingsBesideEachOtherAndAgainAtTheNextStart) {
    const QStringList files{copied("recordings/upstream_drill.kvb"),
                            copied("recordings/sprint_with_watch.kvb")};
    {
        Desktop program(m_workspace, autosave());
        program.openAll(files);
        ASSERT_TRUE(program.windowsOf<desktop::MotionWindow>().value(0));
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return program.windowsOf<desktop::MotionWindow>().value(0)->paths().size() == 2;
        }));
    }
    Desktop next(m_workspace, autosave());
    EXPECT_TRUE(next.restoreSession());
    ASSERT_TRUE(next.windowsOf<desktop::MotionWindow>().value(0));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return next.windowsOf<desktop::MotionWindow>().value(0)->paths() == files; }));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(StartTest, LoadsThePlanningThatThePreferencesName) {
    const QString path = copied("planning/season.planning");
    const auto windowsWith = [&](bool isOn, const QString& file) {
        m_workspace.setPreference("autoloadPlanning", isOn);
        m_workspace.setPreference(
            "autoloadPlanningURL",
            PreferenceUrl{QUrl::fromLocalFile(file).toString().toStdString()});
        Desktop program(m_workspace, autosave());
        program.loadPlanningAtStart();
        return program.windows().size();
    };
    EXPECT_EQ(windowsWith(false, path), 0);
    EXPECT_EQ(windowsWith(true, path), 1);
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    EXPECT_EQ(windowsWith(true, path + ".gone"), 0);
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
}

TEST_F(StartTest, OffersAnOnlinePlanningAtStartOnlyFromASafeAddress) {
    m_workspace.setPreference("autoloadPlanning", true);
    m_workspace.setPreference("autoloadPlanningOnline", true);
    m_workspace.remember("onlinePlanningAddress", {"http://127.0.0.1:1/plans", "", "Team"});
    Desktop program(m_workspace, autosave());
    program.loadPlanningAtStart();
    ASSERT_THAT(program.windows(), SizeIs(1));
    QSignalSpy loaded(&program.windowsOf<desktop::PlanningWindow>().constFirst()->online(),
                      &desktop::OnlinePlanning::loaded);
    ASSERT_TRUE(loaded.wait());
    EXPECT_FALSE(loaded.front().front().toBool());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
}

} // namespace
} // namespace kavela::test
