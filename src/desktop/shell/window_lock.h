#pragma once

#include <QPointer>
#include <QWidget>

namespace kavela::desktop {

/// A window that takes neither keys nor clicks for a while. It is free again at the latest when
/// this goes; what was locked by others stays so.
class WindowLock {
public:
    /// `widget` is any one of the window; null for no window.
    explicit WindowLock(QWidget* widget) : m_window(widget ? widget->window() : nullptr) {}
    WindowLock(const WindowLock&) = delete;
    WindowLock& operator=(const WindowLock&) = delete;
    ~WindowLock();

    void lock();
    void unlock();

private:
    QPointer<QWidget> m_window;
    bool m_isLocked = false;
};

} // namespace kavela::desktop
