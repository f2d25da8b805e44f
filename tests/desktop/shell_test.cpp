#include "desktop/shell/command_palette.h"

#include "common/temp_folder.h"
#include "desktop/shell/key_bindings.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QMainWindow>
#include <QMenuBar>

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

} // namespace
} // namespace kavela::test
