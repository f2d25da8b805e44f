#pragma once

#include "boatmotion/session_editing.h"
#include "desktop/shell/background_work.h"

#include <QCoreApplication>

#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// Reads files of sessions and looks for the strokes of recordings, on a thread beside a window
/// that stays alive meanwhile but takes nothing in.
class SessionConversion {
    Q_DECLARE_TR_FUNCTIONS(SessionConversion)

public:
    SessionConversion(const Workspace& workspace, QWidget& over)
        : m_workspace(workspace), m_over(over) {}

    using Done = std::function<void(EditedSession session)>;
    using Failed = std::function<void(const std::exception_ptr& fault)>;

    /// Whether some work is under way: the session must not give way to another one then.
    [[nodiscard]] bool isBusy() const { return m_isHeld || m_work.isRunning(); }
    /// Does it now, or once the work under way is done; in this order.
    void whenFree(std::function<void()> act);
    /// What is to be done when it is free waits, until it is released: the session is about to give
    /// way. `next` is done before what waits, which goes on waiting where that begins some work.
    void hold() { m_isHeld = true; }
    void release(const std::function<void()>& next);

    /// Reads a recording (.kvb) or a processed file and gives all of it to `done`, with the path of
    /// the converted file where the recording was of version 4; `failed` follows an alert.
    void read(const QString& path, std::function<void(EditedSession session, QString path)> done,
              std::function<void()> failed);
    /// What the analysis finds in a recording.
    void analyse(bmrawdata_v5 recording, std::optional<Mount> mount, Done done, Failed failed);
    /// The same of what is left of the recording of a session.
    void analyseAgain(std::shared_ptr<const EditedSession> session, std::optional<Mount> mount,
                      Done done, Failed failed);

private:
    void workOn(const QString& what, std::function<EditedSession()> work, Done done, Failed failed);
    void goOn();
    void readConverted(const QString& path,
                       std::function<void(EditedSession session, QString path)> done,
                       std::function<void()> failed);
    void tellUnreadable(const QString& path, const std::exception_ptr& fault) const;

    const Workspace& m_workspace;
    QWidget& m_over;
    std::deque<std::function<void()>> m_next; ///< to be done when the window is free
    bool m_isHeld = false;
    BackgroundWork m_work;
};

/// Whether a file is a recording, by its extension.
[[nodiscard]] bool isRecording(const QString& path);

} // namespace kavela::desktop
