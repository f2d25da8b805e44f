#include "desktop/analysis_windows.h"

#include "desktop/desktop.h"
#include "desktop/find/find_window.h"
#include "desktop/losses/losses_window.h"
#include "desktop/penalties/penalties_window.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/race/read_race.h"
#include "desktop/season/season_window.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/tables/tables_window.h"

#include <QEventLoopLocker>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

AnalysisWindows::AnalysisWindows(Desktop& program, Workspace& workspace, const Autosave& autosave)
    : m_program(program), m_workspace(workspace), m_autosave(autosave) {}

RaceWindow* AnalysisWindows::makeRaceWindow() {
    auto* window = new RaceWindow(m_workspace);
    QObject::connect(
        window, &RaceWindow::openRequested, &m_program,
        [this, window](const QStringList& files) { m_program.openAll(files, window); });
    QObject::connect(window, &RaceWindow::takingRequested, &m_program, &Desktop::openTaking);
    QObject::connect(window, &RaceWindow::momentRequested, &m_program, &Desktop::showMoment);
    QObject::connect(window, &RaceWindow::penaltiesRequested, &m_program, &Desktop::openPenalties);
    QObject::connect(window, &RaceWindow::lossesRequested, &m_program, &Desktop::openLosses);
    QObject::connect(window, &RaceWindow::tablesRequested, &m_program,
                     [this](const QString& path) { openTables({path}, {}); });
    QObject::connect(window, &RaceWindow::officialDifferencesRequested, &m_program,
                     &Desktop::openOfficialDifferences);
    QObject::connect(window, &RaceWindow::courseRequested, &m_program, &Desktop::openCourse);
    QObject::connect(window, &RaceWindow::viewsChanged, &m_program, &Desktop::rememberSession);
    return window;
}

RaceWindow* AnalysisWindows::windowOfRace(const QString& path) const {
    for (RaceWindow* const window : m_program.windowsOf<RaceWindow>())
        for (const QString& shown : window->paths())
            if (isSameFile(shown, path))
                return window;
    return nullptr;
}

/// A race that a window shows already comes to the front there.
QStringList AnalysisWindows::notShownAmong(const QStringList& races) {
    QStringList others;
    for (const QString& path : races) {
        RaceWindow* const window = windowOfRace(path);
        if (!window) {
            others.append(path);
            continue;
        }
        (void)window->open(path); // shows it
        bringToFront(*window);
    }
    return others;
}

bool AnalysisWindows::isBeingRead(const QString& race) const {
    return std::ranges::any_of(racesBeingRead(),
                               [&](const OpenFile& file) { return isSameFile(file.path, race); });
}

QList<OpenFile> AnalysisWindows::racesBeingRead() const {
    QList<OpenFile> files;
    for (const QStringList& races : m_reading)
        for (const QString& race : races)
            files.append({"race", race});
    return files;
}

void AnalysisWindows::openRaces(const QStringList& races, RaceWindow* into,
                                const std::shared_ptr<const HeldDocuments>& held) {
    QStringList paths = notShownAmong(races);
    paths.removeIf([this](const QString& path) { return isBeingRead(path); });
    if (paths.isEmpty())
        return;
    const int number = ++m_lastReading;
    m_reading.insert(number, paths);
    const auto isLater = std::make_shared<bool>(false);
    m_work.runAwaited(
        [paths, held, clock = m_workspace.clock()] {
            std::vector<std::shared_ptr<ReadRace>> read;
            for (const QString& path : paths)
                read.push_back(readRace(path, clock));
            return read;
        },
        [this, number, isLater, into = QPointer(into),
         running = std::make_shared<QEventLoopLocker>()](
            const std::vector<std::shared_ptr<ReadRace>>& read) {
            m_reading.remove(number);
            const QList<ToolWindow*> before = m_program.windows();
            const bool isThere = into && !(*isLater && into->isHidden()); // it may have closed
            showRead(read, isThere ? into : nullptr);
            if (*isLater)
                m_program.noteOpened(before);
        });
    *isLater = true;
}

