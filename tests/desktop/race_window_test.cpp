#include "desktop/race/race_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/race/frozen_table.h"
#include "desktop/shell/settings_window.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Desktop;
using desktop::RaceWindow;
using desktop::SplitTableModel;
using desktop::Workspace;

const fs::path Examples = KAVELA_EXAMPLES;
constexpr int FirstTime = SplitTableModel::LeadingColumns;

/// The desktop program with preferences, files and alerts of its own.
class RaceWindowTest : public ::testing::Test {
protected:
    RaceWindowTest() { m_workspace.setAlerts(&m_recorder); }

    RaceWindow* open(const fs::path& file) {
        m_desktop.open(QString::fromStdString(file.string()));
        return m_desktop.raceWindows().isEmpty() ? nullptr : m_desktop.raceWindows().back();
    }

    fs::path copyOf(const fs::path& file) {
        return m_folder.add(file.filename().string(), contentOf(file));
    }

    /// Does what a shortcut does; the screen that nobody sees makes no window the active one.
    static void trigger(const RaceWindow& window, const QKeySequence& keys) {
        for (QAction* action : window.findChildren<QAction*>())
            if (action->shortcut() == keys)
                action->trigger();
    }

    static QVariant cell(const RaceWindow& window, int row, int column, int role) {
        return window.model().index(row, column).data(role);
    }

    static QStringList column(const RaceWindow& window, int number) {
        QStringList texts;
        for (int row = 0; row < window.model().rowCount(); ++row)
            texts.append(cell(window, row, number, Qt::DisplayRole).toString());
        return texts;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    Desktop m_desktop{m_workspace};
};

TEST_F(RaceWindowTest, KeepsTheFileOfAnOlderReleaseBesideTheNewOne) {
    const fs::path file = copyOf(Examples / "older" / "release_0.11.kvx");
    const std::string before = contentOf(file);
    RaceWindow* const window = open(file);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->model().rowCount(), 12);
    EXPECT_EQ(contentOf(m_folder.path() / "release_0.11_old.kvb"), before);
    EXPECT_NE(contentOf(file), before);
    EXPECT_THAT(window->document().upgradeNote().toStdString(),
                ::testing::HasSubstr("release_0.11_old.kvb"));
    EXPECT_EQ(m_workspace.recentFiles(), QStringList(QString::fromStdString(file.string())));
}

TEST_F(RaceWindowTest, RefusesWhatIsNoSplitFileWithTheAlertAndNoWindow) {
    EXPECT_FALSE(open(m_folder.add("broken.kvx", "{\"info\":")));
    EXPECT_FALSE(open(m_folder.path() / "missing.kvx"));
    EXPECT_THAT(m_recorder.alerts,
                ::testing::ElementsAre(IncompatibleFileText, IncompatibleFileText));
    EXPECT_TRUE(m_workspace.recentFiles().isEmpty());
}

TEST_F(RaceWindowTest, RecoloursAndRecountsWhenASettingChanges) {
    const RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    EXPECT_FALSE(cell(*window, 0, FirstTime, Qt::BackgroundRole).isValid());
    desktop::SettingsWindow settings(m_workspace);
    settings.findChild<QComboBox*>("colorMode")->setCurrentIndex(1);
    EXPECT_TRUE(cell(*window, 0, FirstTime, Qt::BackgroundRole).isValid());
    const QString plain = cell(*window, 0, FirstTime, Qt::DisplayRole).toString();
    settings.findChild<QCheckBox*>("penaltiesVisible")->setChecked(true);
    EXPECT_EQ(cell(*window, 0, FirstTime, Qt::DisplayRole).toString(), plain + " (0)");
}

TEST_F(RaceWindowTest, SortsByTimeWithUntimedRunsLastInEitherDirection) {
    const RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    const int lastSection = FirstTime + 9;
    for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        window->table().sortByColumn(lastSection, order);
        const QStringList times = column(*window, lastSection);
        EXPECT_EQ(times.back(), "0.00");
        EXPECT_EQ(times.front().toDouble() < times[40].toDouble(), order == Qt::AscendingOrder);
    }
}

TEST_F(RaceWindowTest, KeepsTheSelectionOnItsRunWhenTheRowsMove) {
    const RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    window->table().selectRow(3);
    const std::size_t run = window->model().runOfRow(3);
    window->table().sortByColumn(FirstTime + 4, Qt::DescendingOrder);
    const QModelIndexList selected = window->table().selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(window->model().runOfRow(selected[0].row()), run);
}

TEST_F(RaceWindowTest, ComparesTheFilteredRunsAmongThemselves) {
    m_workspace.setPreference("colorMode", std::string("Training"));
    RaceWindow* const window = open(Examples / "races" / "spring_opener.kvx");
    ASSERT_TRUE(window);
    auto* const category = window->findChild<QComboBox*>("category");
    category->setCurrentIndex(category->findData("C1W"));
    ASSERT_GT(window->model().rowCount(), 3);
    EXPECT_EQ(column(*window, SplitTableModel::CategoryColumn).removeDuplicates(),
              window->model().rowCount() - 1);
    int fastest = 0;
    for (const TableRow& row : window->document().table().rows)
        fastest += row.cells[0].band == Band::Fastest ? 1 : 0;
    EXPECT_GE(fastest, 1);
    trigger(*window, Qt::Key_Escape);
    EXPECT_EQ(category->currentIndex(), 0);
}

TEST_F(RaceWindowTest, CopiesTheSelectedRunsForASpreadsheet) {
    RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    window->table().selectRow(1);
    trigger(*window, QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith("Name\tPhase\tCat\tPlace\tStart\t"));
    EXPECT_TRUE(lines[1].startsWith("Joren Valkenhof\tHeats\tK1M\t2\t5.70\t"));
}

TEST_F(RaceWindowTest, OpensEverySplitFileOfAFolderByItsContent) {
    (void)copyOf(Examples / "races" / "harbour_night.kvx");
    (void)copyOf(Examples / "races" / "highland_open.kvx");
    fs::rename(m_folder.path() / "highland_open.kvx", m_folder.path() / "renamed.txt");
    m_desktop.open(QString::fromStdString(m_folder.path().string()));
    EXPECT_EQ(m_desktop.raceWindows().size(), 1);
    EXPECT_TRUE(open(m_folder.path() / "renamed.txt"));
    EXPECT_EQ(m_desktop.raceWindows().size(), 2);
    m_desktop.open(QString::fromStdString((Examples / "recordings" / "old_phone_v4.kvb").string()));
    EXPECT_EQ(m_desktop.raceWindows().size(), 2);
    EXPECT_THAT(m_recorder.alerts, ::testing::SizeIs(1));
}

} // namespace
} // namespace kavela::test
