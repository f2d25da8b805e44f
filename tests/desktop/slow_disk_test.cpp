#include "desktop/slow_disk.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/desktop.h"
#include "desktop/planning/planning_window.h"
#include "desktop/shell/background_work.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/team/team_window.h"
#include "desktop/watertests/tests_window.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Windows over a disk that does not answer at once, such as a sleeping one or a stick.

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::TeamWindow;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SlowDiskTest : public ::testing::Test {
protected:
    SlowDiskTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }
    ~SlowDiskTest() override { desktop::disk::waitForAll(); }

    [[nodiscard]] fs::path file(const char* name) const { return m_folder.path() / name; }
    [[nodiscard]] QString path(const char* name) const {
        return QString::fromStdString(file(name).string());
    }
    [[nodiscard]] desktop::Autosave autosave() const { return desktop::Autosave(path("kept")); }

    static void add(TeamWindow& window, const char* name) {
        window.document().edit("athlete", [&](myTeamToSaveStruct& team) {
            team.realMyTeam.emplace_back().name = name;
        });
    }

    /// Work of a program that ended without a word.
    void leaveWork(const char* name) {
        TeamWindow window(m_workspace, autosave());
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.startNew(path("a.kvteam"));
        add(window, name);
        window.file()->keepWork();
        desktop::disk::waitForAll();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(SlowDiskTest, AnswersAtOnceWhereTheDiskDoesAndOnceInAnyCase) {
    QObject context;
    std::vector<std::string> told;
    const auto ask = [&](const char* what) {
        desktop::disk::runAwaited(
            context, [] { throw std::runtime_error("full"); },
            [&told, what](const std::exception_ptr& fault) {
                told.push_back(what + (": " + desktop::messageOf(fault)));
            });
    };
    ask("well");
    EXPECT_THAT(told, ElementsAre("well: full"));
    {
        const SlowDisk slow;
        ask("slow");
        EXPECT_THAT(told, SizeIs(1)) << "the interface goes on";
    }
    QTRY_COMPARE(told.size(), 2UL);
    desktop::disk::waitForAll();
    QApplication::processEvents();
    EXPECT_THAT(told, ElementsAre("well: full", "slow: full"));
}

TEST_F(SlowDiskTest, AWindowTakesNoKeyBeforeUnsavedWorkIsAnsweredFor) {
    leaveWork("Nova");
    TeamWindow window(m_workspace, autosave());
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    {
        const SlowDisk slow;
        window.startNew(path("a.kvteam"));
        window.show();
        EXPECT_FALSE(window.isEnabled());
        EXPECT_THAT(m_questions, IsEmpty());
    }
    QTRY_VERIFY(window.isEnabled());
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    ASSERT_THAT(window.document().athletes(), SizeIs(1));
    EXPECT_EQ(window.document().athletes().front().name, "Nova");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_TRUE(autosave().find(path("a.kvteam"))) << "until it is saved";
    window.file()->discard();
}

/// Nobody has typed, but a program that takes something in does not wait.
TEST_F(SlowDiskTest, WorkThatNobodyAnsweredForMakesRoomAndStays) {
    leaveWork("Nova");
    TeamWindow window(m_workspace, autosave());
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    {
        const SlowDisk slow;
        window.startNew(path("a.kvteam"));
        add(window, "Zora");
        window.file()->keepWork();
    }
    QTRY_VERIFY(window.isEnabled());
    EXPECT_THAT(m_questions, IsEmpty());
    EXPECT_EQ(window.document().athletes().front().name, "Zora");
    ASSERT_THAT(autosave().earlier(), SizeIs(1));
    EXPECT_NE(autosave().earlier().front().content.find("Nova"), std::string::npos);
    const auto kept = autosave().find(path("a.kvteam"));
    ASSERT_TRUE(kept);
    EXPECT_NE(kept->content.find("Zora"), std::string::npos);
    window.file()->discard();
}

TEST_F(SlowDiskTest, AProgramStartsBeforeItIsKnownWhatWasLeft) {
    leaveWork("Nova");
    desktop::Desktop program(m_workspace, autosave());
    {
        const SlowDisk slow;
        program.offerRecovery();
        EXPECT_THAT(program.windows(), IsEmpty());
    }
    QTRY_COMPARE(program.windowsOf<TeamWindow>().size(), 1);
    QTRY_COMPARE(m_questions.size(), 1UL);
    EXPECT_EQ(program.windowsOf<TeamWindow>().front()->document().athletes().front().name, "Nova");
    program.windowsOf<TeamWindow>().front()->file()->discard();
}

TEST_F(SlowDiskTest, TheFileOfAnOlderLayoutIsKeptByWhoWritesTheNewOne) {
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "older" / "planning_v1.planning",
                  file("season.planning"));
    const std::string before = readTextFile(file("season.planning"));
    desktop::PlanningWindow window(m_workspace, autosave());
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(window.open(path("season.planning")));
    window.addSeason();
    {
        const SlowDisk slow;
        window.saveBeside();
        EXPECT_FALSE(fs::exists(file("season_old.planning"))) << "the window waits for no disk";
        EXPECT_TRUE(window.file()->isSaving());
    }
    QTRY_VERIFY(!window.file()->isSaving());
    EXPECT_EQ(readTextFile(file("season_old.planning")), before);
    EXPECT_NE(readTextFile(file("season.planning")), before);
    EXPECT_FALSE(window.file()->isDirty());
}

