#pragma once

#include "boatmotion/conversion.h"
#include "desktop/motion/motion_recording.h"
#include "desktop/shell/background_work.h"

#include <QObject>
#include <QUndoStack>

#include <deque>
#include <optional>

namespace kavela::desktop {

/// The recordings of an analyser window. Reading, analysing and converting run beside the
/// interface; what they give arrives with a signal.
class MotionRecordings : public QObject {
    Q_OBJECT

public:
    using Recording = std::shared_ptr<MotionRecording>;

    explicit MotionRecordings(DiagnosticLog log, QObject* parent = nullptr);

    [[nodiscard]] const std::vector<Recording>& all() const { return m_all; }
    [[nodiscard]] bool isLoaded(const QString& path) const;
    /// Whether something is being read or converted.
    [[nodiscard]] bool isBusy() const { return m_isReading || m_converting > 0; }

    /// Reads recordings one after the other; one that is there already is left out. A recording
    /// appears as a whole or not at all.
    void read(const QStringList& paths);
    void remove(std::size_t index);
    void setTicked(std::size_t index, bool isTicked);
    /// Moves of a recording can be taken back one by one; a drag is one move until it ends.
    void setShift(std::size_t index, double seconds);
    void dragShift(std::size_t index, double seconds);
    void endDrag() { ++m_drag; }
    /// Moves several at once: one shift for each recording.
    void setShifts(const std::vector<double>& seconds);
    [[nodiscard]] QUndoStack& shiftSteps() { return m_shiftSteps; }
    /// Analyses the recording again.
    void setProfile(std::size_t index, const MotionProfile& profile);

    /// Converts a recording as it was read, with the profile that it has here, to a file that must
    /// not be there yet; the result arrives with converted().
    void convert(std::size_t index, const std::filesystem::path& target);

    /// The seconds that the ticked recordings take on the common axis; {0, 0} for none.
    [[nodiscard]] std::pair<double, double> extent() const;
    /// The date at which a recording's first sample was taken, in seconds since 2001; nothing when
    /// its clocks cannot be related.
    [[nodiscard]] std::optional<double> dateOfStart(std::size_t index) const;

signals:
    /// A recording of this name is being read, the n-th of so many.
    void reading(const QString& name, int number, int count);
    void readingEnded();
    void added(std::size_t index);
    /// The file could not be read, for this reason; nothing of it is here.
    void refused(const QString& path, const QString& reason);
    /// The same for a recording of version 4, which has to be converted first.
    void refusedAsOlder(const QString& path);
    void listChanged();
    void ticksChanged();
    void shiftsChanged();
    /// The analysis of a recording is begun, done or has failed.
    void analysisChanged(std::size_t index);
    void converted(const kavela::Conversion& conversion);

private:
    struct ReadResult {
        Recording recording;
        QString reason;
        bool isOlder = false;
    };
    class ShiftStep;

    void readNext();
    void take(const QString& path, ReadResult result);
    void analyse(const Recording& recording);
    [[nodiscard]] QString freeLabel(const QString& stem) const;
    [[nodiscard]] std::size_t freeSlot() const;
    [[nodiscard]] std::optional<std::size_t> indexOf(const MotionRecording* recording) const;

    DiagnosticLog m_log;
    std::vector<Recording> m_all;
    std::deque<QString> m_waiting;
    int m_readCount = 0; ///< of those asked for since the last pause
    int m_readDone = 0;
    bool m_isReading = false;
    int m_converting = 0;
    BackgroundWork m_work;
    QUndoStack m_shiftSteps;
    int m_drag = 0; ///< number of the drag that is under way, or comes next
};

} // namespace kavela::desktop
