#pragma once

#include "common/why.h"
#include "desktop/analysis_windows.h"
#include "desktop/earlier_work.h"
#include "desktop/film_windows.h"
#include "desktop/help/guide_help.h"
#include "desktop/home_screen.h"
#include "desktop/opened_as.h"
#include "desktop/planning_windows.h"
#include "desktop/quitting.h"
#include "desktop/recognition.h"
#include "desktop/recording_windows.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/focus_edge.h"
#include "desktop/shell/spoken_names.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/wheel_guard.h"
#include "desktop/shell/workspace.h"
#include "desktop/split_file_windows.h"
#include "desktop/tool_choice.h"
#include "desktop/update/updates.h"

#include <QMap>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class QWindow;

namespace kavela::desktop {

class CrossWindow;
struct CompareRequest;
class HeldDocuments;
class RaceWindow;
class TakingWindow;
struct ToolKind;

/// Where the programs of this user keep unsaved work, beside their log.
[[nodiscard]] QString autosaveFolder();

/// The desktop program: the home screen, and for each opened file the window of its tool.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// `autosave` keeps unsaved work; without one it stands beside the program's log.
    explicit Desktop(Workspace& workspace, std::optional<Autosave> autosave = std::nullopt);
    ~Desktop() override;

    void showHome() { m_home.show(); }
    /// Opens a file in the tool it belongs to, by what it holds; every split file of a folder. What
    /// takes long to read is read beside the windows, and comes to the front when it is there.
    void open(const QString& path) { openAll({path}); }
    /// The same for several: their races come into one window, which is `into` where it is given.
    void openAll(const QStringList& paths, RaceWindow* into = nullptr);
    /// Answers a further start of the program: its files come to the front in the windows that have
    /// them, or are opened; without any the window that was last in front comes back, or home.
    void comeForward(const QStringList& files);
    /// Opens what was open when the program was left. False when nothing was, or nothing is there.
    [[nodiscard]] bool restoreSession() { return m_earlierWork.restoreWindows(); }
    /// Opens what an earlier session left unsaved, each after asking.
    void offerRecovery() { m_earlierWork.offerUnsaved(); }
    void openSettings();
    void openSampleSeason();
    /// See SplitFileWindows.
    TakingWindow* openTaking(const QString& path) { return m_splitFiles.openTaking(path); }
    CrossWindow* openCross(const QString& path) { return m_splitFiles.openCross(path); }
    /// Opens a file in a tool, or raises the window that has it; false, after an alert, when it
    /// cannot be opened there. A file that takes long is read beside the windows, and told of then.
    bool openIn(const ToolKind& tool, const QString& path);
    /// Begins a document that has no file yet, in a window of its own; `isNamed` where the coach
    /// has chosen the path.
    void openNew(const ToolKind& tool, const QString& path, bool isNamed = false);
    /// Brings the window to the front that edits a file; false when none does.
    [[nodiscard]] bool raiseEditorOf(const QString& path);
    /// Opens races together, in a window of their own where none is given; those that a window
    /// shows already come to the front there.
    void openRaces(const QStringList& paths, RaceWindow* into = nullptr,
                   const std::shared_ptr<const HeldDocuments>& held = nullptr) {
        m_analysis.openRaces(paths, into, held);
    }
    /// Opens raw recordings beside each other, in the window that has some where there is one.
    void openRecordings(const QStringList& paths) { m_recordings.openRecordings(paths); }
    /// Brings the search to the front; it searches these files and folders too.
    void openFind(const QStringList& paths) { m_analysis.openFind(paths); }
    /// Brings the window that fetches films to the front.
    void openFetch() { m_films.openFetch(); }
    /// Brings the window that shares folders to the front, with this folder where one is given.
    void openShare(const QString& folder);
    /// Shows the films of a folder, or of a film's folder with that film in front; the window that
    /// has the folder comes to the front.
    void openFilms(const QString& path) { m_films.openFilms(path); }
    /// Opens what was open once: a folder of films in their window, all else as open() does.
    void openAgain(const QString& path);
    /// Shows the penalties of split files, and of folders with all below them, in one window; the
    /// window that has just these comes to the front.
    void openPenalties(const QStringList& paths) { m_analysis.openPenalties(paths); }
    /// Opens each list of results, also that of a race, in a window of its own; without any an
    /// empty window that offers ways to open one. `list` is which of the lists of a file is meant.
    void openTables(const QStringList& paths, const QString& list = {}) {
        m_analysis.openTables(paths, list);
    }
    /// Shows in split taking where a race and official results differ.
    void openOfficialDifferences(const QString& path) {
        m_splitFiles.openOfficialDifferences(path);
    }
    /// Shows the drawing of a race's course over its split taking, to be drawn on.
    void openCourse(const QString& path) { m_splitFiles.openCourse(path); }
    /// Shows how a team's athletes stand over the seasons, in the window that has the team where
    /// there is one; without a path the team that was shown last.
    void openSeason(const QStringList& paths) { m_analysis.openSeason(paths); }
    /// A window of a season of an earlier start, with what it showed then.
    void showSeasonAgain(const QStringList& paths, const QString& view) {
        m_analysis.showSeasonAgain(paths, view);
    }
    /// Shows where time was lost in split files, and in folders with all below them, in one window;
    /// the window that has just these comes to the front. `run` is one of the first file, counted
    /// from 0, to look at.
    void openLosses(const QStringList& paths, std::optional<std::size_t> run = std::nullopt) {
        m_analysis.openLosses(paths, run);
    }
    /// A window of losses of an earlier start, with what it showed then.
    void showLossesAgain(const QStringList& paths, const QString& view) {
        m_analysis.showLossesAgain(paths, view);
    }
    /// Shows the slit picture of a fixed camera's film, in the window that has it where there is
    /// one. Its marks go into the race that split taking has open for the film's folder, or into
    /// that of `race`.
    void openSlit(const QString& film, TakingWindow* race = nullptr) {
        m_films.openSlit(film, race);
    }
    /// Compares films in a window of its own.
    void openCompare(const CompareRequest& request) { m_films.openCompare(request); }
    /// Opens the planning that the preferences name, where they ask for one.
    void loadPlanningAtStart() { m_plannings.loadAtStart(); }

