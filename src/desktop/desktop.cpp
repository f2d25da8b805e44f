#include "desktop/desktop.h"

#include "common/error.h"
#include "desktop/cross/cross_window.h"
#include "desktop/folder/films_window.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/planning/planning_window.h"
#include "desktop/race/race_window.h"
#include "desktop/share/share_window.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/screen_fit.h"
#include "desktop/shell/settings_window.h"
#include "desktop/tables/tables_window.h"
#include "desktop/taking/taking_window.h"
#include "desktop/team/team_window.h"
#include "desktop/tools.h"
#include "sample/season.h"

#include <QApplication>
#include <QDir>
#include <QEventLoopLocker>
#include <QFileInfo>
#include <QStandardPaths>
#include <QWindow>

#include <algorithm>
#include <memory>

/// The icons stand in a static library, which has to be asked for them. Outside any namespace, as
/// the macro wants it.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace kavela::desktop {

namespace fs = std::filesystem;

QString autosaveFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/autosave";
}

Desktop::Desktop(Workspace& workspace, std::optional<Autosave> autosave)
    : m_workspace(workspace),
      m_autosave(autosave ? std::move(*autosave) : Autosave(autosaveFolder())),
      m_earlierWork(*this, m_workspace, m_autosave),
      m_quitting([this] { return windows(); }, [this] { rememberSession(); }),
      m_choice(*this, m_workspace),
      m_guide(m_workspace),
      m_home(*this, m_workspace, m_choice, m_earlierWork),
      m_plannings(*this, m_workspace, m_autosave),
      m_analysis(*this, m_workspace, m_autosave),
      m_splitFiles(*this, m_workspace, m_autosave, m_analysis),
      m_films(*this, m_workspace, m_autosave, m_splitFiles),
      m_recordings(*this, m_workspace, m_autosave),
      m_updates(m_workspace, update::parsedVersion(QApplication::applicationVersion().toStdString())
                                 .value_or(update::Version())) {
    loadIcons();
    m_workspace.setProgramCommands(
        [program = QPointer(this)] { return program ? program->toolCommands() : Commands(); });
    qApp->installEventFilter(&m_wheelGuard);
    QApplication::setWindowIcon(QIcon(":/icons/kavela.svg"));
    connect(&m_workspace, &Workspace::openRequested, this, &Desktop::openAgain);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &Desktop::noteFront);
}

/// What is still being written is written to its end.
Desktop::~Desktop() {
    m_home.close();
    for (const auto& window : m_windows) {
        if (window)
            window->disconnect(this);
        delete window;
    }
    disk::waitForAll();
}

Commands Desktop::toolCommands() {
    Commands commands;
    for (const ToolKind& tool : toolKinds())
        if (!tool.sentence.isEmpty())
            commands.push_back(
                {tool.title, tr("Tools"), QString(), [this, &tool] { m_choice.choose(tool); }});
    return commands;
}

void Desktop::rememberSession() {
    m_earlierWork.rememberWindows();
    m_home.showKeptWork();
}

/// What is open in an editor comes to the front there: the file itself may be behind its changes.
void Desktop::comeForward(const QStringList& files) {
    const QList<ToolWindow*> before = windows();
    QStringList others;
    for (const QString& path : files)
        if (!raiseEditorOf(path))
            others.append(path);
    if (!others.isEmpty())
        openAll(others);
    for (ToolWindow* const window : windows())
        if (!before.contains(window))
            bringToFront(*window);
    if (!hasWindows() && (files.isEmpty() || !isHomeShown()))
        showHome();
    else if (files.isEmpty() && !windows().isEmpty())
        bringToFront(m_lastFront && m_lastFront->isVisible() ? *m_lastFront : *windows().last());
}

/// While the coach is in another program, no window of this one is active.
void Desktop::noteFront(const QWindow* window) {
    QList<QWidget*> candidates{m_home.window()};
    for (ToolWindow* const open : windows())
        candidates.append(open);
    for (QWidget* const candidate : candidates)
        if (window && candidate && candidate->windowHandle() == window)
            m_lastFront = candidate;
}

QWidget* Desktop::front() const {
    return QApplication::activeWindow() ? QApplication::activeWindow() : m_home.window();
}

void Desktop::openNew(const ToolKind& tool, const QString& path, bool isNamed) {
    ToolWindow* const window = make(tool);
    window->startNew(path);
    if (isNamed)
        window->file()->setNamed();
    show(window);
}

ToolWindow* Desktop::make(const ToolKind& tool) {
    return tool.make(m_workspace, m_autosave);
}

void Desktop::tellEmpty(const QString& folder) {
    m_workspace.showAlert(
        {tr("Nothing to open in “%1”").arg(QDir(folder).dirName()).toStdString(),
         tr("There is no split file (.kvx) and no film in this folder.").toStdString()},
        front());
}

