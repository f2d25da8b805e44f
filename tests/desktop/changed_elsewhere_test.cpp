#include "desktop/selection/selection_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/saving.h"
#include "desktop/shell/file_stamp.h"
#include "desktop/shell/workspace.h"
#include "results/selection_file.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QToolBar>

#include <filesystem>

/// A file that another program writes while a window edits it.
namespace kavela::test {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

class ChangedElsewhereTest : public ::testing::Test {
protected:
    ChangedElsewhereTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.startNew(path(), 2026);
        m_window.addRace("Riverside");
        EXPECT_TRUE(savedAs(m_window.document(), path()));
        m_window.show();
    }

    [[nodiscard]] QString path() const { return QString::fromStdString(file().string()); }
    [[nodiscard]] std::filesystem::path file() const { return m_folder.path() / "trials.kvsr"; }
    [[nodiscard]] bool isTold() const { return m_note->isVisible(); }
    void openAgain() { m_note->actions().at(1)->trigger(); }

    /// As another program would: the file is replaced as a whole, here within the tick of the
    /// disk's clock in which it was written before.
    void writeElsewhere(const char* race) {
        selectionracesStruct_v3 document = m_window.document().value();
        document.races.at(0).location = race;
        const auto before = std::filesystem::last_write_time(file());
        writeFileSafely(file(), encode(document));
        std::filesystem::last_write_time(file(), before);
    }
    [[nodiscard]] std::string race() { return m_window.document().value().races.at(0).location; }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    bool m_answer = false;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{7e8}; }};
    desktop::SelectionWindow m_window{m_workspace, desktop::Autosave(QString::fromStdString(
                                                       (m_folder.path() / "kept").string()))};
    QToolBar* m_note = m_window.findChild<QToolBar*>("fileNote");
};

TEST(FileStamp, TellsAnyOtherStateOfAFileWithinATickOfTheClock) {
    const TempFolder folder;
    const auto file = folder.add("race.kvx", "one");
    const QString path = QString::fromStdString(file.string());
    const desktop::FileStamp read(path);
    EXPECT_TRUE(read.isThere());
    EXPECT_EQ(desktop::FileStamp(path), read);
    const auto time = std::filesystem::last_write_time(file);
    writeFileSafely(file, "other");
    std::filesystem::last_write_time(file, time);
    const desktop::FileStamp replaced(path);
    EXPECT_NE(replaced, read);
    std::filesystem::resize_file(file, 2);
    std::filesystem::last_write_time(file, time);
    EXPECT_NE(desktop::FileStamp(path), replaced);
    std::filesystem::remove(file);
    EXPECT_EQ(desktop::FileStamp(path), desktop::FileStamp());
}

TEST_F(ChangedElsewhereTest, IsToldAtOnceAndOpenedAgain) {
    EXPECT_FALSE(isTold());
    for (const char* there : {"Harbour", "Lake"}) { // also the file that took its place is watched
        writeElsewhere(there);
        ASSERT_TRUE(QTest::qWaitFor([this] { return isTold(); }));
        const auto* const words = m_note->findChild<QLabel*>();
        EXPECT_THAT(words->text().toStdString(), HasSubstr("trials.kvsr"));
        EXPECT_GT(words->width(), m_note->width() / 3) << "in sight, not only told";
        EXPECT_EQ(race(), there == std::string("Lake") ? "Harbour" : "Riverside");
        openAgain();
        EXPECT_EQ(race(), there);
        EXPECT_FALSE(isTold());
    }
    EXPECT_THAT(m_questions, SizeIs(0));
}

TEST_F(ChangedElsewhereTest, UnsavedWorkGivesWayOnlyWhenAgreed) {
    m_window.addRace("Mine");
    writeElsewhere("Harbour");
    ASSERT_TRUE(QTest::qWaitFor([this] { return isTold(); }));
    openAgain();
    EXPECT_THAT(m_questions, SizeIs(1));
    EXPECT_EQ(race(), "Riverside");
    EXPECT_TRUE(m_window.document().isDirty());
    m_answer = true;
    openAgain();
    EXPECT_EQ(race(), "Harbour");
    EXPECT_FALSE(isTold());
}

TEST_F(ChangedElsewhereTest, OwnSavesAreNotTold) {
    m_window.addRace("Second");
    ASSERT_TRUE(saved(m_window));
    writeElsewhere(
        "Harbour"); // so that the watch has something to tell, which comes behind the save
    ASSERT_TRUE(QTest::qWaitFor([this] { return isTold(); }));
    m_answer = true;
    m_window.addRace("Third");
    ASSERT_TRUE(saved(m_window));
    EXPECT_FALSE(isTold());
    QApplication::processEvents();
    EXPECT_FALSE(isTold());
}

} // namespace
} // namespace kavela::test
