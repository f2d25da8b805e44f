#include "desktop/shell/window_lock.h"

#include <QMetaObject>

#include <utility>

namespace kavela::desktop {

/// The window may be going, with what owns this: it is freed when that did not happen.
WindowLock::~WindowLock() {
    if (m_window && m_isLocked)
        QMetaObject::invokeMethod(
            m_window, [window = m_window] { window->setEnabled(true); }, Qt::QueuedConnection);
}

void WindowLock::lock() {
    if (m_isLocked || !m_window || !m_window->isEnabled())
        return;
    m_isLocked = true;
    m_window->setEnabled(false);
}

void WindowLock::unlock() {
    if (std::exchange(m_isLocked, false) && m_window)
        m_window->setEnabled(true);
}

} // namespace kavela::desktop
