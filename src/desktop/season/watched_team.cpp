#include "desktop/season/watched_team.h"

#include "common/json_encode.h"
#include "desktop/shell/qt_text.h"
#include "results/team_file.h"

#include <QFileInfo>

#include <string>

namespace kavela::desktop {

namespace {

constexpr int SettledAfterMilliseconds = 200; ///< a program that saves changes a file several times

using SharedTeam = std::shared_ptr<const myTeamToSaveStruct>;

/// The team from before where the file still holds the same.
SharedTeam readUnlessSame(const std::string& path, const SharedTeam& before) {
    auto team = std::make_shared<const myTeamToSaveStruct>(readTeamFile(path));
    return before && encode(*before) == encode(*team) ? before : team;
}

} // namespace

WatchedTeam::WatchedTeam(QObject* parent) : QObject(parent) {
    m_settled.setSingleShot(true);
    m_settled.setInterval(SettledAfterMilliseconds);
    connect(&m_settled, &QTimer::timeout, this, &WatchedTeam::read);
    // A file that is replaced is told by its folder alone.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] { m_settled.start(); });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_settled.start(); });
}

void WatchedTeam::setPath(const QString& path) {
    m_path = path;
    m_team.reset();
    m_fault.clear();
    readAgain();
}

void WatchedTeam::readAgain() {
    m_settled.stop();
    watch();
    read();
}

void WatchedTeam::watch() {
    if (const QStringList before = m_watcher.files() + m_watcher.directories(); !before.isEmpty())
        m_watcher.removePaths(before);
    if (!m_path.isEmpty())
        m_watcher.addPaths({m_path, QFileInfo(m_path).absolutePath()});
}

/// Other files of the folder tell of changes, too: what is read and is the same changes nothing.
void WatchedTeam::read() {
    const int reading = ++m_reading;
    m_isReading = !m_path.isEmpty();
    if (!m_isReading)
        return;
    if (!m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path); // it was replaced: the watch went with the file from before
    m_work.run(
        [path = m_path.toStdString(), before = m_team] { return readUnlessSame(path, before); },
        [this, reading](const SharedTeam& team) {
            if (reading != m_reading)
                return;
            m_isReading = false;
            if (team == m_team && m_fault.isEmpty())
                return;
            m_team = team;
            m_fault.clear();
            emit changed();
        },
        {.failed = [this, reading](const std::exception_ptr& fault) {
            if (reading != m_reading)
                return;
            m_isReading = false;
            m_fault = qtText(causeOf(fault));
            emit changed();
        }});
}

} // namespace kavela::desktop
