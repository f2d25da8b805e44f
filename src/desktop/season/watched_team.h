#pragma once

#include "desktop/shell/background_work.h"
#include "results/team_records.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

namespace kavela::desktop {

/// A team file that is only read: beside the window, and again by itself when it changes on the
/// disk. A team that was handed out stays as it was.
class WatchedTeam : public QObject {
    Q_OBJECT

public:
    explicit WatchedTeam(QObject* parent = nullptr);

    /// Reads another file; the team from before is gone at once. Empty for none.
    void setPath(const QString& path);
    [[nodiscard]] const QString& path() const { return m_path; }
    void readAgain();

    /// Null before it is read, and where it never could be.
    [[nodiscard]] const std::shared_ptr<const myTeamToSaveStruct>& team() const { return m_team; }
    /// Why the file could not be read the last time; the team from before is still there then.
    [[nodiscard]] const QString& fault() const { return m_fault; }
    [[nodiscard]] bool isReading() const { return m_isReading; }

signals:
    /// The team, or why there is none, is another.
    void changed();

private:
    void read();
    void watch();

    QString m_path;
    std::shared_ptr<const myTeamToSaveStruct> m_team;
    QString m_fault;
    QFileSystemWatcher m_watcher;
    QTimer m_settled;  ///< after a change has been noticed
    int m_reading = 0; ///< number of the latest one
    bool m_isReading = false;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
