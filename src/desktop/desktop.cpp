#include "desktop/desktop.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/cross/cross_window.h"
#include "desktop/motion/motion_window.h"
#include "desktop/opened_as.h"
#include "desktop/planning/planning_window.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/editor_window.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/settings_window.h"
#include "desktop/taking/taking_window.h"
#include "sample/season.h"
#include "splitdata/loader.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

/// The icons stand in a static library, which has to be asked for them. Outside any namespace, as
/// the macro wants it.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace kavela::desktop {

namespace {

namespace fs = std::filesystem;

constexpr const char* SessionKey = "openFiles";
constexpr const char* TakingSessionKey = "openTakings";
constexpr const char* CrossSessionKey = "openCrosses";
constexpr const char* EditorSessionKey = "openEditors";

/// Files a folder may hold before a coach is unlikely to want a tab for each.
constexpr int MostRacesOfAFolder = 24;

QIcon icon(const char* name) {
    return QIcon(QString(":/icons/%1.svg").arg(name));
}

/// The split files of a folder in the order of their names.
QStringList splitFilesIn(const QString& folder) {
    QStringList files;
    for (const QFileInfo& file : QDir(folder).entryInfoList({"*.kvx"}, QDir::Files, QDir::Name))
        files.append(file.filePath());
    return files.mid(0, MostRacesOfAFolder);
}

QString autosaveFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/autosave";
}

/// Writes what of the sample season is not there yet.
void writeSampleSeason(const fs::path& folder) {
    for (const SampleFile& file : sampleSeason()) {
        const fs::path target = folder / file.name;
        if (fs::exists(target))
            continue;
        std::error_code error;
        fs::create_directories(target.parent_path(), error);
        if (error)
            throw FileError(target.parent_path(), error.message());
        writeFileSafely(target, file.content);
    }
}

} // namespace

Desktop::Desktop(Workspace& workspace, std::optional<Autosave> autosave)
    : m_workspace(workspace),
      m_autosave(autosave ? std::move(*autosave) : Autosave(autosaveFolder())) {
    loadIcons();
    qApp->installEventFilter(&m_wheelGuard);
    QApplication::setWindowIcon(icon("kavela"));
    connect(&m_workspace, &Workspace::openRequested, this, &Desktop::open);
}

Desktop::~Desktop() {
    delete m_home;
    if (m_motion)
        m_motion->disconnect(this);
    delete m_motion;
    for (const auto& editor : m_editors) {
        if (editor)
            editor->disconnect(this);
        delete editor;
    }
    for (const auto& cross : m_crosses) {
        if (cross)
            cross->disconnect(this);
        delete cross;
    }
    for (const auto& taking : m_takings) {
        if (taking)
            taking->disconnect(this);
        delete taking;
    }
    for (const auto& race : m_races) {
        if (race)
            race->disconnect(this);
        delete race;
    }
}

void Desktop::showHome() {
    if (!m_home) {
        const Tools tools{
            {tr("Race analyzer"), tr("Every split of a race side by side, coloured by rank."),
             icon("race"), [this] { chooseRace(); }},
            {tr("Split taking"), tr("Time every run from its video, exact to the frame."),
             icon("taking"), [this] { chooseFilms(); }},
            {tr("Kayak cross"), tr("Time trials, heats and attacks of a cross race, from video."),
             icon("cross"), [this] { chooseCross(); }},
            {tr("Team"), tr("Results of every athlete, season by season, and their category."),
             icon("team"), [this] { chooseTeam(); }},
            {tr("Selection races"), tr("Who is selected, by which results, and why."),
             icon("selection"), [this] { chooseSelection(); }},
            {tr("Planning"), tr("Seasons, weeks and sessions, heart, gym and goals of a group."),
             icon("planning"), [this] { choosePlanning(); }},
            {tr("Tests"), tr("Lap, sprint and eight tests on the water, compared."),
             icon("watertests"), [this] { chooseTests(); }},
            {tr("Boat motion"), tr("Recordings of phone and watch over each other, and converted."),
             icon("motion"), [this] { chooseRecordings(); }},
            {tr("Sessions"),
             tr("Strokes, turns and segments of a recording, on a map and replayed."),
             icon("sessions"), [this] { chooseSession(); }}};
        m_home = new HomeWindow(m_workspace, tools);
        m_home->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_home, &HomeWindow::settingsRequested, this, &Desktop::openSettings);
        connect(m_home, &HomeWindow::sampleRequested, this, &Desktop::openSampleSeason);
        connect(m_home, &HomeWindow::filesRequested, this,
                [this](const QStringList& files) { openAll(files); });
    }
    m_home->show();
    m_home->raise();
    m_home->activateWindow();
}

