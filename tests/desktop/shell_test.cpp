#include "desktop/shell/command_palette.h"

#include "common/temp_folder.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/focus_edge.h"
#include "desktop/shell/key_bindings.h"
#include "desktop/shell/scheme.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QTest>

#include <array>
#include <optional>

namespace kavela::test {
namespace {

using desktop::Command;
using desktop::Commands;

std::vector<std::string> titles(const std::vector<const Command*>& commands) {
    std::vector<std::string> found;
    for (const Command* command : commands)
        found.push_back(command->title.toStdString());
    return found;
}

TEST(CommandPalette, FindsByAnyWordsWithoutCaseAndAccentsTheBestFirst) {
    const Commands commands{{"Save the table", "File", "", {}},
                            {"Émile Lebrun", "K1M · Final", "", {}},
                            {"Table as shown", "File", "", {}},
                            {"Unstable water", "Tags", "", {}}};
    EXPECT_THAT(titles(matching(commands, "table")),
                testing::ElementsAre("Table as shown", "Save the table", "Unstable water"));
    EXPECT_THAT(titles(matching(commands, "EMILE")), testing::ElementsAre("Émile Lebrun"));
    EXPECT_THAT(titles(matching(commands, "final lebrun")), testing::ElementsAre("Émile Lebrun"));
    EXPECT_THAT(matching(commands, "  "), testing::SizeIs(4));
    EXPECT_THAT(matching(commands, "nobody"), testing::IsEmpty());
}

TEST(CommandPalette, OffersWhatTheMenusCanDoNow) {
    QMainWindow window;
    QMenu* const menu = window.menuBar()->addMenu("&File");
    int opened = 0;
    menu->addAction("&Open…", QKeySequence("Ctrl+O"), [&] { ++opened; });
    menu->addSeparator();
    menu->addAction("Save")->setEnabled(false);
    menu->addMenu("&More")->addAction("&Print…");
    const Commands commands = desktop::menuCommands(window);
    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0].title, "Open");
    EXPECT_EQ(commands[0].group, "File");
    EXPECT_EQ(commands[0].keys, "Ctrl+O");
    EXPECT_EQ(commands[1].group, "More");
    commands[0].run();
    EXPECT_EQ(opened, 1);
}

TEST(CommandPalette, SaysWhenNothingIsCalledSoAndDoesNothingThen) {
    int done = 0;
    desktop::CommandPalette palette({{"Save", "File", "", [&] { ++done; }}}, nullptr);
    auto* const field = palette.findChild<QLineEdit*>();
    auto* const list = palette.findChild<QListWidget*>();
    QTest::keyClicks(field, "sqve");
    ASSERT_EQ(list->count(), 2);
    EXPECT_THAT(list->item(0)->text().toStdString(), testing::HasSubstr("sqve"));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return})
        QTest::keyClick(field, key);
    EXPECT_EQ(done, 0);
    field->setText("sa");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(done, 1);
}

TEST(FileNames, TellFilesOfOneNameApartByTheirFolders) {
    EXPECT_EQ(desktop::namesToldApart({"/races/june/cup.kvx", "/races/july/cup.kvx",
                                       "/races/july/open.kvx", "/old/july/cup.kvx"}),
              (QStringList{"cup (june)", "cup (races/july)", "open", "cup (old/july)"}));
}

class SchemeTest : public testing::Test {
protected:
    ~SchemeTest() override { QApplication::setPalette(QPalette()); }

    static bool isDark() { return desktop::theme::isDark(QApplication::palette()); }

    const TempFolder m_folder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   [](std::string_view) {}, systemNow};
};

TEST_F(SchemeTest, IsChosenInTheSettingsAtOnceAndKept) {
    desktop::SettingsWindow settings(m_workspace);
    auto* const choice = settings.findChild<QComboBox*>("scheme");
    ASSERT_TRUE(choice);
    choice->setFocus();
    for (const auto& [key, isDarkThen] :
         {std::pair(Qt::Key_End, true), std::pair(Qt::Key_Up, false)}) {
        QTest::keyClick(choice, key);
        EXPECT_EQ(isDark(), isDarkThen);
        QApplication::setPalette(QPalette());
        desktop::applyScheme(m_workspace); // as at the next start
        EXPECT_EQ(isDark(), isDarkThen);
    }
    ASSERT_EQ(desktop::chosenScheme(m_workspace), desktop::Scheme::Light);
    qputenv("KAVELA_SCHEME", "dark");
    desktop::applyScheme(m_workspace);
    EXPECT_TRUE(isDark()) << "the environment decides";
    qunsetenv("KAVELA_SCHEME");
    QTest::keyClick(choice, Qt::Key_Home);
    EXPECT_EQ(desktop::chosenScheme(m_workspace), desktop::Scheme::System);
}

TEST(EmptyPage, TakesTheFirstWayByEnter) {
    int taken = 0;
    QMainWindow window;
    window.setCentralWidget(new desktop::EmptyPage(
        "Drop it here", {}, {{"First", [&] { taken += 1; }}, {"Second", [&] { taken += 10; }}}));
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(window.focusWidget());
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(taken, 1);
}

