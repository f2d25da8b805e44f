#pragma once

#include "desktop/sessions/session_conversion.h"
#include "desktop/sessions/session_document.h"
#include "desktop/shell/tool_window.h"

#include <functional>
#include <memory>
#include <optional>

class QStackedWidget;

namespace kavela::desktop {

class DropAreas;
class Replay;
class SessionEdits;
class SessionExports;
class SessionImports;
class SessionMarks;
class SessionView;

/// Makes sessions out of recordings and shows them: opens and saves them, and puts the parts
/// together that edit, mark, import and export what is shown.
class SessionWindow : public ToolWindow {
    Q_OBJECT

public:
    SessionWindow(Workspace& workspace, Autosave autosave);
    ~SessionWindow() override;

    /// Begins to open a recording (.kvb), which is converted, or a processed session (.sbm, .bms):
    /// it is read beside the window, which is locked meanwhile. False when the window is at work
    /// or keeps what it has; true also where what it has is saved first.
    [[nodiscard]] bool open(const QString& path) override;
    /// The same; false is told, after an alert, when it cannot be opened. What was open then stays.
    void openBeside(const QString& path, const Opened& opened) override;
    /// A file is being read or analysed, or is to be once what is shown is saved.
    [[nodiscard]] bool isBusy() const { return m_conversion->isBusy(); }
    /// An empty window, for files to be dropped on; work that was kept for this path is offered.
    void startNew(const QString& path) override;

    [[nodiscard]] SessionDocument& document() const { return *m_document; }
    [[nodiscard]] SessionView& view() const { return *m_view; }
    [[nodiscard]] Replay& replay() const { return *m_replay; }

    [[nodiscard]] SessionEdits& edits() const { return *m_edits; }
    [[nodiscard]] SessionMarks& marks() const { return *m_marks; }
    [[nodiscard]] SessionImports& imports() const { return *m_imports; }
    [[nodiscard]] SessionExports& exports() const { return *m_exports; }

    void askForRecording();
    void askForSession();

    /// Whether power-meter data goes into the session that is saved; nothing to save nothing.
    using AskPowerMeter = std::function<std::optional<bool>(const QString& question)>;
    /// Answers that in place of a message box, as in tests.
    void setAskPowerMeter(AskPowerMeter ask) { m_askPowerMeter = std::move(ask); }
    /// Writes what is left of the recording that is open to a file that is asked for.
    void askAndSaveRecording();
    /// Saves the session with its segments; told when there are too few marks.
    void saveSegments();
    /// Takes out the strokes or turns that are selected in the table in front; the nearest mark
    /// where none is.
    void removeCurrent();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void takeFiles(const QStringList& paths) override;
    [[nodiscard]] bool mayWrite() override;
    void wasSaved() override;

private:
    SessionWindow(Workspace& workspace, std::unique_ptr<SessionDocument> document);
    void makeParts();
    void connectParts();
    void showSession();
    void read(const QString& wanted, const Opened& opened);
    void placeOverlay();
    /// The window shows this session from now on; `recording` is where its recording came from.
    void begin(EditedSession session, const QString& recording, const QString& path);
    [[nodiscard]] std::optional<bool> askForPowerMeterData();
    void tell(const QString& title, const QString& text);
    void tellSaved(const QString& path);
    [[nodiscard]] QString askForFile(const QString& title, const QString& filter);

    std::unique_ptr<SessionDocument> m_document;
    Replay* m_replay;
    SessionView* m_view = nullptr;
    QStackedWidget* m_pages = nullptr;
    DropAreas* m_overlay = nullptr;
    SessionMarks* m_marks = nullptr;
    std::unique_ptr<SessionConversion> m_conversion;
    std::unique_ptr<SessionEdits> m_edits;
    std::unique_ptr<SessionImports> m_imports;
    std::unique_ptr<SessionExports> m_exports;
    QString m_recordingPath; ///< of the recording that was imported
    AskPowerMeter m_askPowerMeter;
};

} // namespace kavela::desktop