QStringList Desktop::racesAmong(const Recognition::Found& found) {
    QStringList races;
    QStringList recordings;
    QStringList imports;
    for (const Recognition::File& file : found.files) {
        switch (file.as) {
        case OpensAs::Race:
            races.append(file.path);
            break;
        case OpensAs::FolderOfRaces:
            if (file.races.isEmpty())
                tellEmpty(file.path);
            races += file.races;
            break;
        case OpensAs::Recording:
            recordings.append(file.path);
            break;
        case OpensAs::Import:
        case OpensAs::PowerList:
            imports.append(file.path);
            break;
        default:
            openByContent(file, found.held);
        }
    }
    if (!recordings.isEmpty())
        openRecordings(recordings);
    if (!imports.isEmpty())
        m_recordings.openImports(imports);
    return races;
}

/// What has a window of its own; each tells what is wrong with its file.
void Desktop::openByContent(const Recognition::File& file,
                            const std::shared_ptr<const HeldDocuments>& held) {
    if (const ToolKind* const tool = toolFor(file.as)) {
        (void)openIn(*tool, file.path, held);
    } else if (file.as == OpensAs::Film) {
        m_splitFiles.openFilm(file.path, file.splitFile);
    } else {
        m_workspace.showAlert(
            {"", "This feature is not ready yet.\n\nIt will come with a future update."}, front());
    }
}

/// Those whose windows hold several files, or are not of one file.
bool Desktop::openInOneOf(OpensAs kind, const QString& path) {
    switch (kind) {
    case OpensAs::Race:
        openRaces({path});
        return true;
    case OpensAs::Recording:
        openRecordings({path});
        return true;
    case OpensAs::Find:
        openFind({path});
        return true;
    case OpensAs::Films:
        openFilms(path);
        return true;
    case OpensAs::SlitPicture:
        openSlit(path);
        return true;
    case OpensAs::Course:
        openCourse(path);
        return true;
    case OpensAs::Penalties:
        openPenalties({path});
        return true;
    case OpensAs::Losses:
        openLosses({path});
        return true;
    case OpensAs::ResultsList:
        openTables({path});
        return true;
    case OpensAs::Season:
        openSeason({path});
        return true;
    case OpensAs::Share:
        openShare(path);
        return true;
    default:
        return false;
    }
}

bool Desktop::openIn(const ToolKind& tool, const QString& path) {
    return openIn(tool, path, nullptr);
}

bool Desktop::openIn(const ToolKind& tool, const QString& path,
                     const std::shared_ptr<const HeldDocuments>& held) {
    if (tool.opens == OpensAs::FolderOfFilms)
        return openTaking(path) || isOpening();
    if (tool.opens == OpensAs::Cross)
        return openCross(path) || isOpening();
    if (openInOneOf(tool.opens, path))
        return true;
    const QString file = canonicalPath(path);
    if (m_opening.contains(file) || raiseEditorOf(path))
        return true;
    const auto isOpen = std::make_shared<bool>(true);
    readInto(*make(tool), file, {tool.kind, path}, [this, path, isOpen, held](bool answer) {
        *isOpen = answer;
        if (!answer)
            m_workspace.forgetRecentFile(path);
    });
    return *isOpen;
}

void Desktop::readInto(ToolWindow& window, const QString& file, const OpenFile& asked,
                       const std::function<void(bool isOpen)>& opened) {
    m_opening.insert(file, asked);
    m_windows.append(&window);
    const auto isLater = std::make_shared<bool>(false);
    window.openBeside(asked.path, [this, &window, file, opened, isLater,
                                   running = std::make_shared<QEventLoopLocker>()](bool isOpen) {
        m_opening.remove(file);
        const QList<ToolWindow*> before = windows();
        if (isOpen)
            show(&window);
        else
            window.deleteLater(); // it is telling this
        opened(isOpen);
        if (*isLater)
            noteOpened(before);
    });
    *isLater = true;
}

/// Who asked for a window has gone on: it comes to the front by itself. A program without any
/// window could not even be left.
void Desktop::noteOpened(const QList<ToolWindow*>& before) {
    for (ToolWindow* const window : windows())
        if (!before.contains(window))
            bringToFront(*window);
    if (hasWindows() || isHomeShown())
        rememberSession();
    else
        showHome();
}

void Desktop::openAll(const QStringList& paths, RaceWindow* into) {
    QStringList others;
    for (const QString& path : paths)
        if (!m_recognition.isAt(path)) // it is being opened already
            others.append(path);
    if (others.isEmpty())
        return;
    const auto isLater = std::make_shared<bool>(false);
    m_recognition.recognise(
        others, [this, isLater, into = QPointer(into)](const Recognition::Found& found) {
            const QList<ToolWindow*> before = windows();
            openRecognised(found, into);
            if (*isLater)
                noteOpened(before);
        });
    *isLater = true;
}

void Desktop::openRecognised(const Recognition::Found& found, RaceWindow* into) {
    if (const QStringList races = racesAmong(found); !races.isEmpty())
        openRaces(races, into, found.held);
}

