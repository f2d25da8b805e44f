#include "desktop/desktop.h"

#include "app/file_facts.h"
#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/settings_window.h"
#include "sample/season.h"
#include "splitdata/loader.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

/// The icons stand in a static library, which has to be asked for them. Outside any namespace, as
/// the macro wants it.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace kavela::desktop {

namespace {

namespace fs = std::filesystem;

/// Files a folder may hold before a coach is unlikely to want a window for each.
constexpr int MostWindowsAtOnce = 12;

QIcon icon(const char* name) {
    return QIcon(QString(":/icons/%1.svg").arg(name));
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

Desktop::Desktop(Workspace& workspace) : m_workspace(workspace) {
    loadIcons();
    QApplication::setWindowIcon(icon("kavela"));
    connect(&m_workspace, &Workspace::openRequested, this, &Desktop::open);
}

Desktop::~Desktop() {
    delete m_home;
    for (const auto& race : m_races)
        delete race;
}

void Desktop::showHome() {
    if (!m_home) {
        const Tools tools{{tr("Race analyzer"),
                           tr("Every split of a race side by side, coloured by rank."),
                           icon("race"), [this] { chooseRace(); }}};
        m_home = new HomeWindow(m_workspace, tools);
        m_home->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_home, &HomeWindow::settingsRequested, this, &Desktop::openSettings);
        connect(m_home, &HomeWindow::sampleRequested, this, &Desktop::openSampleSeason);
    }
    m_home->show();
    m_home->raise();
    m_home->activateWindow();
}

QWidget* Desktop::front() const {
    return QApplication::activeWindow() ? QApplication::activeWindow() : m_home;
}

void Desktop::chooseRace() {
    const QStringList files = QFileDialog::getOpenFileNames(
        front(), tr("Open races"), QString(), tr("Split files (*.kvx);;All files (*)"));
    for (const QString& file : files)
        open(file);
}

void Desktop::open(const QString& path) {
    if (QFileInfo(path).isDir()) {
        QDirIterator files(path, {"*.kvx"}, QDir::Files);
        for (int opened = 0; files.hasNext() && opened < MostWindowsAtOnce; ++opened)
            openRace(files.next());
        return;
    }
    const FileFacts facts = factsOf(path.toStdString());
    if (facts.error || facts.kind == "split file") {
        openRace(path); // the reader says what is wrong
        return;
    }
    m_workspace.showAlert(
        {"", "This feature is not ready yet.\n\nIt will come with a future update."}, front());
}

void Desktop::openRace(const QString& path) {
    auto* window = new RaceWindow(m_workspace);
    if (!window->open(path)) {
        delete window;
        m_workspace.forgetRecentFile(path);
        return;
    }
    connect(window, &RaceWindow::homeRequested, this, &Desktop::showHome);
    connect(window, &RaceWindow::settingsRequested, this, &Desktop::openSettings);
    m_races.append(window);
    window->show();
}

QList<RaceWindow*> Desktop::raceWindows() const {
    QList<RaceWindow*> open;
    for (const auto& race : m_races)
        if (race)
            open.append(race);
    return open;
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
