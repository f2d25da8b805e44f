#pragma once

#include "desktop/motion/motion_recording.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// One line of what recordings say at a moment.
struct CursorRow {
    QString title;
    /// Of a recording, at a moment of its own axis.
    std::function<QString(const MotionRecording& recording, double time)> text;
};

/// What the ticked recordings say at the cursor: a row for each curve and for the stroke or turn
/// there, a column for each recording.
class CursorTable : public ColumnTable {
    Q_OBJECT

public:
    explicit CursorTable(QWidget* parent = nullptr);

    /// Which recordings and curves are shown; the values follow with showAt().
    void setContent(std::vector<std::shared_ptr<MotionRecording>> recordings,
                    const std::vector<CurveKind>& kinds);
    /// A moment of the common axis, or nothing when the cursor is nowhere.
    void showAt(std::optional<double> time);

protected:
    void changeEvent(QEvent* event) override;

private:
    using Values = ColumnModel<CursorRow, QString>;

    CursorTable(Values* values, QWidget* parent);
    void showColumns();

    Values* m_values;
    std::vector<std::shared_ptr<MotionRecording>> m_recordings;
    std::optional<double> m_time;
};

} // namespace kavela::desktop
