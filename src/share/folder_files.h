#pragma once

#include "share/share_plan.h"

#include <filesystem>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela::share {

/// A file or folder that is left out, and why in a sentence.
struct LeftOut {
    std::string path; ///< as text for people
    std::string reason;
};

/// What is in a folder and below it.
struct FolderFiles {
    HereFiles files;
    std::vector<LeftOut> leftOut; ///< hidden files and parts of transfers are not even told
};

/// Folders lie no deeper in each other than this; what does is left out.
inline constexpr int MostLevels = 32;
/// No folder that is shared has more files.
inline constexpr std::size_t MostSharedFiles = 200'000;

/// Links are left out: they may lead anywhere, in a circle too. Throws FileError for a folder that
/// cannot be read, or is none.
[[nodiscard]] FolderFiles filesIn(const std::filesystem::path& folder, const std::stop_token& stop);

/// A file as it is at this moment, without its hash; nothing where there is no plain file.
[[nodiscard]] std::optional<HereFile> fileNow(const std::filesystem::path& path);

/// Where a file of a shared path belongs. Nothing where a link on the way leads out of the folder,
/// which is given absolute and without links, or where the path has a part that is not taken.
[[nodiscard]] std::optional<std::filesystem::path> placeIn(const std::filesystem::path& folder,
                                                           const std::string& path);

} // namespace kavela::share