TEST_F(SlowDiskTest, AnOlderSplitFileIsOpenBeforeItsCopyIsWritten) {
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "older" / "release_0.28.kvx", file("race.kvx"));
    const std::string before = readTextFile(file("race.kvx"));
    desktop::TakingDocument document(m_workspace, autosave());
    document.setChooseCopy([this](const QString&) { return path("copy.kvx"); });
    {
        const SlowDisk slow;
        ASSERT_TRUE(document.reading(path("race.kvx"), nullptr)()());
        EXPECT_EQ(document.path(), path("copy.kvx"));
        EXPECT_GT(document.runCount(), 0);
        EXPECT_TRUE(document.isDirty()) << "it is in no file yet";
        EXPECT_FALSE(fs::exists(file("copy.kvx")));
    }
    QTRY_VERIFY(!document.isDirty());
    EXPECT_EQ(readTextFile(file("race.kvx")), before);
    const RecognisedSplitFile copy =
        recogniseSplitFile(file("copy.kvx"), m_recorder.log(), m_workspace.clock());
    EXPECT_TRUE(copy.isCurrent());
    EXPECT_THAT(copy.document.athletes, SizeIs(static_cast<std::size_t>(document.runCount())));
}

TEST_F(SlowDiskTest, AnOlderSplitFileIsKeptWhereItsCopyTakesItsName) {
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "older" / "release_0.28.kvx", file("race.kvx"));
    const std::string before = readTextFile(file("race.kvx"));
    desktop::TakingDocument document(m_workspace, autosave());
    document.setChooseCopy([this](const QString&) { return path("race.kvx"); });
    ASSERT_TRUE(document.reading(path("race.kvx"), nullptr)()());
    QTRY_VERIFY(!document.isDirty());
    EXPECT_EQ(readTextFile(file("race_old.kvb")), before);
    EXPECT_NE(readTextFile(file("race.kvx")), before);
}

/// The day is on its way to the disk when its file is opened again.
TEST_F(SlowDiskTest, ARaceDayIsReadAsItWasEditedLast) {
    const auto open = [this] {
        auto document = std::make_unique<desktop::TakingDocument>(m_workspace, autosave());
        EXPECT_TRUE(document->reading(path("day"), nullptr)()());
        return document;
    };
    fs::create_directory(file("day"));
    auto document = open();
    const SlowDisk slow;
    document->edit("start", [](desktop::TakingState& race) {
        auto day = std::make_shared<RaceDay>(*race.day);
        day->starts.emplace_back().name = "Nova";
        race.day = std::move(day);
    });
    document = open();
    ASSERT_THAT(document->day().starts, SizeIs(1));
    EXPECT_EQ(document->day().starts.front().name, "Nova");
}

TEST_F(SlowDiskTest, AListIsExportedBesideTheWindow) {
    desktop::TestsWindow window(m_workspace, autosave());
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.startNew(path("tests.kvtest"));
    {
        const SlowDisk slow;
        window.exportTable(path("table.csv"));
        EXPECT_FALSE(fs::exists(file("table.csv")));
    }
    QTRY_VERIFY(fs::exists(file("table.csv")));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// Asked for twice, as by a second start of the program, a file has one window.
TEST_F(SlowDiskTest, AFileThatIsAskedForTwiceHasOneWindow) {
    leaveWork("Nova");
    (void)m_folder.add("a.kvteam", "");
    desktop::Desktop program(m_workspace, autosave());
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "team" / "kavela_team.kvteam", file("a.kvteam"),
                  fs::copy_options::overwrite_existing);
    {
        const SlowDisk slow;
        program.open(path("a.kvteam"));
        program.comeForward({path("a.kvteam")});
        program.open(path("a.kvteam"));
        QTRY_VERIFY(!program.isOpening());
        EXPECT_THAT(program.windows(), SizeIs(1));
    }
    QTRY_COMPARE(m_questions.size(), 1UL);
    EXPECT_THAT(program.windows(), SizeIs(1));
    program.windows().front()->file()->discard();
}

} // namespace
} // namespace kavela::test
