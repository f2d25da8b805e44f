#pragma once

#include "boatmotion/strokes/motion_analysis.h"
#include "desktop/shell/forms/record_form.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

struct MotionRecording;

/// What can be set for one recording.
struct RecordingSetting {
    double shift = 0; ///< seconds
    MotionProfile profile;
};

/// What can be set for one recording: its place in time, and what the analysis cannot know.
class RecordingPanel : public QWidget {
    Q_OBJECT

public:
    explicit RecordingPanel(QWidget* parent = nullptr);

    /// Shows a recording; null for none.
    void show(const MotionRecording* recording);
    using QWidget::show;

signals:
    void shiftEntered(double seconds);
    void profileEntered(const kavela::MotionProfile& profile);

private:
    void addFields();
    void edit(const std::function<void(RecordingSetting&)>& change);

    RecordingSetting m_setting;
    RecordForm<RecordingSetting> m_form;
    QLabel* m_notes;
    const MotionRecording* m_shown = nullptr; ///< only to be told from another one
};

} // namespace kavela::desktop
