#pragma once

#include "common/safe_file.h"
#include "facts/fact_store.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What is known of the split files below a folder, kept on the disk so that they need not be read
/// again: one file for each folder, in the user's own cache. It may be removed at any time. One
/// that is damaged, foreign, or of another release of the program counts as none and is made anew
/// without a word.
namespace kavela {

/// By what a changed file is told from an unchanged one.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modified = 0; ///< nanoseconds since 1970

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A file that was looked at.
struct KnownFile {
    enum class Kind : std::uint8_t {
        SplitFile,
        Other,  ///< no split file, nor does its name promise one
        Refused ///< named like a split file, but none
    };

    std::string path; ///< below the folder
    FileStamp stamp;
    std::uint64_t hash = 0; ///< of the content; only of split files
    Kind kind = Kind::Other;
    std::string reason; ///< why it was refused
};

/// All that is known of a folder. The files of `facts` are the split files of `files`, in the same
/// order.
struct FactCache {
    std::string folder;       ///< without links
    std::int64_t scanned = 0; ///< when the last scan began, nanoseconds since 1970
    std::vector<KnownFile> files;
    FactStore facts;
};

/// Hands on what a cache file holds, piece by piece.
void putCache(const FactCache& cache, const PieceWriter& write);

/// What the bytes of a cache file say; nothing when they are not, to the last bit, what putCache()
/// handed on.
[[nodiscard]] std::optional<FactCache> decodedCache(std::string_view bytes);

/// Whose caches are to be found in the user's cache folder: XDG_CACHE_HOME, else ~/.cache. Empty
/// where there is neither; nothing is then kept.
[[nodiscard]] std::filesystem::path userCacheFolder();

/// The cache file of a folder, which is given without links.
[[nodiscard]] std::filesystem::path cachePath(const std::filesystem::path& cacheFolder,
                                              const std::string& folder);

/// The cache of a folder; an empty one when there is none that can be used.
[[nodiscard]] FactCache readCache(const std::filesystem::path& cacheFolder,
                                  const std::string& folder);

/// Keeps a cache. A disk that is full or cannot be written costs only time, at the next scan:
/// nothing is told.
void writeCache(const std::filesystem::path& cacheFolder, const FactCache& cache);

} // namespace kavela
