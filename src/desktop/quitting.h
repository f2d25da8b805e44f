#pragma once

#include "desktop/open_session.h"

#include <QList>
#include <QObject>

#include <functional>

namespace kavela::desktop {

class ToolWindow;

/// Leaves the program: its windows close in turn, each asking for its own unsaved work. One that
/// saves is waited for, while all of them go on answering; one that stays ends the leaving.
class Quitting : public QObject {
public:
    /// `windows` are those that are open; `remember` stores what the next start is to show.
    Quitting(std::function<QList<ToolWindow*>()> windows, std::function<void()> remember);

    /// From now on the window takes part.
    void follow(ToolWindow& window);
    /// The coach goes on working, as in a window that was opened meanwhile.
    void giveUp();
    [[nodiscard]] bool isLeaving() const { return m_state == State::Leaving; }
    /// What the windows showed that this leaving has closed: the next start shows it too.
    [[nodiscard]] const QList<OpenFile>& closedFiles() const { return m_closed; }

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void noteClosed(const ToolWindow& window);
    void goOn();
    void goOnLater();

    enum class State { Working, Leaving, Left };

    std::function<QList<ToolWindow*>()> m_windows;
    std::function<void()> m_remember;
    State m_state = State::Working;
    QList<OpenFile> m_closed;
};

} // namespace kavela::desktop
