#include "desktop/closing.h"

#include "common/file_size_limit.h"
#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/open_session.h"
#include "desktop/saving.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/slow_disk.h"
#include "desktop/team/team_window.h"
#include "results/team_file.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <filesystem>
#include <memory>
#include <utility>

/// Windows that close, and programs that are left, with unsaved work.

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::TeamWindow;
using ::testing::ElementsAre;
using ::testing::SizeIs;

/// Takes the end of the program, which the test survives. Filters of later come before it.
class NoQuit : public QObject {
public:
    NoQuit() { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != qApp || event->type() != QEvent::Quit)
            return false;
        ++count;
        return true;
    }
};

class ClosingTest : public ::testing::Test {
protected:
    ClosingTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }
    ~ClosingTest() override { desktop::disk::waitForAll(); }

    [[nodiscard]] QString path(const char* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }

    /// A window with an athlete that is in no file yet.
    QPointer<TeamWindow> open(const char* name) {
        const QPointer<TeamWindow> window =
            new TeamWindow(m_workspace, desktop::Autosave(path("kept")));
        window->startNew(path(name));
        window->file()->setNamed();
        window->show();
        edit(*window, "Nova");
        return window;
    }
    static void edit(TeamWindow& window, const char* name) {
        window.document().edit("athlete", [&](myTeamToSaveStruct& team) {
            team.realMyTeam.emplace_back().name = name;
        });
    }

    static std::string teamOf(const char* name) {
        myTeamToSaveStruct team;
        team.realMyTeam.emplace_back().name = name;
        return encode(team);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(ClosingTest, GoesOnWhileTheDiskIsSlowAndClosesOnceItIsWritten) {
    const QPointer<TeamWindow> window = open("a.kvteam");
    {
        const SlowDisk slow;
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isClosing());
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(window->findChild<QToolBar*>("waitingNote")->isVisible());
        bool isAlive = false;
        QTimer::singleShot(0, [&] { isAlive = true; });
        QTRY_VERIFY(isAlive);
        EXPECT_FALSE(window->close()) << "asked once";
        EXPECT_THAT(m_questions, SizeIs(1));
        EXPECT_FALSE(fs::exists(m_folder.path() / "a.kvteam"));
    }
    QTRY_VERIFY(!window);
    EXPECT_TRUE(fs::exists(m_folder.path() / "a.kvteam"));
    EXPECT_THAT(m_questions, SizeIs(1));
}

TEST_F(ClosingTest, AsksAgainForWhatWasEditedWhileItWasWritten) {
    const QPointer<TeamWindow> window = open("a.kvteam");
    {
        const SlowDisk slow;
        window->close();
        edit(*window, "Zora");
    }
    QTRY_VERIFY(!window);
    EXPECT_THAT(m_questions, SizeIs(2));
    TeamWindow again(m_workspace, desktop::Autosave(path("kept")));
    again.setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(again.open(path("a.kvteam")));
    EXPECT_THAT(again.document().athletes(), SizeIs(2));
}

TEST_F(ClosingTest, KeepsTheWindowAndTheWorkWhereItCannotBeWritten) {
    const QPointer<TeamWindow> window = open("gone/a.kvteam");
    int way = 2; // later
    QStringList ways;
    m_workspace.setChoice([&](const Alert&, const QStringList& choices) {
        ways = choices;
        if (way == 0)
            fs::create_directory(m_folder.path() / "gone");
        return std::exchange(way, 2);
    });
    window->close();
    QTRY_VERIFY(!window->isClosing());
    EXPECT_EQ(ways, (QStringList{"Try again", "Save as…", "Later"}));
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_THAT(window->document().athletes(), SizeIs(1));
    EXPECT_FALSE(window->findChild<QToolBar*>("waitingNote")->isVisible());
    way = 0;
    window->close();
    QTRY_VERIFY(!window);
    EXPECT_TRUE(fs::is_regular_file(m_folder.path() / "gone" / "a.kvteam"));
}

