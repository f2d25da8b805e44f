#include "desktop/preview/report_preview.h"
#include "desktop/race/run_chooser.h"
#include "desktop/race_fixture.h"
#include "desktop/shell/settings_window.h"
#include "splitdata/loader.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

namespace kavela::test {
namespace {

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
    EXPECT_THAT(
        m_recorder.alerts,
        ::testing::ElementsAre(::testing::StartsWith(std::string(IncompatibleFileText) +
                                                     "\nbroken.kvx: not JSON, byte 9"),
                               ::testing::StartsWith(std::string(IncompatibleFileText) +
                                                     "\nmissing.kvx: there is no such file")));
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
    const auto run = window->model().runOfRow(3);
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
    EXPECT_EQ(m_desktop.windowsOf<desktop::RaceWindow>().size(), 1);
    EXPECT_TRUE(open(m_folder.path() / "renamed.txt"));
    EXPECT_EQ(m_desktop.windowsOf<desktop::RaceWindow>().size(), 2);
    int asked = 0;
    m_workspace.setAnswer([&](const Alert&) {
        ++asked;
        return false; // no conversion
    });
    m_desktop.open(QString::fromStdString((Examples / "recordings" / "old_phone_v4.kvb").string()));
    EXPECT_EQ(m_desktop.windowsOf<desktop::RaceWindow>().size(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
}

TEST_F(RaceWindowTest, HoldsRunsAgainstTheIdealRunAndARunOfAnotherRace) {
    RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    const std::vector<std::size_t> order = window->model().order();
    trigger(*window, Qt::Key_O);
    EXPECT_EQ(cell(*window, 0, 0, Qt::DisplayRole).toString(), "Ideal run");
    EXPECT_EQ(window->model().order(), order) << "the ideal run takes no part";

    const fs::path other = copyOf(Examples / "older" / "release_0.11.kvx");
    const std::string before = contentOf(other);
    desktop::RunChooser chooser(m_workspace, window->document().path(), nullptr);
    ASSERT_TRUE(chooser.showRace(QString::fromStdString(other.string())));
    EXPECT_EQ(contentOf(other), before) << "a race that is only looked into is not rewritten";
    window->view().document().addComparison(chooser.run(), chooser.race());
    window->table().selectRow(1);
    trigger(*window, Qt::SHIFT | Qt::Key_R);
    trigger(*window, Qt::CTRL | Qt::Key_2);
    EXPECT_EQ(cell(*window, 1, FirstTime, Qt::DisplayRole).toString(), "0.00");
    const double theirs = chooser.run().sectioninfo.times[0];
    const double first = window->document().table().rows[0].cells[0].value;
    const QString gap = cell(*window, 2, FirstTime, Qt::DisplayRole).toString();
    EXPECT_NEAR(gap.toDouble(), first - theirs, 0.00501);
    window->table().sortByColumn(FirstTime, Qt::DescendingOrder);
    EXPECT_EQ(cell(*window, 0, 0, Qt::DisplayRole).toString(), "Ideal run");
}

TEST_F(RaceWindowTest, LeadsFromHomeToAPdfByKeysAlone) {
    m_workspace.addRecentFile(
        QString::fromStdString((Examples / "races" / "harbour_night.kvx").string()));
    m_desktop.showHome();
    const auto press = [](const QKeySequence& keys) {
        QApplication::processEvents();
        QWidget* const window = QApplication::activeWindow();
        ASSERT_TRUE(window);
        QWidget* const focus = window->focusWidget() ? window->focusWidget() : window;
        QTest::keyClick(focus, keys[0].key(), keys[0].keyboardModifiers());
        QApplication::processEvents();
    };
    for (int tabs = 0; tabs < 20; ++tabs)
        if (qobject_cast<QListWidget*>(QApplication::focusWidget()) == nullptr)
            press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_EQ(m_desktop.windowsOf<desktop::RaceWindow>().size(), 1);
    const RaceWindow* const window = m_desktop.windowsOf<desktop::RaceWindow>().front();
    press(Qt::Key_T);
    press(Qt::CTRL | Qt::Key_P);
    auto* const preview = window->findChild<desktop::ReportPreview*>();
    ASSERT_TRUE(preview);
    const fs::path pdf = m_folder.path() / "table.pdf";
    preview->setChooseFile(
        [&](QWidget*, const QString&) { return QString::fromStdString(pdf.string()); });
    press(Qt::CTRL | Qt::Key_S);
    ASSERT_TRUE(fs::exists(pdf));
    EXPECT_EQ(contentOf(pdf).substr(0, 5), "%PDF-");
    EXPECT_THAT(m_recorder.alerts, ::testing::IsEmpty());
}

TEST_F(RaceWindowTest, RemembersHiddenAndMovedColumnsFromRaceToRace) {
    {
        RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
        ASSERT_TRUE(window);
        QMenu menu;
        window->view().fillColumnMenu(menu);
        for (QAction* action : menu.actions())
            if (action->text() == "Phase" || action->text() == "Sprint")
                action->setChecked(false);
        QHeaderView* const header = window->table().horizontalHeader();
        header->moveSection(header->count() - 3, SplitTableModel::LeadingColumns); // the total
        window->close();
    }
    RaceWindow* const window = open(Examples / "races" / "spring_opener.kvx");
    ASSERT_TRUE(window);
    trigger(*window, QKeySequence::Copy);
    const QString header = QApplication::clipboard()->text().section('\n', 0, 0);
    EXPECT_TRUE(header.startsWith("Name\tCat\tPlace\tTotal\t")) << header.toStdString();
    EXPECT_TRUE(header.endsWith("\tReal")) << header.toStdString();
    EXPECT_FALSE(header.contains("Sprint"));
}

TEST_F(RaceWindowTest, KeepsColumnsInViewInFrontOfTheTimes) {
    RaceWindow* const window = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    QHeaderView* const header = window->table().horizontalHeader();
    header->moveSection(FirstTime + 2, 0);
    EXPECT_EQ(header->logicalIndex(0), SplitTableModel::NameColumn);
    header->moveSection(0, header->count() - 1);
    EXPECT_EQ(header->logicalIndex(0), SplitTableModel::NameColumn);
}

TEST_F(RaceWindowTest, ShowsRacesOpenedTogetherAsTabsOrSideBySide) {
    m_desktop.openAll(
        {QString::fromStdString((Examples / "races" / "riverside_cup.kvx").string()),
         QString::fromStdString((Examples / "races" / "spring_opener.kvx").string())});
    ASSERT_EQ(m_desktop.windowsOf<desktop::RaceWindow>().size(), 1);
    RaceWindow* const window = m_desktop.windowsOf<desktop::RaceWindow>().front();
    ASSERT_EQ(window->views().size(), 2U);
    EXPECT_FALSE(window->views()[0]->isVisible());
    trigger(*window, Qt::Key_F8);
    EXPECT_TRUE(window->views()[0]->isVisible() && window->views()[1]->isVisible());
    const QString second = window->document().path();
    trigger(*window, QKeySequence::Close);
    ASSERT_EQ(window->views().size(), 1U);
    EXPECT_NE(window->document().path(), second);
}

TEST_F(RaceWindowTest, ComesBackWithTheRacesThatWereOpen) {
    const fs::path gone = copyOf(Examples / "races" / "harbour_night.kvx");
    const QString kept =
        QString::fromStdString((Examples / "races" / "riverside_cup.kvx").string());
    m_desktop.openAll({kept, QString::fromStdString(gone.string())});
    fs::remove(gone);
    Desktop next(m_workspace);
    EXPECT_TRUE(next.restoreSession());
    ASSERT_EQ(next.windowsOf<desktop::RaceWindow>().size(), 1);
    EXPECT_EQ(next.windowsOf<desktop::RaceWindow>()[0]->paths(), QStringList(kept));
    EXPECT_THAT(m_recorder.alerts, ::testing::IsEmpty());
}

TEST_F(RaceWindowTest, OffersToOpenAgainWhatAnotherProgramChanged) {
    const fs::path file = copyOf(Examples / "races" / "riverside_cup.kvx");
    RaceWindow* const window = open(file);
    ASSERT_TRUE(window);
    trigger(*window, Qt::Key_A);
    auto* const reload = window->findChild<QPushButton*>("reload");
    EXPECT_FALSE(reload->isVisible());
    QSignalSpy changed(&window->view().document(), &desktop::RaceDocument::changedOnDisk);
    const std::string content = contentOf(Examples / "races" / "spring_opener.kvx");
    writeFileSafely(file, content);
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(5));
    ASSERT_TRUE(changed.count() > 0 || changed.wait());
    EXPECT_TRUE(reload->isVisible());
    reload->click();
    EXPECT_EQ(window->document().title(), "Spring Opener");
    EXPECT_TRUE(window->document().isAccumulated());
    EXPECT_FALSE(reload->isVisible());
}

} // namespace
} // namespace kavela::test
