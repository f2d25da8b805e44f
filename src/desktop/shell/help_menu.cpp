#include "desktop/shell/help_menu.h"

#include "desktop/shell/key_bindings.h"
#include "desktop/shell/key_overlay.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

void addRecentFiles(Workspace& workspace, Commands& commands) {
    for (const QString& path : workspace.recentFiles()) {
        const QFileInfo file(path);
        commands.push_back({file.fileName(),
                            QObject::tr("Recent files, in %1").arg(file.dir().dirName()), QString(),
                            [&workspace, path] { emit workspace.openRequested(path); }});
    }
}

void openPalette(QMainWindow& window, Workspace& workspace, const std::function<Commands()>& more) {
    Commands commands = menuCommands(window);
    for (Command& command : more())
        commands.push_back(std::move(command));
    for (Command& command : workspace.programCommands())
        commands.push_back(std::move(command));
    addRecentFiles(workspace, commands);
    auto* palette = new CommandPalette(std::move(commands), &window);
    palette->setAttribute(Qt::WA_DeleteOnClose);
    palette->open();
}

void openOverlay(QMainWindow& window) {
    auto* overlay = new KeyOverlay(window, &window);
    overlay->setAttribute(Qt::WA_DeleteOnClose);
    overlay->open();
}

} // namespace

void addHelpMenu(QMainWindow& window, Workspace& workspace, const QString& kind,
                 std::function<Commands()> more) {
    QMenu* menu = window.menuBar()->addMenu(QObject::tr("&Help"));
    menu->addAction(QObject::tr("User &guide"), QKeySequence(Qt::Key_F1), &window,
                    [&workspace, kind] { emit workspace.guideRequested(kind); });
    menu->addAction(
        QObject::tr("&Search everything…"), QKeySequence(Qt::CTRL | Qt::Key_K), &window,
        [&window, &workspace, more = std::move(more)] { openPalette(window, workspace, more); });
    menu->addAction(QObject::tr("&All keys"), QKeySequence(Qt::Key_Question), &window,
                    [&window] { openOverlay(window); });
    // Seen from when a part of the window is shown that can answer; until then it has no use.
    QAction* why =
        menu->addAction(QObject::tr("&Why this number?"), QKeySequence(Qt::SHIFT | Qt::Key_F1));
    why->setObjectName("whyThisNumber");
    why->setVisible(false);
    QAction* change = menu->addAction(QObject::tr("&Change keys…"));
    QAction* full = menu->addAction(
        QObject::tr("&Full screen"), QKeySequence(Qt::Key_F11), &window, [&window](bool on) {
            window.setWindowState(window.windowState().setFlag(Qt::WindowFullScreen, on));
        });
    full->setCheckable(true);
    if (workspace.updateSource())
        menu->addAction(QObject::tr("&Look for a newer version"), &window,
                        [&window, &workspace] { emit workspace.newerVersionRequested(&window); });
    const std::vector<KeyBinding> bindings = applyKeyBindings(window, workspace, kind);
    QObject::connect(change, &QAction::triggered, &window, [&window, &workspace, bindings, kind] {
        KeyEditor(bindings, workspace, kind, &window).exec();
    });
}

} // namespace kavela::desktop
