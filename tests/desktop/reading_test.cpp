#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/open_session.h"
#include "desktop/path_text.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/slow_disk.h"
#include "desktop/taking/taking_window.h"
#include "desktop/team/team_window.h"
#include "desktop/tools.h"
#include "desktop/watertests/tests_window.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QTest>

#include <filesystem>
#include <optional>
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
    EXPECT_THAT(kindsOf(program), ElementsAre("watertests", "team", "selection", "race"));
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
    EXPECT_THAT(kindsOf(next), ElementsAre("team", "watertests"));
    EXPECT_THAT(desktop::rememberedSession(m_workspace), SizeIs(2));
}

/// A window that is there already while its file is read, though nobody sees it yet.
TEST_F(ReadingTest, AWindowThatWaitsForItsFileIsOneAndGoesWithTheProgram) {
    const QString path = copied("team/kavela_team.kvteam");
    const desktop::ToolKind& team = *desktop::toolOfKind("team");
    {
        const SlowReading slow;
        Desktop left(m_workspace, autosave());
        EXPECT_TRUE(left.openIn(team, path));
    }
    Desktop program(m_workspace, autosave());
    {
        const SlowReading slow;
        EXPECT_TRUE(program.openIn(team, path));
        EXPECT_TRUE(program.openIn(team, path));
        program.open(path);
        EXPECT_THAT(program.windows(), IsEmpty());
    }
    ASSERT_TRUE(isDone(program));
    ASSERT_THAT(program.windows(), SizeIs(1));
    desktop::TeamWindow directly(m_workspace, autosave());
    directly.setAttribute(Qt::WA_DeleteOnClose, false);
    const QString copy = pathText(m_folder.path() / "copy.kvteam");
    ASSERT_TRUE(QFile::copy(path, copy));
    ASSERT_TRUE(directly.open(copy));
    const desktop::TeamWindow& beside = *program.windowsOf<desktop::TeamWindow>().front();
    EXPECT_EQ(encode(*beside.document().team()), encode(*directly.document().team()));
    EXPECT_FALSE(beside.document().athletes().empty());
    EXPECT_FALSE(beside.isWindowModified());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(ReadingTest, AFilmOpensThoughASplitFileBesideItIsDamaged) {
    (void)copied("races/harbour_night.kvx");
    (void)m_folder.add("damaged.kvx", R"({"info": )");
    const char* const film = "harbour Dario Gorgazzi Heats.MOV";
    Desktop program(m_workspace, autosave());
    program.open(pathText(m_folder.add(film, "no film yet")));
    ASSERT_THAT(program.windows(), SizeIs(1));
    EXPECT_THAT(program.windows().front()->paths().value(0).toStdString(),
                ::testing::EndsWith("harbour_night.kvx"));
}

/// It would be edited in two windows, or what was asked for would come to nothing.
TEST_F(ReadingTest, WhatIsAskedOfARaceThatIsBeingReadIsDoneOnceItIsThere) {
    const QString race = copied("races/spring_opener.kvx");
    const QString folder = QFileInfo(race).absolutePath();
    Desktop program(m_workspace, autosave());
    {
        const SlowReading slow;
        EXPECT_FALSE(program.openTaking(folder));
        program.showMoment(race, 3, 1);
        EXPECT_TRUE(program.openIn(*desktop::toolOfKind("taking"), race));
        EXPECT_THAT(program.windows(), IsEmpty());
    }
    ASSERT_TRUE(isDone(program));
    ASSERT_THAT(kindsOf(program), ElementsAre("taking"));
    EXPECT_EQ(program.windowsOf<desktop::TakingWindow>().front()->currentRun(), 3);
    {
        const SlowReading slow;
        EXPECT_FALSE(program.openCross(race));
        EXPECT_FALSE(program.openCross(folder));
        EXPECT_FALSE(program.openTaking(race)) << "the cross has it first";
        EXPECT_THAT(program.windows(), IsEmpty());
        EXPECT_TRUE(program.hasWindows());
    }
    QTRY_VERIFY(!program.windowsOf<desktop::TakingWindow>().isEmpty());
    EXPECT_THAT(kindsOf(program), ElementsAre("taking"));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(ReadingTest, TheOtherWindowOfARaceComesBackWhereItsFileHasGoneMeanwhile) {
    const QString race = copied("races/spring_opener.kvx");
    Desktop program(m_workspace, autosave());
    ASSERT_TRUE(program.openCross(race));
    {
        const SlowReading slow;
        EXPECT_FALSE(program.openTaking(race));
        ASSERT_TRUE(QFile::remove(race));
    }
    QTRY_VERIFY(!program.isOpening());
    EXPECT_TRUE(program.isHomeShown() || !program.windows().isEmpty()) << "it could not be left";
    EXPECT_FALSE(m_recorder.alerts.empty());
}

/// What is edited in it meanwhile would be lost.
TEST_F(ReadingTest, AWindowThatIsShownIsLockedWhileItsFileIsReadAgain) {
    const QString path = copied("team/kavela_team.kvteam");
    Desktop program(m_workspace, autosave());
    program.open(path);
    ASSERT_THAT(program.windows(), SizeIs(1));
    desktop::ToolWindow& window = *program.windows().front();
    std::optional<bool> isOpen;
    {
        const SlowReading slow;
        window.openBeside(path, [&](bool answer) { isOpen = answer; });
        EXPECT_FALSE(window.isEnabled());
        window.close();
        EXPECT_TRUE(window.isVisible());
    }
    QTRY_VERIFY(isOpen.has_value());
    EXPECT_TRUE(*isOpen);
    EXPECT_TRUE(window.isEnabled());
}

TEST_F(ReadingTest, WhatIsWrongWithAFileIsToldInTheSameWordsHoweverLongItTook) {
    const struct {
        const char* name;
        const char* tool;
    } files[] = {{"a.kvteam", "team"},       {"a.kvsr", "selection"}, {"a.planning", "planning"},
                 {"a.kvtest", "watertests"}, {"a.json", "compare"},   {"a.track.json", "tracking"},
                 {"a.kvx", "taking"},        {"b.kvx", "cross"}};
    for (const auto& [name, kind] : files) {
        SCOPED_TRACE(name);
        const QString path = pathText(m_folder.add(name, R"({"races": [)"));
        Desktop program(m_workspace, autosave());
        const auto* const tool = desktop::toolOfKind(kind);
        ASSERT_TRUE(tool);
        m_recorder.alerts.clear();
        EXPECT_FALSE(program.openIn(*tool, path));
        const auto atOnce = m_recorder.alerts;
        EXPECT_THAT(atOnce, SizeIs(1));
        m_recorder.alerts.clear();
        {
            const SlowReading slow;
            EXPECT_TRUE(program.openIn(*tool, path)) << "it is being read";
            EXPECT_THAT(m_recorder.alerts, IsEmpty());
        }
        ASSERT_TRUE(isDone(program));
        EXPECT_EQ(m_recorder.alerts, atOnce);
        EXPECT_THAT(program.windows(), IsEmpty());
    }
}

TEST_F(ReadingTest, WhatIsTakenOverFromAFileIsReadBesideTheWindow) {
    const QString race = pathText(m_folder.add("race.kvx", R"({"info": )"));
    const QString recording = pathText(m_folder.add("recording.kvb", R"({"races": )"));
    desktop::TeamWindow team(m_workspace, autosave());
    desktop::TestsWindow tests(m_workspace, autosave());
    team.startNew(pathText(m_folder.path() / "new.kvteam"));
    tests.startNew(pathText(m_folder.path() / "new.kvtest"));
    for (desktop::ToolWindow* const window :
         {static_cast<desktop::ToolWindow*>(&team), static_cast<desktop::ToolWindow*>(&tests)}) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
    }
    {
        const SlowReading slow;
        team.takeOverFrom({race});
        tests.takeIn({race, recording});
        EXPECT_FALSE(team.isEnabled()) << "what it is taken over into would change meanwhile";
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
    }
    QTRY_COMPARE(m_recorder.alerts.size(), 3UL);
    EXPECT_TRUE(team.isEnabled());
}

TEST_F(ReadingTest, RacesJoinTheWindowThatAskedForThemUnlessItHasClosed) {
    const QString race = copied("races/spring_opener.kvx");
    const QString other = copied("races/riverside_cup.kvx");
    const QString third = copied("races/harbour_night.kvx");
    Desktop program(m_workspace, autosave());
    program.open(race);
    ASSERT_THAT(program.windowsOf<desktop::RaceWindow>(), SizeIs(1));
    const QPointer<desktop::RaceWindow> window = program.windowsOf<desktop::RaceWindow>().front();
    {
        const SlowReading slow;
        emit window->openRequested({other});
        emit window->openRequested({other});
        EXPECT_THAT(window->views(), SizeIs(1)) << "it stays usable";
    }
    ASSERT_TRUE(isDone(program));
    EXPECT_THAT(window->views(), SizeIs(2));
    {
        const SlowReading slow;
        emit window->openRequested({third});
        window->close();
    }
    ASSERT_TRUE(isDone(program));
    ASSERT_THAT(program.windowsOf<desktop::RaceWindow>(), SizeIs(1));
    EXPECT_EQ(program.windowsOf<desktop::RaceWindow>().front()->paths(), QStringList(third));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

} // namespace
} // namespace kavela::test
