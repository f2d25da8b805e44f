#include "desktop/quitting.h"

#include "desktop/shell/tool_window.h"

#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <QPointer>

#include <utility>

namespace kavela::desktop {

Quitting::Quitting(std::function<QList<ToolWindow*>()> windows, std::function<void()> remember)
    : m_windows(std::move(windows)), m_remember(std::move(remember)) {
    qApp->installEventFilter(this);
}

void Quitting::follow(ToolWindow& window) {
    connect(&window, &ToolWindow::closed, this, [this, &window] { noteClosed(window); });
    connect(&window, &ToolWindow::stayed, this, &Quitting::giveUp);
}

/// Windows that are closed one after the other, with time between them, would otherwise be missing
/// where the session is stored in that time.
void Quitting::noteClosed(const ToolWindow& window) {
    if (m_state != State::Leaving)
        return;
    m_closed += filesOf(window, static_cast<int>(m_closed.size()) + 1);
    // It is open until it has heard the answer.
    QMetaObject::invokeMethod(this, &Quitting::goOnLater, Qt::QueuedConnection);
}

void Quitting::giveUp() {
    const bool wasLeaving = std::exchange(m_state, State::Working) == State::Leaving;
    m_closed.clear();
    if (wasLeaving)
        m_remember();
}

void Quitting::goOn() {
    while (m_state == State::Leaving) {
        const QList<ToolWindow*> open = m_windows();
        if (open.isEmpty()) {
            m_state = State::Left;
            return;
        }
        const QPointer<ToolWindow> window = open.front();
        if (window->isClosing())
            return; // it tells when its work is written, or stays
        window->close();
        if (window && !window->isHidden() && !window->isClosing())
            giveUp();
    }
}

void Quitting::goOnLater() {
    if (m_state != State::Leaving)
        return;
    goOn();
    if (m_state == State::Left)
        QCoreApplication::quit();
}

/// A box that waits for an answer is closed first, as the toolkit does it.
bool Quitting::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit || m_windows().isEmpty())
        return QObject::eventFilter(watched, event);
    const QWidget* const box = QApplication::activeModalWidget();
    if (box && box->windowModality() == Qt::ApplicationModal)
        return QObject::eventFilter(watched, event);
    if (m_state != State::Leaving) {
        m_state = State::Leaving;
        m_closed.clear();
        goOn();
    }
    if (m_state == State::Left)
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace kavela::desktop
