#pragma once

#include "boatmotion/session_editing.h"

#include <QCoreApplication>

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

    /// Whether some work is under way: the session must not give way to another one then.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }

    /// The session of a recording (.kvb) or of a processed file; all of it, or nothing after an
    /// alert. The path becomes that of the converted file where the recording was of version 4.
    [[nodiscard]] std::optional<EditedSession> read(QString& path);
    /// What the analysis finds in a recording. Throws MotionError.
    [[nodiscard]] EditedSession analysed(bmrawdata_v5 recording, std::optional<Mount> mount);
    /// The same of what is left of the recording of a session, which stays as it is.
    [[nodiscard]] EditedSession analysedAgain(const EditedSession& session,
                                              std::optional<Mount> mount);

private:
    [[nodiscard]] EditedSession converted(const QString& path);
    [[nodiscard]] std::optional<EditedSession> readConverted(QString& path);
    void tellUnreadable(const QString& path, const std::string& reason) const;

    const Workspace& m_workspace;
    QWidget& m_over;
    bool m_isBusy = false;
};

/// Whether a file is a recording, by its extension.
[[nodiscard]] bool isRecording(const QString& path);

} // namespace kavela::desktop
