#pragma once

#include "boatmotion/strokes/motion_analysis.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace kavela::desktop {

class NumberBox;

struct MotionRecording;

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
    void enterProfile();

    MotionProfile m_profile;
    NumberBox* m_shift;
    NumberBox* m_mass;
    NumberBox* m_drag;
    QComboBox* m_boat;
    QComboBox* m_mount;
    QLabel* m_notes;
};

} // namespace kavela::desktop
