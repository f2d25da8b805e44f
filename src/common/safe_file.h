#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace kavela {

/// Writes a whole file so that at every moment, a power cut included, the disk holds either the
/// old content or the new one: a temporary file beside the target is filled and flushed, then
/// renamed over it, then the folder is flushed. A symbolic link is followed; permissions of an
/// existing file are kept. Throws FileError; the old file is then untouched and no temporary is
/// left (a crash can leave one, named ".NAME.XXXXXX.tmp").
void writeFileSafely(const std::filesystem::path& path, std::string_view content);

/// Takes the next piece of a content.
using PieceWriter = std::function<void(std::string_view piece)>;

/// The same of a content that is handed over piece by piece, and is never in memory as a whole.
/// What `content` throws leaves the old file untouched too.
void writeFileSafely(const std::filesystem::path& path,
                     const std::function<void(const PieceWriter& write)>& content);

/// Gives a file's present content a second name that must not exist yet: by a hard link, or where
/// the disk knows none by a flushed copy. Returns false when the name is taken; throws FileError.
[[nodiscard]] bool keepUnderSecondName(const std::filesystem::path& path,
                                       const std::filesystem::path& secondName);

/// Whether a name is taken, be it by a link that leads nowhere.
[[nodiscard]] bool isTaken(const std::filesystem::path& path);

} // namespace kavela