QWidget* Desktop::front() const {
    return QApplication::activeWindow() ? QApplication::activeWindow() : m_home;
}

void Desktop::chooseRace() {
    openAll(QFileDialog::getOpenFileNames(front(), tr("Open races"), QString(),
                                          tr("Split files (*.kvx);;All files (*)")));
}

QStringList Desktop::racesIn(const QString& folder) {
    const QStringList races = splitFilesIn(folder);
    if (races.isEmpty())
        m_workspace.showAlert(
            {tr("Nothing to open in “%1”").arg(QDir(folder).dirName()).toStdString(),
             tr("There is no split file (.kvx) and no film in this folder.").toStdString()},
            front());
    return races;
}

QStringList Desktop::racesAmong(const QStringList& paths) {
    QStringList races;
    QStringList recordings;
    QStringList imports;
    for (const QString& path : paths) {
        switch (const OpensAs kind = opensAs(path)) {
        case OpensAs::Race:
            races.append(path);
            break;
        case OpensAs::FolderOfRaces:
            races += racesIn(path);
            break;
        case OpensAs::Recording:
            recordings.append(path);
            break;
        case OpensAs::Import:
        case OpensAs::PowerList:
            imports.append(path);
            break;
        default:
            openInTool(path, kind);
        }
    }
    if (!recordings.isEmpty())
        openRecordings(recordings);
    if (!imports.isEmpty())
        openImports(imports);
    return races;
}

/// What has a window of its own; each tells what is wrong with its file.
void Desktop::openInTool(const QString& path, OpensAs kind) {
    switch (kind) {
    case OpensAs::FolderOfFilms:
        (void)openTaking(path);
        return;
    case OpensAs::Film:
        openFilm(path);
        return;
    case OpensAs::Cross:
        (void)openCross(path);
        return;
    case OpensAs::Selection:
        (void)openSelection(path);
        return;
    case OpensAs::Team:
        (void)openTeam(path);
        return;
    case OpensAs::Planning:
        (void)openPlanning(path);
        return;
    case OpensAs::Tests:
        (void)openTests(path);
        return;
    case OpensAs::Session:
        (void)openSession(path);
        return;
    case OpensAs::TestSession:
        (void)openTestSession(path);
        return;
    case OpensAs::ResultsList:
        m_workspace.showAlert(
            {tr("“%1” is a list of official results").arg(QFileInfo(path).fileName()).toStdString(),
             tr("It is taken into a race: open the race in split taking, then File > Import "
                "official results.")
                 .toStdString()},
            front());
        return;
    default:
        m_workspace.showAlert(
            {"", "This feature is not ready yet.\n\nIt will come with a future update."}, front());
    }
}

void Desktop::openAll(const QStringList& paths, RaceWindow* into) {
    if (const QStringList races = racesAmong(paths); !races.isEmpty())
        openRaces(races, into);
}

RaceWindow* Desktop::makeRaceWindow() {
    auto* window = new RaceWindow(m_workspace);
    connect(window, &RaceWindow::homeRequested, this, &Desktop::showHome);
    connect(window, &RaceWindow::settingsRequested, this, &Desktop::openSettings);
    connect(window, &RaceWindow::filesRequested, this,
            [this, window](const QStringList& files) { openAll(files, window); });
    connect(window, &RaceWindow::takingRequested, this, &Desktop::openTaking);
    connect(window, &RaceWindow::momentRequested, this, &Desktop::showMoment);
    connect(window, &RaceWindow::viewsChanged, this, &Desktop::rememberSession);
    rememberWithout(window);
    return window;
}

RaceWindow* Desktop::windowOfRace(const QString& path) const {
    const QString wanted = canonicalPath(path);
    for (RaceWindow* const window : raceWindows())
        for (const QString& shown : window->paths())
            if (canonicalPath(shown) == wanted)
                return window;
    return nullptr;
}

/// A race that a window shows already comes to the front there.
QStringList Desktop::notShownAmong(const QStringList& races) {
    QStringList others;
    for (const QString& path : races) {
        RaceWindow* const window = windowOfRace(path);
        if (!window) {
            others.append(path);
            continue;
        }
        for (const QString& shown : window->paths())
            if (canonicalPath(shown) == canonicalPath(path))
                (void)window->open(shown); // shows it
        window->raise();
        window->activateWindow();
    }
    return others;
}

void Desktop::openRaces(const QStringList& races, RaceWindow* into) {
    const QStringList paths = notShownAmong(races);
    if (paths.isEmpty())
        return;
    RaceWindow* const window = into ? into : makeRaceWindow();
    for (const QString& path : paths)
        if (!window->open(path))
            m_workspace.forgetRecentFile(path);
    if (window->views().empty()) {
        delete window;
        return;
    }
    if (!into)
        m_races.append(window);
    window->show();
    rememberSession();
}

