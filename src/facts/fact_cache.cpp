#include "facts/fact_cache.h"

#include "common/posix_file.h"
#include "common/safe_file.h"
#include "facts/content_hash.h"
#include "facts/fact_tables.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <new>

namespace kavela {

namespace fs = std::filesystem;

namespace {

/// What a cache file begins with.
struct Head {
    std::array<char, 8> magic{'K', 'V', 'F', 'A', 'C', 'T', 'S', '\n'};
    std::uint64_t layout = FactTables::layout();
    std::uint64_t checksum = 0; ///< of all that follows

    friend bool operator==(const Head&, const Head&) = default;
};

/// More than any season needs; a foreign file under this name may be anything.
constexpr std::uint64_t LargestCache = std::uint64_t{4} << 30;

void writeKnown(const KnownFile& file, ByteWriter& bytes) {
    bytes.putText(file.path);
    bytes.put(file.stamp.size);
    bytes.put(file.stamp.modified);
    bytes.put(file.hash);
    bytes.put(static_cast<std::uint8_t>(file.kind));
    bytes.putText(file.reason);
}

bool readKnown(ByteReader& bytes, KnownFile& file) {
    std::string_view path;
    std::string_view reason;
    std::uint8_t kind = 0;
    const bool isRead = bytes.getText(path) && bytes.get(file.stamp.size) &&
                        bytes.get(file.stamp.modified) && bytes.get(file.hash) && bytes.get(kind) &&
                        bytes.getText(reason);
    if (!isRead || kind > static_cast<std::uint8_t>(KnownFile::Kind::Refused))
        return false;
    file.kind = static_cast<KnownFile::Kind>(kind);
    file.path = path;
    file.reason = reason;
    return true;
}

bool readFiles(ByteReader& bytes, std::vector<KnownFile>& files) {
    std::uint64_t count = 0;
    if (!bytes.get(count))
        return false;
    for (std::uint64_t i = 0; i < count; ++i)
        if (!readKnown(bytes, files.emplace_back()))
            return false;
    return true;
}

/// Bytes that are filled by reading, and not before.
struct FileBytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;

    [[nodiscard]] std::string_view text() const { return {data.get(), size}; }
};

/// What a file holds; nothing where that cannot be told. Throws FileError when it is not there.
std::optional<FileBytes> bytesOf(const fs::path& path) {
    const PosixFile file(path, O_RDONLY | O_NONBLOCK);
    struct ::stat status {};
    if (::fstat(file.descriptor(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::uint64_t>(status.st_size) > LargestCache)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(status.st_size);
    FileBytes bytes{std::unique_ptr<char[]>(new char[size]), 0};
    while (bytes.size < size) {
        const ssize_t got =
            ::read(file.descriptor(), bytes.data.get() + bytes.size, size - bytes.size);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return std::nullopt;
        bytes.size += static_cast<std::size_t>(got);
    }
    return bytes;
}

/// Hands on all that follows the head.
void putBody(const FactCache& cache, const PieceWriter& write) {
    ByteWriter bytes(write);
    bytes.putText(cache.folder);
    bytes.put(cache.scanned);
    bytes.put(static_cast<std::uint64_t>(cache.files.size()));
    for (const KnownFile& file : cache.files)
        writeKnown(file, bytes);
    FactTables::write(cache.facts, bytes);
    bytes.finish();
}

/// Makes the folder of the caches, which say who paddles where: for nobody else to read.
void makePrivateFolder(const fs::path& folder) {
    if (fs::create_directories(folder))
        fs::permissions(folder, fs::perms::owner_all);
}

} // namespace

/// Twice through the tables, since the head tells the checksum of what follows: a second copy of
/// them in memory would cost as much as they do.
void putCache(const FactCache& cache, const PieceWriter& write) {
    ContentHash hash;
    putBody(cache, [&hash](std::string_view piece) { hash.add(piece); });
    Head head;
    head.checksum = hash.value();
    write({reinterpret_cast<const char*>(&head), sizeof head});
    putBody(cache, write);
}

std::optional<FactCache> decodedCache(std::string_view text) {
    ByteReader bytes(text);
    Head head;
    Head expected;
    if (!bytes.get(head) || head.magic != expected.magic || head.layout != expected.layout)
        return std::nullopt;
    expected.checksum = contentHash(text.substr(sizeof head));
    FactCache cache;
    std::string_view folder;
    if (head != expected || !bytes.getText(folder) || !bytes.get(cache.scanned) ||
        !readFiles(bytes, cache.files) || !FactTables::read(bytes, cache.facts) || !bytes.isAtEnd())
        return std::nullopt;
    cache.folder = folder;
    const auto splitFiles =
        std::ranges::count(cache.files, KnownFile::Kind::SplitFile, &KnownFile::kind);
    if (!std::cmp_equal(splitFiles, cache.facts.files().size()))
        return std::nullopt;
    return cache;
}

fs::path userCacheFolder() {
    // The convention of desktops: a path that is not absolute is as good as none.
    const char* const given = std::getenv("XDG_CACHE_HOME");
    if (given && fs::path(given).is_absolute())
        return fs::path(given) / "Kavela" / "facts";
    const char* const home = std::getenv("HOME");
    if (home && fs::path(home).is_absolute())
        return fs::path(home) / ".cache" / "Kavela" / "facts";
    return {};
}

fs::path cachePath(const fs::path& cacheFolder, const std::string& folder) {
    return cacheFolder / fmt::format("{:016x}.facts", contentHash(folder));
}

FactCache readCache(const fs::path& cacheFolder, const std::string& folder) {
    FactCache none;
    none.folder = folder;
    if (cacheFolder.empty())
        return none;
    try {
        const auto bytes = bytesOf(cachePath(cacheFolder, folder));
        auto cache = bytes ? decodedCache(bytes->text()) : std::nullopt;
        return cache && cache->folder == folder ? std::move(*cache) : std::move(none);
    } catch (const FileError&) {
        return none; // there is none yet
    } catch (const std::bad_alloc&) {
        return none;
    }
}

void writeCache(const fs::path& cacheFolder, const FactCache& cache) {
    if (cacheFolder.empty())
        return;
    try {
        makePrivateFolder(cacheFolder);
        writeFileSafely(cachePath(cacheFolder, cache.folder),
                        [&cache](const PieceWriter& write) { putCache(cache, write); });
    } catch (const FileError&) {
        return;
    } catch (const fs::filesystem_error&) {
        return;
    } catch (const std::bad_alloc&) {
        return;
    }
}

} // namespace kavela
