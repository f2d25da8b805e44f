#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/planning/planning_window.h"
#include "desktop/saving.h"
#include "desktop/selection/selection_window.h"
#include "desktop/shell/edited_file.h"
#include "desktop/taking/taking_window.h"
#include "desktop/team/team_window.h"
#include "desktop/watertests/tests_window.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMainWindow>
#include <QTest>

/// What was not saved when the program ended in the middle of work.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::Desktop;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A tool with a document in it: what a coach changes there, and whether it is there.
struct Tool {
    const char* name;
    const char* example;
    std::function<void(QMainWindow&)> edit;
    std::function<bool(QMainWindow&)> isEdited;
    std::function<bool(QMainWindow&)> save;
};

/// A tool on a list: the coach removes all that it holds.
template <class Window, class List>
Tool listTool(const char* name, const char* example, List list) {
    return {name, example,
            [list](QMainWindow& window) {
                dynamic_cast<Window&>(window).document().edit(
                    "removal", [&](auto& value) { list(value).clear(); });
            },
            [list](QMainWindow& window) {
                auto value = dynamic_cast<Window&>(window).document().value();
                return list(value).empty();
            },
            [](QMainWindow& window) { return saved(*dynamic_cast<Window&>(window).file()); }};
}

constexpr const char* Typed = "typed before the end";

std::vector<Tool> tools() {
    using desktop::CrossWindow;
    using desktop::TakingWindow;
    return {
        listTool<desktop::TeamWindow>(
            "team", "team/kavela_team.kvteam", [](auto& team) -> auto& { return team.realMyTeam; }),
        listTool<desktop::SelectionWindow>(
            "selection", "selection/spring_selection.kvsr",
            [](auto& selection) -> auto& { return selection.races; }),
        listTool<desktop::PlanningWindow>(
            "planning", "planning/season.planning",
            [](auto& plan) -> auto& { return plan.athletes; }),
        listTool<desktop::TestsWindow>(
            "tests", "tests/form_tests.kvtest", [](auto& tests) -> auto& { return tests; }),
        {"split taking", "races/spring_opener.kvx",
         [](QMainWindow& window) {
             dynamic_cast<TakingWindow&>(window).document().editRun(
                 0, "hand", [](athletedata031& run) { run.hand = Typed; });
         },
         [](QMainWindow& window) {
             return dynamic_cast<TakingWindow&>(window).document().run(0).hand == Typed;
         },
         [](QMainWindow& window) { return saved(dynamic_cast<TakingWindow&>(window)); }},
        {"kayak cross", "races/harbour_cross.kvx",
         [](QMainWindow& window) {
             dynamic_cast<CrossWindow&>(window).document().editCross(
                 "name", [](crossdata030& cross) { cross.crossinfo.phase = Typed; });
         },
         [](QMainWindow& window) {
             return dynamic_cast<CrossWindow&>(window).document().cross().crossinfo.phase == Typed;
         },
         [](QMainWindow& window) { return saved(dynamic_cast<CrossWindow&>(window).document()); }}};
}