void Desktop::connectTool(ToolWindow& window) {
    connect(&window, &ToolWindow::homeRequested, this, &Desktop::showHome);
    connect(&window, &ToolWindow::settingsRequested, this, &Desktop::openSettings);
    connect(&window, &ToolWindow::earlierWorkRequested, this,
            [this] { m_earlierWork.chooseToBringBack(front()); });
    connect(&window, &ToolWindow::placeRequested, this, &Desktop::showPlace);
    connect(&window, &ToolWindow::compareRequested, this, &Desktop::openCompare);
    if (window.file())
        connect(window.file(), &EditedFile::saved, this, &Desktop::rememberSession);
    // Later: while it is being destroyed, it still counts as a window of its kind.
    connect(&window, &QObject::destroyed, this, &Desktop::rememberSession, Qt::QueuedConnection);
}

QList<OpenFile> Desktop::filesBetweenWindows() const {
    QList<OpenFile> files =
        m_quitting.closedFiles() + m_opening.values() + m_analysis.racesBeingRead();
    for (const QString& path : m_recognition.paths())
        files.append({QString(), path});
    return files;
}

/// One that was closed is there until the event loop gets to it, but is open no more.
QList<ToolWindow*> Desktop::windows() const {
    QList<ToolWindow*> open;
    for (const auto& window : m_windows)
        if (window && !window->isHidden())
            open.append(window);
    return open;
}

bool Desktop::raiseEditorOf(const QString& path) {
    for (ToolWindow* const window : windows())
        if (window->file() && isSameFile(window->file()->path(), path)) {
            bringToFront(*window);
            return true;
        }
    return false;
}

/// Those that the analyzer and the films are connected with beforehand hear more.
void Desktop::show(ToolWindow* window) {
    m_quitting.giveUp();
    m_quitting.follow(*window);
    connectTool(*window);
    if (auto* const planning = qobject_cast<PlanningWindow*>(window))
        connect(&planning->online(), &OnlinePlanning::copyRequested, this,
                [this](const QByteArray& content, const QString& name) {
                    m_plannings.showCopy(content, name);
                });
    if (auto* const tables = qobject_cast<TablesWindow*>(window))
        m_analysis.connectTables(*tables);
    if (auto* const team = qobject_cast<TeamWindow*>(window))
        connect(team, &TeamWindow::lossesRequested, this,
                [this](const QString& athlete, const QString& teamFile) {
                    m_analysis.askForSeasonLosses(athlete, teamFile);
                });
    if (auto* const team = qobject_cast<TeamWindow*>(window))
        connect(team, &TeamWindow::seasonRequested, this,
                [this](const QString& athlete, const QString& category, const QString& teamFile) {
                    m_analysis.openSeasonOf(athlete, category, teamFile);
                });
    const bool isConnected = qobject_cast<RaceWindow*>(window) ||
                             qobject_cast<TakingWindow*>(window) ||
                             qobject_cast<CrossWindow*>(window);
    if (!isConnected)
        connect(window, &ToolWindow::openRequested, this,
                [this](const QStringList& paths) { openAll(paths); });
    if (!m_windows.contains(window))
        m_windows.append(window);
    if (!window->isVisible())
        placeBeside(*window, othersLike(*window));
    window->show();
    rememberSession();
}

QList<QWidget*> Desktop::othersLike(const ToolWindow& window) const {
    QList<QWidget*> others;
    for (ToolWindow* const other : windows())
        if (other != &window && other->kind() == window.kind())
            others.append(other);
    return others;
}

void Desktop::openShare(const QString& folder) {
    ShareWindow* window = windowsOf<ShareWindow>().value(0);
    if (!window) {
        window = new ShareWindow(m_workspace);
        connect(window, &ShareWindow::pathsChanged, this, &Desktop::rememberSession);
        show(window);
    }
    if (!folder.isEmpty())
        (void)window->open(folder);
    bringToFront(*window);
}

/// A folder among the recent files comes back in the tool that it was opened in: by what it holds
/// it would be timed.
void Desktop::openAgain(const QString& path) {
    if (FilmsWindow::recentFolders(m_workspace).contains(path))
        openFilms(path);
    else
        open(path);
}

void Desktop::showPlace(const Place& place) {
    const QFileInfo file(QString::fromStdString(place.file.string()));
    if (!file.exists()) {
        m_workspace.showAlert({tr("“%1” is not where it was").arg(file.fileName()).toStdString(),
                               tr("It was in %1. Open it from where it is now, then ask again.")
                                   .arg(QDir::toNativeSeparators(file.absolutePath()))
                                   .toStdString()},
                              front());
        return;
    }
    m_recognition.recognise({file.filePath()}, [this, place](const Recognition::Found& found) {
        if (found.files.front().as == OpensAs::Race)
            m_splitFiles.showPlace(place);
        else
            openRecognised(found, nullptr);
    });
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
