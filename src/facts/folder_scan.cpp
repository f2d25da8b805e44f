#include "facts/folder_scan.h"

#include "common/error.h"
#include "common/parallel.h"
#include "facts/content_hash.h"
#include "facts/fact_transfer.h"
#include "facts/split_file_reading.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

namespace kavela {

namespace fs = std::filesystem;

namespace {

/// Some disks keep the moment of a change to two seconds only.
constexpr std::int64_t Unsettled = 2'000'000'000;

std::int64_t nanosecondsNow() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

/// What the cache of a folder knew of its files, to be asked by path and by size.
class Known {
public:
    explicit Known(const FactCache& cache) : m_cache(cache) {
        std::size_t row = 0;
        for (std::size_t i = 0; i < cache.files.size(); ++i) {
            const KnownFile& file = cache.files[i];
            const bool isSplitFile = file.kind == KnownFile::Kind::SplitFile;
            m_rows.push_back(isSplitFile ? row++ : NoRow);
            m_byPath.emplace(file.path, i);
            if (isSplitFile)
                m_bySize.emplace(file.stamp.size, i);
        }
    }

    /// The entry of a file that is still as it was; nothing for any other.
    [[nodiscard]] std::optional<std::size_t> unchanged(const FoundFile& file) const {
        const auto found = m_byPath.find(file.path);
        if (found == m_byPath.end())
            return std::nullopt;
        const KnownFile& known = m_cache.files[found->second];
        const bool isSettled = known.stamp.modified < m_cache.scanned - Unsettled;
        return known.stamp == file.stamp && isSettled ? std::optional(found->second) : std::nullopt;
    }

    /// The entry of a split file with the same content under another name. Throws FileError.
    [[nodiscard]] std::optional<std::size_t> sameContent(const fs::path& path,
                                                         const FoundFile& file) const {
        const auto [begin, end] = m_bySize.equal_range(file.stamp.size);
        if (begin == end || m_byPath.contains(file.path))
            return std::nullopt;
        const std::uint64_t hash = contentHashOf(path);
        const auto same = std::find_if(begin, end, [&](const auto& entry) {
            return m_cache.files[entry.second].hash == hash;
        });
        return same == end ? std::nullopt : std::optional(same->second);
    }

    /// Place among the split files of the cache.
    [[nodiscard]] std::size_t rowOf(std::size_t entry) const { return m_rows[entry]; }

private:
    static constexpr std::size_t NoRow = 0;

    const FactCache& m_cache;
    std::vector<std::size_t> m_rows;
    std::unordered_map<std::string_view, std::size_t> m_byPath;
    std::unordered_multimap<std::uint64_t, std::size_t> m_bySize;
};

/// Brings what is known of one folder up to date.
class FolderUpdate {
public:
    FolderUpdate(fs::path root, FactCache before, std::vector<FoundFile> files,
                 const ScanOptions& options)
        : m_root(std::move(root)),
          m_before(std::move(before)),
          m_files(std::move(files)),
          m_known(m_before),
          m_options(options),
          m_slots(m_files.size()),
          m_transfer(m_before.facts, m_after.facts) {
        m_after.folder = m_before.folder;
        m_after.scanned = nanosecondsNow();
        for (std::size_t i = 0; i < m_files.size(); ++i)
            if (m_slots[i].known = m_known.unchanged(m_files[i]); !m_slots[i].known)
                m_unread.push_back(i);
    }

    /// Reads what has to be. The stores are those of the files in their order.
    void run() {
        if (isAsBefore()) {
            std::swap(m_after.facts, m_before.facts);
            m_after.files = std::move(m_before.files);
            m_after.scanned = m_before.scanned;
            return;
        }
        m_isChanged = !m_unread.empty() || m_files.size() != m_before.files.size();
        parallelFor(m_unread.size(), [&](std::size_t i) { read(m_unread[i]); });
        commit();
    }