class CrashTest : public ::testing::Test {
protected:
    CrashTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }

    /// The program as it starts after one that ended without a word.
    void start() {
        m_program = std::make_unique<Desktop>(
            m_workspace, Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
        m_questions.clear();
    }

    [[nodiscard]] QMainWindow* window() const { return m_program->windows().value(0); }

    [[nodiscard]] QString copied(const char* example) const {
        const fs::path from = fs::path(KAVELA_EXAMPLES) / example;
        fs::copy_file(from, m_folder.path() / from.filename());
        return QString::fromStdString((m_folder.path() / from.filename()).string());
    }

    void open(const QString& path) {
        if (path.endsWith("opener.kvx"))
            (void)m_program->openTaking(path);
        else
            m_program->open(path);
    }

    void press(QKeyCombination keys) {
        QApplication::setActiveWindow(window());
        QWidget* const focus = window()->focusWidget() ? window()->focusWidget() : window();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    std::unique_ptr<Desktop> m_program;
};

class RecoveryTest : public CrashTest, public ::testing::WithParamInterface<Tool> {};

/// Work that was recovered is where the document begins: no undo leads behind it, and until it is
/// saved its copy stays.
TEST_P(RecoveryTest, IsNotLostByUndoNorByAnotherEnd) {
    const Tool& tool = GetParam();
    const QString path = copied(tool.example);
    start();
    open(path);
    ASSERT_TRUE(window());
    tool.edit(*window());
    ASSERT_TRUE(tool.isEdited(*window()));

    start(); // the program before is gone without having been closed
    m_program->offerRecovery();
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    ASSERT_TRUE(window());
    EXPECT_TRUE(tool.isEdited(*window()));
    EXPECT_TRUE(window()->isWindowModified());
    for (int i = 0; i < 3; ++i)
        press(Qt::CTRL | Qt::Key_Z);
    EXPECT_TRUE(tool.isEdited(*window())) << "nothing was done yet that could be undone";
    EXPECT_TRUE(window()->isWindowModified());

    start();
    m_program->offerRecovery();
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave)) << "it was never saved";
    ASSERT_TRUE(window());
    EXPECT_TRUE(tool.isEdited(*window()));
    EXPECT_TRUE(tool.save(*window()));
    EXPECT_FALSE(window()->isWindowModified());

    start();
    m_program->offerRecovery();
    EXPECT_THAT(m_questions, IsEmpty());
    EXPECT_FALSE(window()) << "what is saved needs no recovery";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// The guide promises it: what was changed is on the disk soon after, whatever becomes of the
/// program, which here goes on and neither saves nor closes anything.
TEST_P(RecoveryTest, FindsEveryChangeSoonAfterItWasMade) {
    const Tool& tool = GetParam();
    const QString path = copied(tool.example);
    start();
    open(path);
    ASSERT_TRUE(window());
    const Autosave kept(QString::fromStdString((m_folder.path() / "kept").string()));
    tool.edit(*window());
    QTRY_VERIFY(kept.find(path));

    const std::unique_ptr<Desktop> ended = std::move(m_program);
    start();
    m_program->offerRecovery();
    ASSERT_TRUE(window());
    EXPECT_TRUE(tool.isEdited(*window()));
    m_program.reset();
}

/// A coach goes on where the work was cut off, with everything that was open beside it.
TEST_F(CrashTest, BringsBackTheRunThatWasWorkedOnAndTheOtherWindows) {
    constexpr int WorkedOn = 5;
    const QString race = copied("races/spring_opener.kvx");
    const QString team = copied("team/kavela_team.kvteam");
    start();
    desktop::TakingWindow* const before = m_program->openTaking(race);
    ASSERT_TRUE(before);
    m_program->open(team);
    before->document().editRun(WorkedOn, "hand", [](athletedata031& run) { run.hand = Typed; });

    start();
    m_program->offerRecovery();
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave)) << "of the race alone";
    ASSERT_THAT(m_program->windowsOf<desktop::TakingWindow>(), SizeIs(1));
    desktop::TakingWindow& after = *m_program->windowsOf<desktop::TakingWindow>().front();
    EXPECT_EQ(after.document().run(WorkedOn).hand, Typed);
    EXPECT_EQ(after.currentRun(), WorkedOn);
    ASSERT_THAT(m_program->windowsOf<desktop::TeamWindow>(), SizeIs(1));
    EXPECT_EQ(m_program->windowsOf<desktop::TeamWindow>().front()->paths(), QStringList(team));
    EXPECT_THAT(m_program->windows(), SizeIs(2));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Tools, RecoveryTest, ::testing::ValuesIn(tools()), [](const auto& tool) {
    std::string name = tool.param.name;
    std::erase(name, ' ');
    return name;
});

} // namespace
} // namespace kavela::test
