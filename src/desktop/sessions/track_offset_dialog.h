#pragma once

#include "boatmotion/imports/join_recording.h"

#include <QDialog>

class QDateTimeEdit;
class QLabel;
class QPushButton;

namespace kavela::desktop {

/// By how much the clock of a watch was wrong: when its track began in truth, with what of it then
/// lies in the recording.
class TrackOffsetDialog : public QDialog {
    Q_OBJECT

public:
    /// Recording and track must outlive the dialog; neither is empty. `offset` is proposed: a date
    /// of the recording is one of the track + offset seconds.
    TrackOffsetDialog(const bmrawdata_v5& recording, const ImportedTrack& track, double offset,
                      QWidget* parent = nullptr);

    [[nodiscard]] double offset() const;

private:
    void layOut();
    void showOverlap();

    const bmrawdata_v5& m_recording;
    const ImportedTrack& m_track;
    DateSpan m_recorded;
    DateSpan m_tracked;
    QDateTimeEdit* m_begin;
    QLabel* m_overlap;
    QPushButton* m_join = nullptr;
};

} // namespace kavela::desktop
