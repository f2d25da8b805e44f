#pragma once

#include <QObject>

#include <cstddef>

namespace kavela::desktop {

class MotionCharts;
class MotionRecordings;
class RecordingList;

/// Where the recordings of the analyser stand in time against each other, and the way along the
/// strokes of the chosen one.
class MotionAlignment : public QObject {
    Q_OBJECT

public:
    MotionAlignment(MotionRecordings& recordings, const RecordingList& list, MotionCharts& charts,
                    QObject* parent = nullptr);

    void alignStarts();
    /// Puts every recording where its date says, beside the first one that has a date.
    void alignByClock();
    /// Moves the chosen recording so that its moment at the cursor comes to the clicked one.
    void alignHere();
    void shiftCurrent(double seconds);
    /// The cursor to the next stroke of the chosen recording, or the one before.
    void goToStroke(int step);

signals:
    /// How it went.
    void told(const QString& text);

private:
    MotionRecordings& m_recordings;
    const RecordingList& m_list;
    MotionCharts& m_charts;
};

} // namespace kavela::desktop
