#pragma once

#include "facts/folder_walk.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>

/// Reads the split files of any release below some folders into one store, on all cores. They are
/// never rewritten. What a cache knows is not read again, unless a file's size or the moment of its
/// last change differ, or that moment was so near to the last scan that a second change may not
/// show. A file that was moved is known by its size and content.
namespace kavela {

struct ScanOptions {
    std::filesystem::path cacheFolder; ///< where caches are kept; empty to keep none
    /// Told from any thread, one call at a time: how many files have been read of how many.
    std::function<void(std::size_t done, std::size_t total)> progress;
    std::stop_token stop; ///< ends the scan early; what was read by then is kept
};

/// A split file of exactly the content of another.
struct ScanCopy {
    std::filesystem::path path;
    std::filesystem::path of; ///< the one that counts
};

struct FolderScan {
    FactStore facts; ///< files in the order of the call, those of a folder by their paths
    std::vector<std::uint64_t> hashes; ///< of the contents of these files
    std::size_t read = 0;              ///< files that were read now, the others being known
    std::vector<ScanFault> failed;
    std::vector<ScanCopy> copies;               ///< that do not count
    std::vector<std::filesystem::path> folders; ///< that were walked, for whoever watches them
    bool isCancelled = false;
};

/// Reads what the paths mean, folders with all below them. A file that several of them lead to
/// counts once, and so does one of which copies lie elsewhere: a backup is no second race. A file
/// that is named itself is read whatever its name.
[[nodiscard]] FolderScan scanPaths(std::span<const std::filesystem::path> paths,
                                   const ScanOptions& options = {});

} // namespace kavela
