#pragma once

#include "boatmotion/conversion.h"
#include "desktop/motion/motion_recordings.h"

#include <functional>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// Recordings on their way to processed sessions, one after the other: beside which file each goes,
/// and what became of it.
class MotionConversions : public QObject {
    Q_OBJECT

public:
    /// Questions and failures stand over `window`.
    MotionConversions(MotionRecordings& recordings, Workspace& workspace, QWidget& window);

    void add(const std::vector<MotionRecordings::Recording>& recordings);
    /// The session that was written last; empty for none.
    [[nodiscard]] const QString& last() const { return m_last; }

    /// Asks for the name of a further file in place of a dialog, as in tests; empty for none.
    using AskName = std::function<QString(const QString& prompt, const QString& proposed)>;
    void setAskName(AskName ask) { m_askName = std::move(ask); }

signals:
    /// One is being converted.
    void began();
    /// It is not any more; `text` says how it ended, and the path is empty where nothing was
    /// written.
    void ended(const QString& text, const QString& path);

private:
    void next();
    void finish(const Conversion& conversion);
    /// Where a recording goes; nothing when the coach wants none.
    [[nodiscard]] std::optional<std::filesystem::path> askTarget(const MotionRecording& recording);
    [[nodiscard]] QString askName(const QString& prompt, const QString& proposed);

    MotionRecordings& m_recordings;
    Workspace& m_workspace;
    QWidget& m_window;
    AskName m_askName;
    std::deque<MotionRecordings::Recording> m_waiting;
    bool m_isConverting = false;
    QString m_last;
};

} // namespace kavela::desktop
