#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/open_session.h"
#include "desktop/path_text.h"
#include "desktop/race/race_window.h"
#include "desktop/slow_disk.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// Files that take long to read: the windows go on, and it is opened what was asked for.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Desktop;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ReadingTest : public ::testing::Test {
protected:
    ReadingTest() { m_workspace.setAlerts(&m_recorder); }
    ~ReadingTest() override { desktop::disk::waitForAll(); }

    QString copied(const char* example) const {
        const fs::path from = fs::path(KAVELA_EXAMPLES) / example;
        fs::copy_file(from, m_folder.path() / from.filename());
        return pathText(m_folder.path() / from.filename());
    }
    [[nodiscard]] desktop::Autosave autosave() const {
        return desktop::Autosave(pathText(m_folder.path() / "kept"));
    }
    [[nodiscard]] static std::vector<std::string> kindsOf(const Desktop& program) {
        std::vector<std::string> kinds;
        for (const desktop::ToolWindow* const window : program.windows())
            kinds.push_back(window->kind().toStdString());
        return kinds;
    }
    [[nodiscard]] static bool isDone(const Desktop& program) {
        return QTest::qWaitFor([&] { return !program.isOpening(); }, 30'000);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(ReadingTest, SeveralFilesComeInTheirOrderAndOnceEachHoweverOftenTheyAreAskedFor) {
    const QStringList files{copied("tests/form_tests.kvtest"), copied("team/kavela_team.kvteam"),
                            copied("selection/spring_selection.kvsr"),
                            copied("races/spring_opener.kvx"), copied("races/riverside_cup.kvx")};
    Desktop program(m_workspace, autosave());
    {
        const SlowReading slow;
        program.openAll(files);
        program.open(files[1]);
        program.comeForward({files[0], files[4]});
        EXPECT_TRUE(program.isOpening());
        EXPECT_TRUE(program.hasWindows());
        EXPECT_THAT(program.windows(), IsEmpty());
        EXPECT_FALSE(program.isHomeShown()) << "a window is on its way";
    }
    ASSERT_TRUE(isDone(program));
    EXPECT_THAT(kindsOf(program), ElementsAre("tests", "team", "selection", "race"));
    ASSERT_THAT(program.windowsOf<desktop::RaceWindow>(), SizeIs(1));
    EXPECT_EQ(program.windowsOf<desktop::RaceWindow>().front()->paths(), files.mid(3));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// As with a program that nothing holds back but what it reads.
TEST_F(ReadingTest, TheProgramGoesOnWithoutAWindowAndShowsHomeWhereNoneCameOfIt) {
    const QString damaged = pathText(m_folder.add("damaged.kvteam", R"({"realMyTeam": 7)"));
    Desktop program(m_workspace, autosave());
    {
        const SlowReading slow;
        program.open(damaged);
        QApplication::processEvents();
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
    }
    ASSERT_TRUE(isDone(program));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("damaged.kvteam")));
    EXPECT_THAT(program.windows(), IsEmpty());
    EXPECT_TRUE(program.isHomeShown());
}

TEST_F(ReadingTest, AProgramThatIsLeftMeanwhileRemembersWhatItWasToOpen) {
    const QString team = copied("team/kavela_team.kvteam");
    const QString tests = copied("tests/form_tests.kvtest");
    const SlowReading slow;
    {
        Desktop program(m_workspace, autosave());
        program.openAll({team, tests});
        program.rememberSession();
    }
    QApplication::processEvents();
    QStringList remembered;
    for (const desktop::OpenFile& file : desktop::rememberedSession(m_workspace))
        remembered.append(file.path);
    EXPECT_EQ(remembered, (QStringList{team, tests}));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(ReadingTest, ASessionComesBackThoughItsFilesTakeLong) {
    {
        Desktop program(m_workspace, autosave());
        program.openAll({copied("team/kavela_team.kvteam"), copied("tests/form_tests.kvtest")});
    }
    Desktop next(m_workspace, autosave());
    {
        const SlowReading slow;
        EXPECT_TRUE(next.restoreSession());
        EXPECT_THAT(next.windows(), IsEmpty());
        next.rememberSession();
    }
    ASSERT_TRUE(isDone(next));
    EXPECT_THAT(kindsOf(next), ElementsAre("team", "tests"));
    EXPECT_THAT(desktop::rememberedSession(m_workspace), SizeIs(2));
}

} // namespace
} // namespace kavela::test
