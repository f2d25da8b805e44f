#pragma once

#include "boatmotion/conversion.h"
#include "desktop/motion/motion_recordings.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

#include <functional>

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
    void tickCurrent();
    void showCurrentAlone();
    void moveChoice(int step);

    void convertCurrent();
    /// One after the other.
    void convertTicked();
    void openConverted();
    [[nodiscard]] bool hasConverted() const { return !m_lastConverted.isEmpty(); }

    void alignStarts();
    /// Puts every recording where its date says, beside the first ticked one.
    void alignByClock();
    /// Moves the chosen recording so that its moment at the cursor comes to the clicked one.
    void alignHere();
    void shiftCurrent(double seconds);
    /// The cursor to the next stroke of the chosen recording, or the one before.
    void goToStroke(int step);

    /// Asks for the name of a further file in place of a dialog, as in tests; empty for none.
    using AskName = std::function<QString(const QString& prompt, const QString& proposed)>;
    void setAskName(AskName ask) { m_askName = std::move(ask); }

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
    [[nodiscard]] QWidget* makeEmptyPage();
    void connectParts();
    void showChoice();
    void showValues();
    void showTitle();
    void showReading(const QString& name, int number, int count);
    void convertNext();
    /// Where a recording goes; nothing when the coach wants none.
    [[nodiscard]] std::optional<std::filesystem::path> askTarget(const MotionRecording& recording);
    [[nodiscard]] QString askName(const QString& prompt, const QString& proposed);
    void showConverted(const Conversion& conversion);
    void tell(const QString& text);

    MotionRecordings m_recordings;
    AskName m_askName;
    std::deque<MotionRecordings::Recording> m_toConvert;
    bool m_isConverting = false;
    BackgroundWork m_upgrading; ///< of recordings of version 4
    QString m_lastConverted;

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
    MotionActions* m_actions = nullptr;
};

} // namespace kavela::desktop