    /// Asks once whether newer versions may be looked for, and looks where it is time to.
    void lookForVersions() { m_updates.beginAtStart(front()); }

    /// Shows a window that was made, and follows what it asks for.
    void show(ToolWindow* window);
    /// Reads a file beside the windows, into a window that was made for it. That is shown once it
    /// is open, and goes where it cannot be; `opened` hears which, maybe at once, and before it
    /// goes. Until then the session remembers `asked`, and isReading() tells of the canonical path
    /// `file`.
    void readInto(ToolWindow& window, const QString& file, const OpenFile& asked,
                  const std::function<void(bool isOpen)>& opened);
    [[nodiscard]] bool isReading(const QString& file) const { return m_opening.contains(file); }
    /// The moment behind a time of the analyzer, in the film it was taken from.
    void showMoment(const QString& path, int run, std::size_t split) {
        m_splitFiles.showMoment(path, run, split);
    }
    /// What is open now is what the next start opens.
    void rememberSession();
    /// Reading has ended after a while: the windows that came of it come to the front, all but
    /// those of `before`.
    void noteOpened(const QList<ToolWindow*>& before);

    [[nodiscard]] bool isHomeShown() const { return m_home.isShown(); }
    /// Over which dialogs open.
    [[nodiscard]] QWidget* front() const;
    /// Its windows are being closed, one after the other.
    [[nodiscard]] bool isBeingLeft() const { return m_quitting.isLeaving(); }
    /// Whether a window is open, or a file is being read for one.
    [[nodiscard]] bool hasWindows() const { return isOpening() || !windows().isEmpty(); }
    /// Whether a file is being read that is to be opened.
    [[nodiscard]] bool isOpening() const {
        return !m_opening.isEmpty() || m_recognition.isRunning() ||
               !m_analysis.racesBeingRead().isEmpty();
    }
    /// What the session is to remember beside the windows that are open: files that are being read,
    /// and those of windows that closed while the program is being left.
    [[nodiscard]] QList<OpenFile> filesBetweenWindows() const;
    /// The windows that are open, in the order of their opening.
    [[nodiscard]] QList<ToolWindow*> windows() const;
    /// Those of a tool.
    template <class Window>
    [[nodiscard]] QList<Window*> windowsOf() const {
        QList<Window*> found;
        for (ToolWindow* const window : windows())
            if (auto* const it = qobject_cast<Window*>(window))
                found.append(it);
        return found;
    }

private:
    /// Each tool, for the search of every window.
    [[nodiscard]] Commands toolCommands();
    [[nodiscard]] ToolWindow* make(const ToolKind& tool);
    /// What is parsed of the file is `held` until its window has it.
    bool openIn(const ToolKind& tool, const QString& path,
                const std::shared_ptr<const HeldDocuments>& held);
    void connectTool(ToolWindow& window);
    /// The windows of the same tool that are on the screen.
    [[nodiscard]] QList<QWidget*> othersLike(const ToolWindow& window) const;
    /// Where a number comes from: a split file at the run and frame, any other file as it opens.
    /// One that is not there any more is told.
    void showPlace(const Place& place);
    void tellEmpty(const QString& folder);
    void openRecognised(const Recognition::Found& found, RaceWindow* into);
    void openByContent(const Recognition::File& file,
                       const std::shared_ptr<const HeldDocuments>& held);
    [[nodiscard]] bool openInOneOf(OpensAs kind, const QString& path);
    /// The races among files and folders. All else is opened.
    [[nodiscard]] QStringList racesAmong(const Recognition::Found& found);
    void noteFront(const QWindow* window);

    Workspace& m_workspace;
    WheelGuard m_wheelGuard;
    SpokenNames m_spokenNames;
    FocusEdge m_focusEdge;
    QPointer<QWidget> m_lastFront; ///< of the windows, the one that the coach was in last
    QList<QPointer<ToolWindow>> m_windows;
    QMap<QString, OpenFile> m_opening; ///< that a window is reading right now; by canonical path
    Autosave m_autosave;
    EarlierWork m_earlierWork;
    Quitting m_quitting;
    ToolChoice m_choice;
    GuideHelp m_guide;
    HomeScreen m_home;
    PlanningWindows m_plannings;
    AnalysisWindows m_analysis;
    SplitFileWindows m_splitFiles;
    FilmWindows m_films;
    RecordingWindows m_recordings;
    Updates m_updates;
    Recognition m_recognition;
};

} // namespace kavela::desktop
