#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/race/race_window.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

/// A split file that several tools show: one window edits it at a time.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::CrossWindow;
using desktop::TakingWindow;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

athletedata031 run(const char* name, const char* film) {
    athletedata031 made;
    made.names = {name};
    made.videoname = {film};
    return made;
}

/// Alerts, with something that happens before the coach has read one.
struct ActingRecorder : Recorder {
    std::function<void()> act = [] {};
    void show(const Alert& alert) override {
        Recorder::show(alert);
        act();
    }
};

class SharedFileTest : public ::testing::Test {
protected:
    SharedFileTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
        fs::create_directory(m_folder.path() / "day1");
    }

    fs::path file() const { return m_folder.path() / "day1" / "day1.kvx"; }
    static QString text(const fs::path& path) { return QString::fromStdString(path.string()); }

    void save() {
        splittakerdata031 race;
        race.info.totalsplits = 1;
        race.athletes = {run("Ada", "a.mov"), run("Bea", "heat.mov"), run("Cleo", "heat.mov"),
                         run("Dora", "d.mov")};
        race.crossracedata.crossinfo = {"Heats", "K1W", {1, 2}, 0};
        ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
    }

    static void type(QWidget& window, const char* field, const char* typed) {
        window.activateWindow();
        auto* const edit = window.findChild<QLineEdit*>(field);
        ASSERT_TRUE(edit);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, typed);
    }

    TempFolder m_folder;
    ActingRecorder m_recorder;
    std::vector<std::string> m_questions;
    bool m_answer = true;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    desktop::Desktop m_program{m_workspace, desktop::Autosave(text(m_folder.path() / "kept"))};
};

TEST_F(SharedFileTest, KnowsAFileThatIsOpenByAnyOfItsPaths) {
    ASSERT_NO_FATAL_FAILURE(save());
    const fs::path folder = file().parent_path();
    const fs::path link = m_folder.path() / "link";
    fs::create_directory_symlink(folder, link);
    TakingWindow* const window = m_program.openTaking(text(file()));
    ASSERT_TRUE(window);
    for (const fs::path& path :
         {folder, folder / "", folder / ".." / "day1" / "day1.kvx", link, link / "day1.kvx"})
        EXPECT_EQ(m_program.openTaking(text(path)), window) << path;
    EXPECT_TRUE(m_program.openCross(text(folder)));
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), IsEmpty());
    EXPECT_THAT(m_program.windowsOf<CrossWindow>(), SizeIs(1));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(SharedFileTest, KnowsAFolderThatHasNoFileYet) {
    (void)m_folder.add("day1/Ada Berg.mov", "x");
    const QString folder = text(file().parent_path());
    TakingWindow* const window = m_program.openTaking(folder);
    ASSERT_TRUE(window);
    EXPECT_EQ(m_program.openTaking(folder + '/'), window);
    emit window->crossRequested(window->document().path()); // never saved, nothing to save
    ASSERT_THAT(m_program.windowsOf<CrossWindow>(), SizeIs(1));
    EXPECT_THAT(m_program.windowsOf<CrossWindow>().front()->document().cross().timetrials,
                SizeIs(1));
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    m_program.windowsOf<CrossWindow>().front()->document().undoStack().setClean();
}

TEST_F(SharedFileTest, AsksForWhatIsStillBeingTypedBeforeTheOtherToolOpens) {
    ASSERT_NO_FATAL_FAILURE(save());
    CrossWindow* cross = m_program.openCross(text(file()));
    ASSERT_TRUE(cross);
    ASSERT_NO_FATAL_FAILURE(type(*cross, "courseCategory", "C1M"));
    EXPECT_FALSE(m_program.openTaking(text(file()))) << "the cross is saved first";
    QTRY_VERIFY(!m_program.windowsOf<TakingWindow>().isEmpty());
    TakingWindow* const taking = m_program.windowsOf<TakingWindow>().front();
    EXPECT_THAT(m_questions, SizeIs(1));
    EXPECT_EQ(taking->document().cross().crossinfo.cat, "C1M");
    EXPECT_THAT(m_program.windowsOf<CrossWindow>(), IsEmpty());
    m_answer = false;
    taking->document().editInfo("title", [](infodata031& info) { info.title = "Given up"; });
    cross = m_program.openCross(text(file()));
    ASSERT_TRUE(cross);
    EXPECT_EQ(cross->document().info().title, "");
    EXPECT_FALSE(cross->document().isDirty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(SharedFileTest, GoesToTheMomentThatWasAskedForOnceTheCrossIsSaved) {
    ASSERT_NO_FATAL_FAILURE(save());
    m_program.open(text(file()));
    ASSERT_THAT(m_program.windowsOf<desktop::RaceWindow>(), SizeIs(1));
    CrossWindow* const cross = m_program.openCross(text(file()));
    ASSERT_TRUE(cross);
    ASSERT_NO_FATAL_FAILURE(type(*cross, "courseCategory", "C1M"));
    for (const int run : {1, 3}) // asked for once more while it is still being written
        emit m_program.windowsOf<desktop::RaceWindow>().front()->momentRequested(text(file()), run,
                                                                                 1);
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), IsEmpty());
    QTRY_VERIFY(!m_program.windowsOf<TakingWindow>().isEmpty());
    TakingWindow* const taking = m_program.windowsOf<TakingWindow>().front();
    QTRY_COMPARE(taking->currentRun(), 3);
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), SizeIs(1));
    EXPECT_EQ(taking->document().cross().crossinfo.cat, "C1M");
}