/// One that a window shows since it began to be read is not shown a second time.
void AnalysisWindows::showRead(const std::vector<std::shared_ptr<ReadRace>>& races,
                               RaceWindow* into) {
    RaceWindow* window = into;
    for (const auto& race : races) {
        if (notShownAmong({race->path}).isEmpty())
            continue;
        if (!window)
            window = makeRaceWindow();
        if (!window->openRead(*race))
            m_workspace.forgetRecentFile(race->path);
    }
    if (!window)
        return;
    if (window->views().empty())
        delete window;
    else if (into)
        m_program.rememberSession();
    else
        m_program.show(window);
}

void AnalysisWindows::openFind(const QStringList& paths) {
    FindWindow* window = m_program.windowsOf<FindWindow>().value(0);
    if (!window) {
        window = new FindWindow(m_workspace);
        QObject::connect(window, &FindWindow::pathsChanged, &m_program, &Desktop::rememberSession);
        QObject::connect(window, &FindWindow::lossesRequested, &m_program,
                         [this](const QString& path, std::size_t run) { openLosses({path}, run); });
        m_program.show(window);
    }
    bringToFront(*window);
    window->searchAlso(paths);
}

void AnalysisWindows::openPenalties(const QStringList& paths) {
    if (paths.isEmpty())
        return;
    for (PenaltiesWindow* const window : m_program.windowsOf<PenaltiesWindow>())
        if (window->paths() == paths) {
            bringToFront(*window);
            return;
        }
    auto* window = new PenaltiesWindow(m_workspace);
    window->setPaths(paths);
    QObject::connect(window, &PenaltiesWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    m_program.show(window);
}

TablesWindow& AnalysisWindows::emptyTablesWindow() {
    for (TablesWindow* const window : m_program.windowsOf<TablesWindow>())
        if (window->isEmpty()) {
            bringToFront(*window);
            return *window;
        }
    auto* const window = new TablesWindow(m_workspace, m_autosave);
    m_program.show(window);
    return *window;
}

void AnalysisWindows::connectTables(TablesWindow& window) {
    QObject::connect(&window, &TablesWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    QObject::connect(&window, &TablesWindow::listsRequested, &m_program,
                     [this](const QStringList& paths) { openTables(paths, {}); });
    QObject::connect(&window, &TablesWindow::clipboardRequested, &m_program,
                     [this] { emptyTablesWindow().openClipboard(); });
}

void AnalysisWindows::openTable(const QString& path, const QString& list) {
    for (TablesWindow* const window : m_program.windowsOf<TablesWindow>())
        if (window->shows(path) && (list.isEmpty() || window->shownView() == list)) {
            bringToFront(*window);
            return;
        }
    emptyTablesWindow().openList(path, list.toStdString());
}

void AnalysisWindows::openTables(const QStringList& paths, const QString& list) {
    if (paths.isEmpty())
        (void)emptyTablesWindow();
    for (const QString& path : paths)
        openTable(path, list);
}

LossesWindow& AnalysisWindows::lossesWindow(const QStringList& paths) {
    for (LossesWindow* const window : m_program.windowsOf<LossesWindow>())
        if (window->paths() == paths) {
            bringToFront(*window);
            return *window;
        }
    auto* const window = new LossesWindow(m_workspace);
    QObject::connect(window, &LossesWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    return *window;
}

void AnalysisWindows::openLosses(const QStringList& paths, std::optional<std::size_t> run) {
    if (paths.isEmpty())
        return;
    LossesWindow& window = lossesWindow(paths);
    if (window.paths() != paths || run)
        window.setPaths(paths, run);
    if (!window.isVisible())
        m_program.show(&window);
}

void AnalysisWindows::showLossesAgain(const QStringList& paths, const QString& view) {
    if (paths.isEmpty())
        return;
    auto* const window = new LossesWindow(m_workspace);
    QObject::connect(window, &LossesWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    window->setPaths(paths);
    window->showAgain(view);
    m_program.show(window);
}

void AnalysisWindows::openSeasonLosses(const QStringList& paths, const QString& athlete) {
    if (paths.isEmpty())
        return;
    openLosses(paths, std::nullopt);
    lossesWindow(paths).showSeasonOf(athlete);
}

/// A team does not know where its races are: the answer is remembered.
void AnalysisWindows::askForSeasonLosses(const QString& athlete, const QString& teamFile) {
    constexpr const char* FolderKey = "losses/folder";
    const QString before = m_workspace.remembered(FolderKey).value(0);
    const QString folder = QFileDialog::getExistingDirectory(
        m_program.front(), Desktop::tr("The folder with the races of %1").arg(athlete),
        QFileInfo::exists(before) ? before : QFileInfo(teamFile).absolutePath());
    if (folder.isEmpty())
        return;
    m_workspace.remember(FolderKey, {folder});
    openSeasonLosses({folder}, athlete);
}

SeasonWindow* AnalysisWindows::makeSeasonWindow() {
    auto* const window = new SeasonWindow(m_workspace);
    QObject::connect(window, &SeasonWindow::pathsChanged, &m_program, &Desktop::rememberSession);
    return window;
}

void AnalysisWindows::openSeason(const QStringList& paths) {
    for (SeasonWindow* const window : m_program.windowsOf<SeasonWindow>())
        if (paths.isEmpty() || window->paths().value(0) == paths.value(0)) {
            for (const QString& path : paths)
                (void)window->open(path);
            bringToFront(*window);
            return;
        }
    SeasonWindow* const window = makeSeasonWindow();
    paths.isEmpty() ? window->openRemembered() : window->setPaths(paths);
    m_program.show(window);
}

void AnalysisWindows::openSeasonOf(const QString& athlete, const QString& category,
                                   const QString& teamFile) {
    if (teamFile.isEmpty())
        return;
    SeasonWindow* window = nullptr;
    for (SeasonWindow* const open : m_program.windowsOf<SeasonWindow>())
        if (isSameFile(open->paths().value(0), teamFile))
            window = open;
    if (!window) {
        window = makeSeasonWindow();
        window->setPaths(QStringList(teamFile) +
                         SeasonWindow::rememberedRaces(m_workspace, teamFile));
        m_program.show(window);
    }
    window->showAthlete(athlete, category);
    bringToFront(*window);
}

void AnalysisWindows::showSeasonAgain(const QStringList& paths, const QString& view) {
    if (paths.isEmpty())
        return;
    SeasonWindow* const window = makeSeasonWindow();
    window->setPaths(paths);
    window->showAgain(view);
    m_program.show(window);
}

/// In the window that shows its file already.
void AnalysisWindows::showEdited(const TakingDocument& document) {
    RaceWindow* const shown = windowOfRace(document.path());
    RaceWindow* const window = shown ? shown : makeRaceWindow();
    const auto isIt = [&](const QString& path) { return isSameFile(path, document.path()); };
    const QStringList paths = window->paths();
    const auto known = std::ranges::find_if(paths, isIt);
    window->showRace(document.finished(), known == paths.end() ? document.path() : *known,
                     document.isDirty()
                         ? Desktop::tr("As it is in split taking now. The file does not hold all "
                                       "of it yet.")
                         : QString());
    if (shown)
        m_program.rememberSession();
    else
        m_program.show(window);
    bringToFront(*window);
}

const RaceSet* AnalysisWindows::shownRace(const QString& path) const {
    for (const RaceWindow* const window : m_program.windowsOf<RaceWindow>())
        for (const RaceView* const view : window->views())
            if (view->document().path() == path)
                return &view->document().wholeSet();
    return nullptr;
}

} // namespace kavela::desktop