/// The last window's closing leaves the program: what it showed is what the next start shows.
void Desktop::rememberSession() {
    QStringList files;
    for (const RaceWindow* window : raceWindows())
        files += window->paths();
    QStringList taken;
    for (TakingWindow* window : takingWindows())
        taken.append(window->document().path());
    QStringList crossed;
    for (CrossWindow* window : crossWindows())
        crossed.append(window->document().path());
    QStringList edited;
    for (const EditorWindow* window : editorWindows())
        edited.append(window->file().path());
    if (m_motion)
        edited += m_motion->paths();
    const bool isHome = m_home && m_home->isVisible();
    if (files.isEmpty() && taken.isEmpty() && crossed.isEmpty() && edited.isEmpty() && !isHome)
        return;
    m_workspace.remember(SessionKey, files);
    m_workspace.remember(TakingSessionKey, taken);
    m_workspace.remember(CrossSessionKey, crossed);
    m_workspace.remember(EditorSessionKey, edited);
}

void Desktop::rememberWithout(const QWidget* window) {
    // Later: while it is being destroyed, it still counts as a window of its kind.
    connect(window, &QObject::destroyed, this, &Desktop::rememberSession, Qt::QueuedConnection);
}

bool Desktop::hasWindows() const {
    return !raceWindows().isEmpty() || !takingWindows().isEmpty() || !crossWindows().isEmpty() ||
           !editorWindows().isEmpty() || m_motion;
}

bool Desktop::restoreSession() {
    const auto remembered = [this](const char* key) {
        QStringList files = m_workspace.remembered(key);
        files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
        return files;
    };
    // All are read first: what is opened is remembered at once in their place.
    const QStringList files = remembered(SessionKey);
    const QStringList taken = remembered(TakingSessionKey);
    const QStringList crossed = remembered(CrossSessionKey);
    const QStringList edited = remembered(EditorSessionKey);
    if (!files.isEmpty())
        openRaces(files, nullptr);
    for (const QString& file : taken)
        (void)openTaking(file);
    for (const QString& file : crossed)
        (void)openCross(file);
    if (!edited.isEmpty())
        openAll(edited);
    return hasWindows();
}

QList<RaceWindow*> Desktop::raceWindows() const {
    QList<RaceWindow*> open;
    for (const auto& race : m_races)
        if (race)
            open.append(race);
    return open;
}

bool Desktop::isShown(const QString& path) {
    for (EditorWindow* window : editorWindows())
        if (window->file().path() == QFileInfo(path).absoluteFilePath()) {
            window->raise();
            window->activateWindow();
            return true;
        }
    return false;
}

void Desktop::show(EditorWindow* window) {
    connect(window, &EditorWindow::homeRequested, this, &Desktop::showHome);
    connect(window, &EditorWindow::settingsRequested, this, &Desktop::openSettings);
    connect(window, &EditorWindow::openRequested, this,
            [this](const QStringList& paths) { openAll(paths); });
    connect(&window->file(), &EditedFile::saved, this, &Desktop::rememberSession);
    if (auto* const planning = qobject_cast<PlanningWindow*>(window))
        connect(planning, &PlanningWindow::copyRequested, this, &Desktop::showPlanningCopy);
    rememberWithout(window);
    m_editors.append(window);
    window->show();
    rememberSession();
}

QList<EditorWindow*> Desktop::editorWindows() const {
    QList<EditorWindow*> open;
    for (const auto& editor : m_editors)
        if (editor)
            open.append(editor);
    return open;
}

void Desktop::offerRecovery() {
    const QStringList crossed = m_workspace.remembered(CrossSessionKey);
    for (const Autosave::Found& found : m_autosave.all()) {
        const QFileInfo file(found.path);
        if (file.suffix() != "kvx")
            openAll({found.path});
        else if (crossed.contains(found.path) && (file.exists() || file.dir().exists()))
            (void)openCross(file.exists() ? found.path : file.path());
        else if (file.exists() || file.dir().exists())
            (void)openTaking(file.exists() ? found.path : file.path());
    }
}

void Desktop::openSettings() {
    SettingsWindow(m_workspace, front()).exec();
}

void Desktop::openSampleSeason() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const fs::path folder = fs::path(documents.toStdString()) / "Kavela sample season";
    try {
        writeSampleSeason(folder);
    } catch (const FileError& error) {
        m_workspace.log()("Failed to create file");
        m_workspace.showAlert({"Failed to create file", error.what()}, front());
        return;
    }
    open(QString::fromStdString((folder / "races" / "riverside_cup.kvx").string()));
}

} // namespace kavela::desktop