    [[nodiscard]] FactCache& cache() { return m_after; }
    [[nodiscard]] bool isChanged() const { return m_isChanged; }
    [[nodiscard]] std::size_t read() const { return m_read; }
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }
    /// What failed in the order of the files: of known files too.
    [[nodiscard]] std::vector<ScanFault> faults() const {
        std::vector<ScanFault> faults = m_faults;
        for (const KnownFile& file : m_after.files)
            if (file.kind == KnownFile::Kind::Refused)
                faults.push_back({m_root / file.path, file.reason});
        std::ranges::sort(faults, {}, &ScanFault::path);
        return faults;
    }

private:
    /// What is to become of one of the files.
    struct Slot {
        std::optional<std::size_t> known; ///< entry of the cache
        std::optional<FileReading> reading;
        bool isSkipped = false; ///< the scan was cancelled before
    };

    /// Whether not a row has to be copied: all files are known, in this order, under these names.
    [[nodiscard]] bool isAsBefore() const {
        if (!m_unread.empty() || m_files.size() != m_before.files.size())
            return false;
        for (std::size_t i = 0; i < m_files.size(); ++i)
            if (m_slots[i].known != i || !isFoundWhereItWas(i))
                return false;
        return true;
    }

    /// The same folder may have been named in another way.
    [[nodiscard]] bool isFoundWhereItWas(std::size_t entry) const {
        if (m_before.files[entry].kind != KnownFile::Kind::SplitFile)
            return true;
        const FileRow& row = m_before.facts.files()[m_known.rowOf(entry)];
        return m_before.facts.text(row.path) == (m_root / m_files[entry].path).native();
    }

    void read(std::size_t at) {
        Slot slot;
        if (m_options.stop.stop_requested()) {
            slot.isSkipped = true;
        } else {
            const fs::path path = m_root / m_files[at].path;
            slot.known = movedFrom(path, m_files[at]);
            if (!slot.known)
                slot.reading = readSplitFacts(path, m_files[at]);
        }
        const std::lock_guard lock(m_guard);
        m_slots[at] = std::move(slot);
        ++m_done;
        if (m_options.progress && !m_slots[at].isSkipped)
            m_options.progress(m_done, m_unread.size());
        m_isCancelled = m_isCancelled || m_slots[at].isSkipped;
        m_ready.insert(at);
        commit();
    }

    [[nodiscard]] std::optional<std::size_t> movedFrom(const fs::path& path,
                                                       const FoundFile& file) const {
        try {
            return m_known.sameContent(path, file);
        } catch (const FileError&) {
            return std::nullopt; // reading it will tell why
        }
    }

    /// Copies behind each other what has come in, as far as nothing before it is missing: no more
    /// than a few files wait in memory, and the order is that of the files.
    void commit() {
        for (; m_next < m_slots.size(); ++m_next) {
            Slot& slot = m_slots[m_next];
            if (slot.known)
                keepKnown(*slot.known);
            else if (m_ready.contains(m_next))
                keepRead(slot);
            else
                return;
            slot.reading.reset();
            m_ready.erase(m_next);
        }
    }

    void keepKnown(std::size_t entry) {
        KnownFile file = m_before.files[entry];
        file.path = m_files[m_next].path;
        file.stamp = m_files[m_next].stamp;
        if (file.kind == KnownFile::Kind::SplitFile)
            m_transfer.add(m_known.rowOf(entry), (m_root / file.path).native());
        m_after.files.push_back(std::move(file));
    }

    void keepRead(Slot& slot) {
        using Outcome = FileReading::Outcome;
        if (slot.isSkipped || slot.reading->outcome == Outcome::Vanished)
            return;
        FileReading& reading = *slot.reading;
        const std::string& path = m_files[m_next].path;
        if (reading.outcome == Outcome::Failed) {
            m_faults.push_back({m_root / path, reading.reason});
            return;
        }
        KnownFile file{path, reading.stamp, reading.hash, KnownFile::Kind::Other, {}};
        if (reading.outcome == Outcome::Read) {
            ++m_read;
            file.kind = KnownFile::Kind::SplitFile;
            m_after.facts.add(reading.facts);
        } else if (reading.outcome == Outcome::Refused) {
            file.kind = KnownFile::Kind::Refused;
            file.reason = reading.reason;
        }
        m_after.files.push_back(std::move(file));
    }

