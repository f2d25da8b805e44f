#pragma once

#include "desktop/opened_as.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/wheel_guard.h"
#include "desktop/shell/workspace.h"

#include <QPointer>

#include <functional>
#include <optional>

namespace kavela::desktop {

class CrossWindow;
struct DocumentChoice;
struct DocumentKind;
class EditorWindow;
class MotionWindow;
class HomeWindow;
class RaceWindow;
class TakingDocument;
class TakingWindow;

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
    /// Opens what was open when the program was left. False when nothing was, or nothing is there.
    [[nodiscard]] bool restoreSession();
    void openSettings();
    void openSampleSeason();
    /// Opens a folder of films, or a split file beside its films, for split taking; null, after a
    /// message, when it cannot be opened.
    TakingWindow* openTaking(const QString& path);
    /// Opens the kayak cross of a split file, or of a folder of films; null, after a message, when
    /// it cannot be opened. A file is edited in one window at a time, for split taking or for its
    /// cross: the other one closes first, when the coach decides about unsaved work. One that stays
    /// open keeps the file.
    CrossWindow* openCross(const QString& path);
    /// Opens a team or a selection; false, after an alert, when it cannot be opened.
    bool openTeam(const QString& path);
    bool openSelection(const QString& path);
    bool openPlanning(const QString& path);
    bool openTests(const QString& path);
    /// Opens raw recordings beside each other, in the window that has some where there is one.
    void openRecordings(const QStringList& paths);
    bool openSession(const QString& path);
    bool openTestSession(const QString& path);
    /// Opens the planning that the preferences name, where they ask for one.
    void loadPlanningAtStart();
    /// Opens what an earlier session left unsaved, each after asking.
    void offerRecovery();

    [[nodiscard]] bool hasWindows() const;
    /// The windows that are open, in the order of their opening.
    [[nodiscard]] QList<RaceWindow*> raceWindows() const;
    [[nodiscard]] QList<TakingWindow*> takingWindows() const;
    [[nodiscard]] QList<CrossWindow*> crossWindows() const;
    /// The windows of the other tools, which edit a file each.
    [[nodiscard]] QList<EditorWindow*> editorWindows() const;
    /// The window of raw recordings; null when there is none.
    [[nodiscard]] MotionWindow* motionWindow() const;

private:
    void chooseRace();
    void chooseFilms();
    void chooseCross();
    void openCrosses(const QStringList& paths);
    void chooseTeam();
    void chooseSelection();
    void choosePlanning();
    void loadOnlinePlanning();
    /// A planning of the server in a window of its own.
    void showPlanningCopy(const QByteArray& content, const QString& name);
    void chooseTests();
    void chooseRecordings();
    void chooseSession();
    /// Asks for a document to open, or for the name of a new one.
    [[nodiscard]] DocumentChoice chooseDocument(const DocumentKind& kind) const;
    /// Opens a chosen document, or begins a new one.
    template <class Window>
    void chooseEditor(const DocumentKind& kind,
                      const std::function<void(Window&, const QString&)>& begin);
    template <class Window>
    bool openEditor(const QString& path);
    /// Shows a window that edits a file, and follows what it asks for.
    void show(EditorWindow* window);
    [[nodiscard]] bool isShown(const QString& path);
    /// A new window for the split file or folder, which none edits; null, after a message, when it
    /// cannot be opened.
    TakingWindow* showTaking(const QString& path);
    CrossWindow* showCross(const QString& path);
    void openFilm(const QString& path);
    void showMoment(const QString& path, int run, std::size_t split);
    void openRaces(const QStringList& paths, RaceWindow* into);
    [[nodiscard]] RaceWindow* makeRaceWindow();
    /// The window that shows a race; null when none does.
    [[nodiscard]] RaceWindow* windowOfRace(const QString& path) const;
    /// The split files of a folder; told when there are none.
    [[nodiscard]] QStringList racesIn(const QString& folder);
    [[nodiscard]] QStringList notShownAmong(const QStringList& races);
    void openInTool(const QString& path, OpensAs kind);
    /// Takes lists and tracks of other devices into the session in front, or into a new one.
    void openImports(const QStringList& paths);
    void showInAnalyzer(const TakingDocument& document);
    /// The races among files and folders; what is not one is told.
    [[nodiscard]] QStringList racesAmong(const QStringList& paths);
    void rememberSession();
    /// Remembers what is left once a window is gone.
    void rememberWithout(const QWidget* window);
    [[nodiscard]] QWidget* front() const;

    Workspace& m_workspace;
    WheelGuard m_wheelGuard;
    QPointer<HomeWindow> m_home;
    QList<QPointer<RaceWindow>> m_races;
    QList<QPointer<TakingWindow>> m_takings;
    QList<QPointer<CrossWindow>> m_crosses;
    QList<QPointer<EditorWindow>> m_editors;
    QPointer<MotionWindow> m_motion;
    Autosave m_autosave;
};

} // namespace kavela::desktop
