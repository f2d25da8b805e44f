#pragma once

#include "common/why.h"
#include "desktop/earlier_work.h"
#include "desktop/opened_as.h"
#include "desktop/quitting.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/wheel_guard.h"
#include "desktop/shell/workspace.h"

#include <QMap>
#include <QPointer>

#include <functional>
#include <optional>

class QWindow;

namespace kavela::desktop {

class CrossWindow;
class HeldDocuments;
class MotionWindow;
class HomeWindow;
class LossesWindow;
class RaceWindow;
class TakingDocument;
class TakingWindow;
struct ToolKind;

/// The desktop program: the home screen, and for each opened file the window of its tool.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// `autosave` keeps unsaved work; without one it stands beside the program's log.
    explicit Desktop(Workspace& workspace, std::optional<Autosave> autosave = std::nullopt);
    ~Desktop() override;

    void showHome();
    /// Opens a file in the tool it belongs to, by what it holds; every split file of a folder.
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
    /// Opens a folder of films, or a split file beside its films, for split taking; null, after a
    /// message, when it cannot be opened.
    TakingWindow* openTaking(const QString& path);
    /// Opens the kayak cross of a split file, or of a folder of films; null, after a message, when
    /// it cannot be opened. A file is edited in one window at a time, for split taking or for its
    /// cross: the other one closes first, when the coach decides about unsaved work. One that stays
    /// open keeps the file; one that saves first gives way when that is done, and null is returned.
    CrossWindow* openCross(const QString& path);
    /// Opens a file in a tool, or raises the window that has it; false, after an alert, when it
    /// cannot be opened there. A file that takes long is read beside the windows, and told of then.
    bool openIn(const ToolKind& tool, const QString& path);
    /// Begins a document that has no file yet, in a window of its own.
    void openNew(const ToolKind& tool, const QString& path);
    /// Brings the window to the front that edits a file; false when none does.
    [[nodiscard]] bool raiseEditorOf(const QString& path);
    /// Opens races together, in a window of their own where none is given; those that a window
    /// shows already come to the front there.
    void openRaces(const QStringList& paths, RaceWindow* into = nullptr);
    /// Opens raw recordings beside each other, in the window that has some where there is one.
    void openRecordings(const QStringList& paths);
    /// Brings the search to the front; it searches these files and folders too.
    void openFind(const QStringList& paths);
    /// Shows the films of a folder, or of a film's folder with that film in front; the window that
    /// has the folder comes to the front.
    void openFilms(const QString& path);
    /// Shows the penalties of split files, and of folders with all below them, in one window; the
    /// window that has just these comes to the front.
    void openPenalties(const QStringList& paths);
    /// Shows where time was lost in split files, and in folders with all below them, in one window;
    /// the window that has just these comes to the front. `run` is one of the first file, counted
    /// from 0, to look at.
    void openLosses(const QStringList& paths, std::optional<std::size_t> run = std::nullopt);
    /// The same with the season of an athlete.
    void openSeasonLosses(const QStringList& paths, const QString& athlete);
    /// Asks in which folder the races of a team's athlete are, and opens the season there.
    void askForSeasonLosses(const QString& athlete, const QString& teamFile);
    /// Opens the planning that the preferences name, where they ask for one.
    void loadPlanningAtStart();

    [[nodiscard]] bool isHomeShown() const;
    /// Whether a window is open, or a file is being read for one.
    [[nodiscard]] bool hasWindows() const { return !m_opening.isEmpty() || !windows().isEmpty(); }
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
    /// Lets the coach choose what a tool is to open or begin.
    void choose(const ToolKind& tool);
    void chooseDocument(const ToolKind& tool);
    void chooseFilesOrFolder(const ToolKind& tool);
    [[nodiscard]] ToolWindow* make(const ToolKind& tool);
    /// A planning of the server in a window of its own.
    void showPlanningCopy(const QByteArray& content, const QString& name);
    /// A file was read for a window that is shown now, or goes.
    void endOpening(ToolWindow* window, const QString& path, bool isOpen);
    void noteOpened(ToolWindow* window, bool isOpen);
    /// Shows a window, and follows what it asks for.
    void show(ToolWindow* window);
    void connectTool(ToolWindow& window);
    /// A new window for the split file or folder, which none edits; null, after a message, when it
    /// cannot be opened.
    TakingWindow* showTaking(const QString& path);
    CrossWindow* showCross(const QString& path);
    /// The same in place of the window that had it and is closed now; where it cannot be opened,
    /// that one comes back with `left`.
    TakingWindow* showTakingInstead(const QString& path, const QString& left);
    CrossWindow* showCrossInstead(const QString& path, const QString& left);
    /// Closes a window that gives way, as the coach would, who decides about unsaved work then.
    /// True when it is closed. Where it saves first, `then` is called once it is; one that stays
    /// open comes to the front.
    bool givesWay(ToolWindow& window, std::function<void()> then);
    void openFilm(const QString& path);
    void showMoment(const QString& path, int run, std::size_t split);
    /// Where a number comes from: a split file at the run and frame, any other file as it opens.
    /// One that is not there any more is told.
    void showPlace(const Place& place);
    /// A run of a file in split taking, which may have moved there since the file was saved; null,
    /// after a message, when it is gone.
    [[nodiscard]] TakingWindow* showRun(const QString& path, std::size_t run);
    [[nodiscard]] RaceWindow* makeRaceWindow();
    /// The window that shows the losses of just these files, else a new one, in front.
    LossesWindow& lossesWindow(const QStringList& paths);
    /// The window that shows a race; null when none does.
    [[nodiscard]] RaceWindow* windowOfRace(const QString& path) const;
    /// The split files of a folder; told when there are none.
    [[nodiscard]] QStringList racesIn(const QString& folder);
    [[nodiscard]] QStringList notShownAmong(const QStringList& races);
    void openByContent(const QString& path, OpensAs kind);
    /// Takes lists and tracks of other devices into the session in front, or into a new one.
    void openImports(const QStringList& paths);
    void showInAnalyzer(const TakingDocument& document);
    /// The races among files and folders; what is not one is told.
    [[nodiscard]] QStringList racesAmong(const QStringList& paths, HeldDocuments& held);
    void rememberSession() { m_earlierWork.rememberWindows(); }
    void noteFront(const QWindow* window);
    [[nodiscard]] QWidget* front() const;

    Workspace& m_workspace;
    WheelGuard m_wheelGuard;
    QPointer<HomeWindow> m_home;
    QPointer<QWidget> m_lastFront; ///< of the windows, the one that the coach was in last
    QList<QPointer<ToolWindow>> m_windows;
    QMap<QString, OpenFile> m_opening; ///< that a window is reading right now; by canonical path
    Autosave m_autosave;
    EarlierWork m_earlierWork;
    Quitting m_quitting;
};

} // namespace kavela::desktop
