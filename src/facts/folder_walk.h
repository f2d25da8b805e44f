#pragma once

#include "facts/fact_cache.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace kavela {

/// A path that could not be read, and the system's or the decoder's reason.
struct ScanFault {
    std::filesystem::path path;
    std::string reason;
};

/// A file that may be a split file.
struct FoundFile {
    std::string path; ///< below the folder; all of it for a file that was named itself
    FileStamp stamp;
    std::pair<std::uint64_t, std::uint64_t> identity; ///< disk and number: links share it
    bool isPromised = false;                          ///< its name says that it is a split file
};

struct FolderWalk {
    std::vector<FoundFile> files;               ///< in the order of their paths
    std::vector<std::filesystem::path> folders; ///< that were walked, each once
    std::vector<ScanFault> faults;              ///< folders that could not be walked
};

/// The files below a folder that may be split files: all but hidden ones and those whose names
/// promise another kind of document. Links are followed, each folder and file is met once whatever
/// links lead to it. What vanishes meanwhile is no fault.
[[nodiscard]] FolderWalk walkFolder(const std::filesystem::path& folder);

/// What the disk tells of one file; it counts as promised. Throws FileError.
[[nodiscard]] FoundFile foundFile(const std::filesystem::path& path);

} // namespace kavela