TEST(FocusEdge, IsRoundTheListThatHasTheKeyboard) {
    const desktop::FocusEdge edge;
    QSplitter window;
    std::array<QListWidget*, 2> lists{};
    for (QListWidget*& list : lists)
        window.addWidget(list = new QListWidget);
    window.resize(400, 200);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto isMarked = [&](const QListWidget& list) {
        const QPoint onEdge = list.mapTo(&window, QPoint(0, list.height() / 2));
        return window.grab().toImage().pixelColor(onEdge) ==
               list.palette().color(QPalette::Highlight);
    };
    for (const std::size_t one : {0U, 1U, 0U}) {
        lists[one]->setFocus();
        QApplication::processEvents();
        EXPECT_TRUE(isMarked(*lists[one]));
        EXPECT_FALSE(isMarked(*lists[1 - one]));
    }
}

TEST(Keys, AreChangedRememberedAndNeverTakenTwice) {
    const TempFolder folder;
    desktop::Workspace workspace(
        Preferences(folder.path() / "preferences.ini"), [](std::string_view) {}, systemNow);
    const auto makeMenus = [](QMainWindow& window) {
        QMenu* const menu = window.menuBar()->addMenu("&Mark");
        menu->addAction("&Mark the split")
            ->setShortcuts({QKeySequence("M"), QKeySequence("Enter")});
        menu->addAction("Remove")->setShortcut(QKeySequence("Delete"));
    };
    {
        QMainWindow window;
        makeMenus(window);
        desktop::KeyEditor editor(applyKeyBindings(window, workspace, "test"), workspace, "test",
                                  &window);
        EXPECT_EQ(editor.setKey(1, QKeySequence("Enter")), "Mark/Mark the split");
        EXPECT_EQ(editor.setKey(0, QKeySequence("X")), "");
    }
    QMainWindow later;
    makeMenus(later);
    const auto bindings = desktop::applyKeyBindings(later, workspace, "test");
    EXPECT_EQ(bindings[0].action->shortcut(), QKeySequence("X"));
    EXPECT_EQ(bindings[1].action->shortcut(), QKeySequence("Delete"));
    desktop::KeyEditor editor(bindings, workspace, "test", &later);
    editor.restoreStandard();
    EXPECT_EQ(bindings[0].action->shortcuts().size(), 2);
    EXPECT_TRUE(workspace.remembered("keys/test").isEmpty());
}

/// The dialog as a coach drives it.
class KeyDialogTest : public testing::Test {
protected:
    KeyDialogTest() {
        QMenu* const menu = m_window.menuBar()->addMenu("&Mark");
        m_mark = menu->addAction("&Mark the split");
        m_mark->setShortcuts({QKeySequence("M"), QKeySequence("Return")});
        m_sound = menu->addAction("Sound");
        m_sound->setShortcut(QKeySequence("S"));
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
        m_editor.emplace(applyKeyBindings(m_window, m_workspace, "test"), m_workspace, "test",
                         &m_window);
        m_editor->show();
        QApplication::setActiveWindow(&*m_editor);
    }

    QKeySequenceEdit& field(int row) {
        return *m_editor->findChildren<QKeySequenceEdit*>().at(row);
    }

    void typeKey(int row, Qt::Key key) {
        field(row).setFocus();
        QTest::keyClick(&field(row), key);
        emit field(row).editingFinished(); // after a while without another key
    }

    const TempFolder m_folder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   [](std::string_view) {}, systemNow};
    std::vector<std::string> m_questions;
    bool m_answer = false;
    QMainWindow m_window;
    QAction* m_mark = nullptr;
    QAction* m_sound = nullptr;
    std::optional<desktop::KeyEditor> m_editor;
};

TEST_F(KeyDialogTest, ListensOnlyWhereItIsAskedToAndClosesWithEsc) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_U);
    EXPECT_EQ(m_mark->shortcut(), QKeySequence("M")) << "typed to find an action";
    EXPECT_FALSE(field(0).isVisible()) << "“Mark the split” holds no “ou”";
    EXPECT_TRUE(field(1).isVisible());
    field(1).setFocus();
    QTest::keyClick(&field(1), Qt::Key_Escape);
    EXPECT_FALSE(m_editor->isVisible());
    EXPECT_EQ(m_sound->shortcut(), QKeySequence("S"));
}

TEST_F(KeyDialogTest, TakesAKeyOverFromItsOwnerAfterAsking) {
    typeKey(1, Qt::Key_M);
    EXPECT_THAT(m_questions, testing::ElementsAre(testing::HasSubstr("“Mark the split”")));
    EXPECT_EQ(m_sound->shortcut(), QKeySequence("S")) << "the answer was no";
    EXPECT_EQ(field(1).keySequence(), QKeySequence("S"));
    m_answer = true;
    typeKey(1, Qt::Key_M);
    EXPECT_EQ(m_sound->shortcut(), QKeySequence("M"));
    EXPECT_EQ(m_mark->shortcuts(), QList<QKeySequence>{QKeySequence("Return")});
    EXPECT_EQ(field(0).keySequence(), QKeySequence("Return"));

    QMainWindow later;
    QMenu* const menu = later.menuBar()->addMenu("&Mark");
    menu->addAction("&Mark the split")->setShortcuts({QKeySequence("M"), QKeySequence("Return")});
    menu->addAction("Sound")->setShortcut(QKeySequence("S"));
    const auto bindings = desktop::applyKeyBindings(later, m_workspace, "test");
    EXPECT_EQ(bindings[0].action->shortcuts(), QList<QKeySequence>{QKeySequence("Return")});
    EXPECT_EQ(bindings[1].action->shortcut(), QKeySequence("M"));
}

} // namespace
} // namespace kavela::test