TEST_F(SharedFileTest, LeavesTheFileToAWindowThatStaysOpen) {
    ASSERT_NO_FATAL_FAILURE(save());
    CrossWindow* const cross = m_program.openCross(text(file()));
    ASSERT_TRUE(cross);
    ASSERT_NO_FATAL_FAILURE(type(*cross, "courseGates", "x"));
    m_answer = false;
    EXPECT_FALSE(m_program.openTaking(text(file())));
    EXPECT_THAT(m_program.windowsOf<CrossWindow>(), SizeIs(1));
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), IsEmpty());
    EXPECT_TRUE(cross->isVisible());
}

TEST_F(SharedFileTest, OpensTheOldToolAgainWhereTheNewOneCannotBeOpened) {
    ASSERT_NO_FATAL_FAILURE(save());
    const std::string content = contentOf(file());
    ASSERT_TRUE(m_program.openTaking(text(file())));
    writeFileSafely(file(), "no split file");
    m_recorder.act = [&] { writeFileSafely(file(), content); };
    EXPECT_FALSE(m_program.openCross(text(file())));
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), SizeIs(1));
    EXPECT_THAT(m_program.windowsOf<CrossWindow>(), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
}

TEST_F(SharedFileTest, GoesOnWhileItsOnlyWindowGivesWayToAnother) {
    ASSERT_NO_FATAL_FAILURE(save());
    const std::string content = contentOf(file());
    m_recorder.act = [&] {
        QApplication::processEvents(); // as an alert does until it is read
        writeFileSafely(file(), content);
    };
    constexpr int OnPurpose = 42;
    constexpr int Later = 100; // milliseconds; the program would have ended by then
    QTimer::singleShot(0, [&] {
        TakingWindow* const taking = m_program.openTaking(text(file()));
        writeFileSafely(file(), "no split file");
        emit taking->crossRequested(taking->document().path());
        QTimer::singleShot(Later, [] { QApplication::exit(OnPurpose); });
    });
    EXPECT_EQ(QApplication::exec(), OnPurpose);
    EXPECT_THAT(m_program.windowsOf<TakingWindow>(), SizeIs(1));
}

TEST_F(SharedFileTest, FindsTheRunOfATimeWhereSplitTakingHasItNow) {
    ASSERT_NO_FATAL_FAILURE(save());
    m_program.open(text(file()));
    ASSERT_THAT(m_program.windowsOf<desktop::RaceWindow>(), SizeIs(1));
    TakingWindow* const taking = m_program.openTaking(text(file()));
    ASSERT_TRUE(taking);
    desktop::TakingDocument& document = taking->document();
    const auto show = [&](int run) {
        taking->selectRun(0);
        emit m_program.windowsOf<desktop::RaceWindow>().front()->momentRequested(text(file()), run,
                                                                                 1);
        return document.run(taking->currentRun()).names.front();
    };
    EXPECT_EQ(show(3), "Dora");
    document.moveRun(3, 0);
    document.removeRun(2); // Bea
    EXPECT_EQ(show(2), "Cleo");
    EXPECT_EQ(show(3), "Dora");
    document.editRun(1, "name", [](athletedata031& ada) { ada.names = {"Ada Berg"}; });
    EXPECT_EQ(show(0), "Ada Berg") << "by a film of her own";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    EXPECT_EQ(show(1), "Dora") << "the run in front stays";
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("The run of Bea is not in split taking any more"));
}

} // namespace
} // namespace kavela::test
