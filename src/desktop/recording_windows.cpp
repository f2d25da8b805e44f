#include "desktop/recording_windows.h"

#include "desktop/desktop.h"
#include "desktop/motion/motion_window.h"
#include "desktop/sessions/session_imports.h"
#include "desktop/sessions/session_window.h"
#include "desktop/shell/bring_to_front.h"

#include <QFileInfo>

namespace kavela::desktop {

void RecordingWindows::openImports(const QStringList& paths) {
    SessionWindow* window = nullptr;
    for (SessionWindow* const session : m_program.windowsOf<SessionWindow>())
        window = !window || session->isActiveWindow() ? session : window;
    if (!window) {
        window = new SessionWindow(m_workspace, m_autosave);
        const QFileInfo first(paths.constFirst());
        window->startNew(first.absolutePath() + '/' + first.completeBaseName() + ".bms");
        m_program.show(window);
    }
    bringToFront(*window);
    window->imports().takeInAll(paths);
}

void RecordingWindows::openRecordings(const QStringList& paths) {
    MotionWindow* window = m_program.windowsOf<MotionWindow>().value(0);
    if (!window) {
        window = new MotionWindow(m_workspace);
        QObject::connect(window, &MotionWindow::recordingsChanged, &m_program,
                         &Desktop::rememberSession);
        m_program.show(window);
    }
    bringToFront(*window);
    window->open(paths);
}

} // namespace kavela::desktop