TEST_F(ClosingTest, EarlierWorkTakesThePlaceOfWhatIsHereOnceThatIsWritten) {
    const QPointer<TeamWindow> window = open("a.kvteam");
    const auto names = [&] {
        std::vector<std::string> found;
        for (const auto& athlete : window->document().athletes())
            found.push_back(athlete.name);
        return found;
    };
    {
        const SlowDisk slow;
        window->takeBack(teamOf("Earlier"));
        EXPECT_TRUE(window->findChild<QToolBar*>("waitingNote")->isVisible());
        edit(*window, "Zora");
        EXPECT_THAT(names(), ElementsAre("Nova", "Zora")) << "the window goes on";
    }
    QTRY_COMPARE(names().size(), 1UL);
    EXPECT_THAT(names(), ElementsAre("Earlier"));
    EXPECT_THAT(m_questions, SizeIs(2)) << "once more for what was edited meanwhile";
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_FALSE(window->findChild<QToolBar*>("waitingNote")->isVisible());
    EXPECT_THAT(readTeamFile(m_folder.path() / "a.kvteam").realMyTeam, SizeIs(2));
    window->file()->discard();
    window->close();
    QTRY_VERIFY(!window);
}

TEST_F(ClosingTest, NothingTakesThePlaceOfWhatCannotBeWritten) {
    const QPointer<TeamWindow> window = open("gone/a.kvteam");
    m_workspace.setChoice([](const Alert&, const QStringList&) { return 2; }); // later
    window->takeBack(teamOf("Earlier"));
    const auto* const note = window->findChild<QToolBar*>("waitingNote");
    QTRY_VERIFY(note->isHidden());
    EXPECT_EQ(window->document().athletes().front().name, "Nova");
    EXPECT_TRUE(window->isWindowModified());
    {
        const SlowDisk slow; // pressed, and closed while it is still being written
        window->saveBeside();
        window->close();
    }
    QTRY_VERIFY(!window->isClosing());
    EXPECT_TRUE(window->isVisible()) << "told once why, it stays";
    window->file()->discard();
    window->close();
    QTRY_VERIFY(!window);
}

TEST_F(ClosingTest, AWindowThatClosesTakesNothingInAnyMore) {
    const QPointer<TeamWindow> window = open("a.kvteam");
    {
        const SlowDisk slow;
        window->takeBack(teamOf("Earlier"));
        window->close();
    }
    QTRY_VERIFY(!window);
    EXPECT_EQ(readTeamFile(m_folder.path() / "a.kvteam").realMyTeam.front().name, "Nova");
    EXPECT_THAT(m_questions, SizeIs(1));
}

TEST_F(ClosingTest, LeavingTheProgramWaitsForEachWindowAndRemembersAll) {
    NoQuit ends;
    for (const char* const name : {"a.kvteam", "b.kvteam"}) {
        const QPointer<TeamWindow> window = open(name);
        ASSERT_TRUE(saved(*window));
        window->close();
        QTRY_VERIFY(!window);
    }
    m_questions.clear();
    desktop::Desktop program(m_workspace, desktop::Autosave(path("kept")));
    program.openAll({path("a.kvteam"), path("b.kvteam")});
    const auto windows = program.windowsOf<TeamWindow>();
    ASSERT_THAT(windows, SizeIs(2));
    edit(*windows[1], "Zora");
    const auto quit = [] {
        QEvent event(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &event);
    };
    {
        const SlowDisk slow;
        quit();
        EXPECT_THAT(program.windows(), SizeIs(1)) << "the one that saves";
        quit();
        EXPECT_THAT(m_questions, SizeIs(1)) << "it is asked once";
        EXPECT_EQ(ends.count, 0);
    }
    QTRY_VERIFY(program.windows().isEmpty());
    QApplication::processEvents();
    EXPECT_THAT(desktop::rememberedSession(m_workspace), SizeIs(2));
}

TEST_F(ClosingTest, AProgramWhoseWorkCannotBeWrittenIsNotLeft) {
    NoQuit ends;
    desktop::Desktop program(m_workspace, desktop::Autosave(path("kept")));
    const QPointer<TeamWindow> made = open("a.kvteam");
    ASSERT_TRUE(saved(*made));
    made->close();
    QTRY_VERIFY(!made);
    program.open(path("a.kvteam"));
    ASSERT_THAT(program.windows(), SizeIs(1));
    TeamWindow& window = *program.windowsOf<TeamWindow>().front();
    edit(window, "Zora");
    int refusals = 0;
    m_workspace.setChoice([&](const Alert&, const QStringList& choices) {
        ++refusals;
        return static_cast<int>(choices.size()) - 1; // later
    });
    const FileSizeLimit full(8);
    QEvent event(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &event);
    QTRY_VERIFY(!window.isClosing());
    EXPECT_EQ(refusals, 1);
    EXPECT_THAT(program.windows(), SizeIs(1));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(ends.count, 0);
    window.file()->discard();
}

} // namespace
} // namespace kavela::test
