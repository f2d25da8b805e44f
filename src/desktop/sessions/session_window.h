#pragma once

#include "desktop/imports/import_files.h"
#include "desktop/sessions/session_document.h"
#include "desktop/sessions/session_tables.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

#include <deque>
#include <exception>
#include <functional>

class QStackedWidget;

namespace kavela::desktop {

class DropAreas;
class Replay;
class SessionView;

/// Makes sessions out of recordings and shows them: import of raw recordings and processed
/// sessions, cuts, segments, power-meter data, and the figures of it all.
class SessionWindow : public ToolWindow {
    Q_OBJECT

public:
    SessionWindow(Workspace& workspace, Autosave autosave);
    ~SessionWindow() override;

    /// Begins to open a recording (.kvb), which is converted, or a processed session (.sbm, .bms):
    /// it is read beside the window, which is locked meanwhile. False when the window is at work
    /// or keeps what it has.
    [[nodiscard]] bool open(const QString& path) override;
    /// The same; false is told, after an alert, when it cannot be opened. What was open then stays.
    void openBeside(const QString& path, const Opened& opened) override;
    /// A file is being read or analysed.
    [[nodiscard]] bool isBusy() const { return m_work.isRunning(); }
    /// An empty window, for files to be dropped on; work that was kept for this path is offered.
    void startNew(const QString& path) override;

    [[nodiscard]] SessionDocument& document() const { return *m_document; }
    [[nodiscard]] SessionView& view() const { return *m_view; }
    [[nodiscard]] Replay& replay() const { return *m_replay; }

    void askForRecording();
    void askForSession();
    void askForPowerMeter();
    /// Shows what a list of a power meter holds and brings it in. False when it is not to be read
    /// or not wanted.
    bool importPowerMeter(const QString& path);

    /// Takes in what watches and phone loggers recorded: a list of samples is opened as a
    /// recording, a track joins the recording that is open.
    void askForImports();
    void importFrom(const QStringList& paths);
    /// Moves the track that was joined last in time: the clock of the watch was wrong.
    void moveTrack();
    [[nodiscard]] bool hasTrack() const { return m_watchTrack.has_value(); }
    /// The same, and lists of power meters; recordings come first, so that tracks find one to join.
    void takeInAll(const QStringList& paths);

    /// Whether power-meter data goes into the session that is saved; nothing to save nothing.
    using AskPowerMeter = std::function<std::optional<bool>(const QString& question)>;
    /// Answers that in place of a message box, as in tests.
    void setAskPowerMeter(AskPowerMeter ask) { m_askPowerMeter = std::move(ask); }
    /// Saves the session under a name, after what has to be asked or told before. False when it was
    /// not saved.
    bool saveSessionTo(const QString& path);
    /// Writes what is left of the recording, with the information of the session.
    void askAndSaveRecording();
    bool saveRecording(const QString& path);
    void askAndExport(SessionTables::Page page);
    /// Throws FileError.
    void exportTable(SessionTables::Page page, const QString& path) const;

    void editInformation();
    void analyseAgain();
    /// Says which side of the phone points to the bow, or leaves it to the positions, and looks for
    /// the strokes again.
    void nameMount(std::optional<Mount> mount);
    void keepSelection();
    void removeSelection();
    /// Takes out the strokes or turns that are selected in the table in front; the mark at the
    /// cursor where none is.
    void removeCurrent();

    /// Marks the moment of the cursor.
    void mark();
    void removeMark();
    void removeMarks();
    void moveMark(double seconds);
    void moveMarkHere();
    void goToMark(int steps);
    void goToStroke(int steps);
    /// Saves the session with its segments; told when there are too few marks.
    void saveSegments();

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
    void showSession();
    void placeOverlay();
    void read(const QString& path, const Opened& opened);
    void showRead(EditedSession session, const QString& path);
    void tellNotRead(const QString& path, const std::exception_ptr& fault, const Opened& opened);
    void readConverted(const QString& path, const Opened& opened);
    /// Now, or once the work of the window is done; in this order.
    void whenFree(std::function<void()> act);
    void goOn();
    /// Works on a session beside the window, which is locked meanwhile, and takes the result.
    void workOn(const QString& what, std::function<EditedSession()> work,
                std::function<void(EditedSession)> done,
                std::function<void(const std::exception_ptr&)> failed);
    void analyse(std::function<EditedSession()> work, std::function<void(EditedSession)> done);
    void takeIn(ImportedFile file);
    void takeInEach(std::vector<ImportedFile> files);
    void takeAnalysis(const QString& what, EditedSession again);
    void showImported(bmrawdata_v5 recording, const QString& path);
    /// The track of a watch that was joined to the recording, and what it gave to it.
    struct WatchTrack {
        ImportedTrack track;
        bool givesFixes = false;
        bool givesHeart = false;
        double offset = 0; ///< s by which its clock was behind

        [[nodiscard]] bool isWanted() const {
            return (givesFixes && !track.gps.empty()) || (givesHeart && !track.heart.empty());
        }
    };
    void join(ImportedTrack track);
    void analyseWith(const QString& what, std::optional<Mount> mount);
    void joinTrack(bmrawdata_v5 recording, WatchTrack track, const QString& what);
    [[nodiscard]] std::optional<double> askForOffset(const bmrawdata_v5& recording,
                                                     const WatchTrack& track);
    [[nodiscard]] std::optional<bool> askForPowerMeterData();
    [[nodiscard]] bool hasSession() const;
    [[nodiscard]] std::optional<std::size_t> markAtCursor() const;
    [[nodiscard]] bool hasMarkAt(double moment) const;
    void setMarksTo(const QString& what, std::vector<double> marks);
    void cutTo(const QString& what, std::optional<EditedSession> cut);
    void tell(const QString& title, const QString& text);
    void tellSaved(const QString& path);
    [[nodiscard]] QString askForFile(const QString& title, const QString& filter);
    [[nodiscard]] QString askWhereTo(const QString& title, const QString& filter,
                                     const QString& suffix, const QString& proposal);

    std::unique_ptr<SessionDocument> m_document;
    Replay* m_replay;
    SessionView* m_view = nullptr;
    QStackedWidget* m_pages = nullptr;
    DropAreas* m_overlay = nullptr;
    QString m_recordingPath; ///< of the recording that was imported
    std::optional<WatchTrack> m_watchTrack;
    AskPowerMeter m_askPowerMeter;
    std::deque<std::function<void()>> m_next; ///< to be done when the window is free
    BackgroundWork m_work;
};

/// Whether a file is a list of a power meter, by what it holds.
[[nodiscard]] bool isPowerMeterList(const QString& path);

} // namespace kavela::desktop
