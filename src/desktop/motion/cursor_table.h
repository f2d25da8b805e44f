#pragma once

#include "desktop/motion/motion_recording.h"

#include <QTableWidget>

namespace kavela::desktop {

/// What the ticked recordings say at the cursor: a row for each curve and for the stroke or turn
/// there, a column for each recording.
class CursorTable : public QTableWidget {
    Q_OBJECT

public:
    explicit CursorTable(QWidget* parent = nullptr);

    /// Which recordings and curves are shown; the values follow with showAt().
    void setContent(std::vector<std::shared_ptr<MotionRecording>> recordings,
                    std::vector<CurveKind> kinds);
    /// A moment of the common axis, or nothing when the cursor is nowhere.
    void showAt(std::optional<double> time);

protected:
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    [[nodiscard]] QString textAt(int row, const MotionRecording& recording, double time) const;

    std::vector<std::shared_ptr<MotionRecording>> m_recordings;
    std::vector<CurveKind> m_kinds;
    std::optional<double> m_time;
};

} // namespace kavela::desktop
