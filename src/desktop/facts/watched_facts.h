#pragma once

#include "desktop/shell/background_work.h"
#include "facts/folder_scan.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stop_token>
#include <vector>

namespace kavela::desktop {

/// The facts of split files and of folders with all below them. They are read beside the window,
/// and what changes on the disk is read again by itself, as long as this object is there. Facts
/// that were handed out stay as they were.
class WatchedFacts : public QObject {
    Q_OBJECT

public:
    /// What was read is kept in the folder for the next time; nothing is where it is empty.
    explicit WatchedFacts(QObject* parent = nullptr,
                          std::filesystem::path cacheFolder = userCacheFolder());
    ~WatchedFacts() override;

    /// Reads what the paths mean, in place of those from before, whose reading ends. The facts from
    /// before are there until that is done.
    void setPaths(const QStringList& paths);
    [[nodiscard]] const QStringList& paths() const { return m_paths; }

    /// Never null; without a file before the first reading has come to its end.
    [[nodiscard]] std::shared_ptr<const FactStore> facts() const { return m_facts; }
    /// What could not be read, and why.
    [[nodiscard]] const std::vector<ScanFault>& failed() const { return m_failed; }
    /// Files that do not count, since another one has the same content.
    [[nodiscard]] const std::vector<ScanCopy>& copies() const { return m_copies; }
    [[nodiscard]] bool isReading() const { return m_isReading; }
    /// The last reading was cancelled: the facts are those of the files that it came to.
    [[nodiscard]] bool isIncomplete() const { return m_isIncomplete; }

    /// Ends the reading soon; changed() tells what was read by then. Nothing is watched until
    /// setPaths() or readAgain().
    void cancel();
    /// Looks at all paths once more and reads what changed.
    void readAgain();

signals:
    /// The facts, what failed, or both are others; also after every reading that was asked for.
    void changed();
    /// isReading() is another.
    void readingChanged();
    /// So many files have been read of those that have to be.
    void progressed(int read, int of);

private:
    struct Progress;

    void start(bool isAskedFor);
    void stop();
    void take(FolderScan& scan, int reading);
    [[nodiscard]] bool isChanged(const FolderScan& scan) const;
    [[nodiscard]] bool watch(const FolderScan& scan);
    void unwatch();
    void setReading(bool isReading);
    void tellProgress();

    std::filesystem::path m_cacheFolder;
    QStringList m_paths;
    std::shared_ptr<const FactStore> m_facts = std::make_shared<const FactStore>();
    std::vector<std::uint64_t> m_hashes; ///< of the contents of its files
    std::vector<ScanFault> m_failed;
    std::vector<ScanCopy> m_copies;
    QFileSystemWatcher m_watcher;
    QTimer m_settled; ///< after a change has been noticed
    QTimer m_regular; ///< where not everything can be watched
    QTimer m_told;    ///< when progress is told next
    std::shared_ptr<Progress> m_progress;
    std::stop_source m_stop;
    int m_reading = 0; ///< number of the latest one
    bool m_isRunning = false;
    bool m_isReading = false; ///< one that was asked for, and no mere look at what changed
    bool m_isStale = false;   ///< something changed while it was read
    bool m_isIncomplete = false;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
