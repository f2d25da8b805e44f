#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

/// Films that were fetched, before they get their names. All of it takes as long as disks do: it is
/// called beside the event loop.
namespace kavela::fetch {

/// Why a file is no film that could be played; nothing where it opens and has pictures.
[[nodiscard]] std::optional<std::string> faultOfFilm(const std::filesystem::path& path);

/// The SHA-256 of a file in small hexadecimal digits; empty where it cannot be read.
[[nodiscard]] std::string sha256OfFilm(const std::filesystem::path& path);

/// Becomes true when nobody waits any more.
using StopFlag = std::shared_ptr<std::atomic<bool>>;

/// Puts a film in pieces together: the packets of the playlist go into `target` as they are.
/// Nothing but the folder of the playlist is read. Says why not; nothing when it is done.
[[nodiscard]] std::optional<std::string> joinPieces(const std::filesystem::path& playlist,
                                                    const std::filesystem::path& target,
                                                    const StopFlag& stop);

/// Gives a whole film its name, or that with " 2", " 3" and so on where another file has it, which
/// stays as it is. The name that it got. Throws FileError.
[[nodiscard]] std::string nameFilm(const std::filesystem::path& part,
                                   const std::filesystem::path& folder, const std::string& name);

} // namespace kavela::fetch
