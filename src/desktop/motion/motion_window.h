#pragma once

#include "desktop/motion/motion_alignment.h"
#include "desktop/motion/motion_conversions.h"
#include "desktop/motion/motion_recordings.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace kavela::desktop {

class CursorTable;
class MotionActions;
class MotionCharts;
class RecordingList;
class RecordingPanel;
class Workspace;

/// The raw-data analyser: raw recordings laid over each other, and their conversion to processed
/// sessions.
class MotionWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit MotionWindow(Workspace& workspace);
    ~MotionWindow() override;

    /// Reads recordings beside the interface and shows each when it is there; what cannot be read
    /// is told in an alert. Files of other kinds are handed on with openRequested().
    void open(const QStringList& paths);
    /// The same for one; true, since it is told later what is wrong with it.
    [[nodiscard]] bool open(const QString& path) override;
    /// The files of the recordings that are shown.
    [[nodiscard]] QStringList paths() const override;

    [[nodiscard]] MotionRecordings& recordings() { return m_recordings; }
    [[nodiscard]] MotionCharts& charts() const { return *m_charts; }
    [[nodiscard]] RecordingList& list() const { return *m_list; }
    [[nodiscard]] CursorTable& values() const { return *m_values; }
    /// What was last told about a conversion: "Converting…" and how it ended.
    [[nodiscard]] QString status() const;

    void chooseFiles();
    void removeCurrent();

    void convertCurrent();
    /// One after the other.
    void convertTicked();
    void openConverted();
    [[nodiscard]] bool hasConverted() const { return !m_conversions->last().isEmpty(); }

    // See MotionAlignment.
    void alignStarts() { m_alignment->alignStarts(); }
    void alignByClock() { m_alignment->alignByClock(); }
    void alignHere() { m_alignment->alignHere(); }
    void shiftCurrent(double seconds) { m_alignment->shiftCurrent(seconds); }
    void goToStroke(int step) { m_alignment->goToStroke(step); }

    /// See MotionConversions.
    void setAskName(MotionConversions::AskName ask) { m_conversions->setAskName(std::move(ask)); }

signals:
    /// A processed session was written.
    void convertedTo(const QString& path);
    /// Recordings were added or removed.
    void recordingsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeSide();
    void connectParts();
    [[nodiscard]] std::vector<MotionRecordings::Recording> ticked() const;
    void showChoice();
    void showValues();
    void showTitle();
    void showReading(const QString& name, int number, int count);
    void showConverting();
    void showConverted(const QString& text, const QString& path);
    void tell(const QString& text);

    MotionRecordings m_recordings;
    BackgroundWork m_upgrading; ///< of recordings of version 4

    QStackedWidget* m_pages;
    QWidget* m_side;
    MotionCharts* m_charts;
    RecordingList* m_list;
    RecordingPanel* m_panel;
    CursorTable* m_values;
    QLabel* m_status;
    QProgressBar* m_progress;
    QPushButton* m_openConverted;
    QPushButton* m_convert;
    QPushButton* m_convertAll;
    MotionConversions* m_conversions;
    MotionAlignment* m_alignment = nullptr;
    MotionActions* m_actions = nullptr;
};

} // namespace kavela::desktop
