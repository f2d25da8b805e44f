#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/taking/taking_window.h"

#include <QFileDialog>
#include <QFileInfo>

/// The tools that edit a split file on its films: split taking and kayak cross.
namespace kavela::desktop {

namespace {

/// The window among some that edits the split file; null when none does.
template <class Window>
Window* windowOf(const QList<Window*>& windows, const QString& path) {
    for (Window* const window : windows)
        if (window->document().path() == QFileInfo(path).absoluteFilePath())
            return window;
    return nullptr;
}

} // namespace

void Desktop::chooseFilms() {
    const QString folder =
        QFileDialog::getExistingDirectory(front(), tr("Open a folder of videos"));
    if (!folder.isEmpty())
        (void)openTaking(folder);
}

TakingWindow* Desktop::openTaking(const QString& path) {
    if (TakingWindow* const open = windowOf(takingWindows(), path)) {
        open->raise();
        open->activateWindow();
        return open;
    }
    CrossWindow* const cross = windowOf(crossWindows(), path);
    if (cross && !mayLeave(cross->document(), *cross))
        return nullptr;
    auto* window = new TakingWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    connect(window, &TakingWindow::homeRequested, this, &Desktop::showHome);
    connect(window, &TakingWindow::settingsRequested, this, &Desktop::openSettings);
    connect(window, &TakingWindow::analysisRequested, this, &Desktop::open);
    connect(window, &TakingWindow::crossRequested, this, &Desktop::openCross);
    connect(window, &TakingWindow::filesRequested, this, [this](const QStringList& files) {
        for (const QString& file : files)
            (void)openTaking(file);
    });
    rememberWithout(window);
    m_takings.append(window);
    window->show();
    if (cross)
        cross->close(); // last, so that the program always has a window
    rememberSession();
    return window;
}

void Desktop::chooseCross() {
    const QString file = QFileDialog::getOpenFileName(front(), tr("Open a kayak cross"), QString(),
                                                      tr("Split files (*.kvx);;All files (*)"));
    if (!file.isEmpty())
        (void)openCross(file);
}

/// Whether a document may be edited in another window: nothing is left to be saved then. Otherwise
/// its window comes to the front.
bool Desktop::mayLeave(TakingDocument& document, QWidget& window) {
    if (!document.isDirty())
        return true;
    const auto choice = m_workspace.askToSave(document.title(), &window);
    if (choice == Workspace::Leaving::Discard)
        document.discard();
    if (choice == Workspace::Leaving::Discard ||
        (choice == Workspace::Leaving::Save && document.save(&window)))
        return true;
    window.raise();
    window.activateWindow();
    return false;
}

CrossWindow* Desktop::openCross(const QString& path) {
    if (CrossWindow* const open = windowOf(crossWindows(), path)) {
        open->raise();
        open->activateWindow();
        return open;
    }
    TakingWindow* const taking = windowOf(takingWindows(), path);
    if (taking && !mayLeave(taking->document(), *taking))
        return nullptr;
    auto* window = new CrossWindow(m_workspace, m_autosave);
    if (!window->open(path)) {
        delete window;
        return nullptr;
    }
    connect(window, &CrossWindow::homeRequested, this, &Desktop::showHome);
    connect(window, &CrossWindow::settingsRequested, this, &Desktop::openSettings);
    connect(window, &CrossWindow::analysisRequested, this,
            [this](const QString& file) { openRaces({file}, nullptr); });
    connect(window, &CrossWindow::takingRequested, this, &Desktop::openTaking);
    connect(window, &CrossWindow::filesRequested, this, &Desktop::openCrosses);
    rememberWithout(window);
    m_crosses.append(window);
    window->show();
    if (taking)
        taking->close(); // last, so that the program always has a window
    rememberSession();
    return window;
}

/// Split files and folders open as crosses, other files in their tools.
void Desktop::openCrosses(const QStringList& paths) {
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.isDir() || info.suffix() == "kvx")
            (void)openCross(path);
        else
            open(path);
    }
}

QList<CrossWindow*> Desktop::crossWindows() const {
    QList<CrossWindow*> open;
    for (const auto& cross : m_crosses)
        if (cross)
            open.append(cross);
    return open;
}

/// The moment behind a time of the analyzer, in the film it was taken from.
void Desktop::showMoment(const QString& path, int run, std::size_t split) {
    TakingWindow* const window = openTaking(path);
    if (!window)
        return;
    window->selectRun(run);
    window->goToMark(split);
}

QList<TakingWindow*> Desktop::takingWindows() const {
    QList<TakingWindow*> open;
    for (const auto& taking : m_takings)
        if (taking)
            open.append(taking);
    return open;
}

} // namespace kavela::desktop
