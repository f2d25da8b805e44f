#include "desktop/facts/watched_facts.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

namespace kavela::desktop {

namespace fs = std::filesystem;

namespace {

// Milliseconds.
constexpr int Settle = 200; ///< a program that saves changes a folder several times
constexpr int Regularly = 15'000;
constexpr int Telling = 50;

/// Systems allow so many watches, which other programs want too. The folders tell of files that
/// come, go and are replaced, so that those beyond lose little.
constexpr std::size_t MostWatchedFiles = 2'000;

QString qtPath(const fs::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

fs::path plainPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

std::vector<std::string_view> pathsOf(const FactStore& facts) {
    std::vector<std::string_view> paths;
    for (const FileRow& file : facts.files())
        paths.push_back(facts.text(file.path));
    return paths;
}

} // namespace

/// Written by the threads that read.
struct WatchedFacts::Progress {
    std::atomic<int> done = 0;
    std::atomic<int> total = 0;
    int told = -1; ///< of `done`; of the interface alone
};

WatchedFacts::WatchedFacts(QObject* parent, fs::path cacheFolder)
    : QObject(parent), m_cacheFolder(std::move(cacheFolder)) {
    m_settled.setSingleShot(true);
    m_settled.setInterval(Settle);
    m_regular.setInterval(Regularly);
    m_told.setInterval(Telling);
    connect(&m_settled, &QTimer::timeout, this, [this] { start(false); });
    connect(&m_regular, &QTimer::timeout, this, [this] { start(false); });
    connect(&m_told, &QTimer::timeout, this, &WatchedFacts::tellProgress);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settled,
            qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settled, qOverload<>(&QTimer::start));
}

WatchedFacts::~WatchedFacts() {
    m_stop.request_stop();
}

void WatchedFacts::setPaths(const QStringList& paths) {
    stop();
    unwatch();
    m_paths = paths;
    start(true);
}

void WatchedFacts::cancel() {
    if (m_isReading)
        m_stop.request_stop();
}

void WatchedFacts::readAgain() {
    stop();
    start(true);
}

/// What runs comes to nothing.
void WatchedFacts::stop() {
    m_stop.request_stop();
    m_settled.stop();
    m_isRunning = false;
}

void WatchedFacts::start(bool isAskedFor) {
    if (m_isRunning) {
        m_isStale = true;
        return;
    }
    m_isRunning = true;
    m_isStale = false;
    m_stop = std::stop_source();
    m_progress = std::make_shared<Progress>();
    ScanOptions options;
    options.cacheFolder = m_cacheFolder;
    options.stop = m_stop.get_token();
    options.progress = [progress = m_progress](std::size_t done, std::size_t total) {
        progress->total = static_cast<int>(total);
        progress->done = static_cast<int>(done);
    };
    std::vector<fs::path> paths;
    std::ranges::transform(m_paths, std::back_inserter(paths), plainPath);
    const int reading = ++m_reading;
    m_work.run([paths, options] { return std::make_shared<FolderScan>(scanPaths(paths, options)); },
               [this, reading](const std::shared_ptr<FolderScan>& scan) { take(*scan, reading); },
               {.failed = [this, reading](const std::exception_ptr& fault) {
                   FolderScan nothing;
                   nothing.failed.push_back({plainPath(m_paths.value(0)), messageOf(fault)});
                   take(nothing, reading);
               }});
    m_told.start();
    if (isAskedFor)
        setReading(true);
}

void WatchedFacts::take(FolderScan& scan, int reading) {
    if (reading != m_reading || !m_isRunning)
        return; // another one has taken its place
    tellProgress();
    m_told.stop();
    m_isRunning = false;
    const bool isTold = m_isReading || isChanged(scan);
    m_isIncomplete = scan.isCancelled;
    bool isUnsure = m_isStale;
    if (scan.isCancelled)
        unwatch();
    else
        isUnsure = watch(scan) || isUnsure;
    m_failed = std::move(scan.failed);
    m_copies = std::move(scan.copies);
    m_hashes = std::move(scan.hashes);
    if (isTold)
        m_facts = std::make_shared<const FactStore>(std::move(scan.facts));
    if (isUnsure && !scan.isCancelled)
        m_settled.start();
    setReading(false);
    if (isTold)
        emit changed();
}

bool WatchedFacts::isChanged(const FolderScan& scan) const {
    const auto same = [](const ScanFault& a, const ScanFault& b) {
        return a.path == b.path && a.reason == b.reason;
    };
    return scan.hashes != m_hashes || scan.copies.size() != m_copies.size() ||
           pathsOf(scan.facts) != pathsOf(*m_facts) ||
           !std::ranges::equal(scan.failed, m_failed, same);
}

/// Watches what was found. True when that is more than was watched before: it may have changed
/// between reading and watching.
bool WatchedFacts::watch(const FolderScan& scan) {
    std::set<QString> wanted;
    for (const fs::path& folder : scan.folders)
        wanted.insert(qtPath(folder));
    // A file that is replaced, or comes again, is told by its folder alone.
    for (const QString& path : m_paths)
        if (!wanted.contains(path))
            wanted.insert(qtPath(plainPath(path).parent_path()));
    wanted.erase(QString());
    std::size_t left = MostWatchedFiles;
    for (const std::string_view path : pathsOf(scan.facts))
        if (left > 0 && wanted.insert(qtPath(path)).second)
            --left;
    for (const ScanFault& fault : scan.failed)
        wanted.insert(qtPath(fault.path));
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList gone;
    for (const QString& path : watched)
        if (wanted.erase(path) == 0)
            gone.append(path);
    if (!gone.isEmpty())
        m_watcher.removePaths(gone);
    const QStringList added(wanted.begin(), wanted.end());
    const QStringList refused = added.isEmpty() ? QStringList() : m_watcher.addPaths(added);
    const bool isAllWatched = refused.isEmpty() && left > 0;
    isAllWatched ? m_regular.stop() : m_regular.start();
    return refused.size() < added.size();
}

void WatchedFacts::unwatch() {
    m_regular.stop();
    m_settled.stop();
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
}

void WatchedFacts::setReading(bool isReading) {
    if (m_isReading == isReading)
        return;
    m_isReading = isReading;
    emit readingChanged();
}

void WatchedFacts::tellProgress() {
    if (const int done = m_progress->done;
        std::exchange(m_progress->told, done) != done && done > 0)
        emit progressed(done, m_progress->total);
}

} // namespace kavela::desktop