    fs::path m_root;
    FactCache m_before;
    std::vector<FoundFile> m_files;
    Known m_known;
    const ScanOptions& m_options;
    std::vector<Slot> m_slots;
    std::vector<std::size_t> m_unread; ///< files by their places
    FactCache m_after;
    FactTransfer m_transfer;
    std::vector<ScanFault> m_faults;
    std::set<std::size_t> m_ready; ///< places that were read and wait for one before them
    std::size_t m_next = 0;        ///< place that is to be copied next
    std::size_t m_done = 0;
    std::size_t m_read = 0;
    bool m_isCancelled = false;
    bool m_isChanged = false;
    std::mutex m_guard; ///< of all that reading changes
};

/// Puts what several paths mean together.
class PathScan {
public:
    explicit PathScan(const ScanOptions& options) : m_options(options) {}

    void addFolder(const fs::path& folder) {
        FolderWalk walk = walkFolder(folder);
        std::ranges::move(walk.faults, std::back_inserter(m_scan.failed));
        std::ranges::move(walk.folders, std::back_inserter(m_scan.folders));
        std::error_code ignored;
        const std::string real = fs::canonical(folder, ignored).native();
        const fs::path cacheFolder = real.empty() ? fs::path() : m_options.cacheFolder;
        add(folder, readCache(cacheFolder, real), std::move(walk.files), cacheFolder);
    }

    void addFile(const fs::path& path) {
        try {
            add({}, {}, {foundFile(path)}, {});
        } catch (const FileError& error) {
            m_scan.failed.push_back({path, error.reason()});
        }
    }

    [[nodiscard]] FolderScan result() { return std::move(m_scan); }

private:
    void add(const fs::path& root, FactCache cache, std::vector<FoundFile> files,
             const fs::path& cacheFolder) {
        const std::vector<std::string> repeated = metBefore(files);
        FolderUpdate update(root, std::move(cache), std::move(files), m_options);
        update.run();
        if (update.isChanged())
            writeCache(cacheFolder, update.cache());
        std::ranges::move(update.faults(), std::back_inserter(m_scan.failed));
        m_scan.read += update.read();
        m_scan.isCancelled = m_scan.isCancelled || update.isCancelled();
        take(root, update.cache(), repeated);
    }

    /// Files to which another path of the call has led already.
    [[nodiscard]] std::vector<std::string> metBefore(const std::vector<FoundFile>& files) {
        std::vector<std::string> repeated;
        for (const FoundFile& file : files)
            if (!m_met.insert(file.identity).second)
                repeated.push_back(file.path);
        return repeated;
    }

    void take(const fs::path& root, FactCache& cache, const std::vector<std::string>& repeated) {
        std::vector<std::pair<std::size_t, fs::path>> rows; ///< of the facts that count
        std::size_t row = 0;
        for (const KnownFile& file : cache.files) {
            if (file.kind != KnownFile::Kind::SplitFile)
                continue;
            fs::path path = root / file.path;
            if (!std::ranges::binary_search(repeated, file.path) && isNew(file, path)) {
                rows.emplace_back(row, std::move(path));
                m_scan.hashes.push_back(file.hash);
            }
            ++row;
        }
        if (m_scan.facts.files().empty() && rows.size() == row) {
            m_scan.facts = std::move(cache.facts);
            return;
        }
        FactTransfer transfer(cache.facts, m_scan.facts);
        for (const auto& [kept, path] : rows)
            transfer.add(kept, path.native());
    }

    /// False for a copy of a file that was met before.
    [[nodiscard]] bool isNew(const KnownFile& file, const fs::path& path) {
        const auto [first, isNew] = m_contents.try_emplace({file.hash, file.stamp.size}, path);
        if (!isNew)
            m_scan.copies.push_back({path, first->second});
        return isNew;
    }

    const ScanOptions& m_options;
    FolderScan m_scan;
    std::set<std::pair<std::uint64_t, std::uint64_t>> m_met;
    std::map<std::pair<std::uint64_t, std::uint64_t>, fs::path> m_contents;
};

} // namespace

FolderScan scanPaths(std::span<const fs::path> paths, const ScanOptions& options) {
    PathScan scan(options);
    for (const fs::path& path : paths) {
        std::error_code ignored;
        if (fs::is_directory(path, ignored))
            scan.addFolder(path);
        else
            scan.addFile(path);
    }
    return scan.result();
}

} // namespace kavela
