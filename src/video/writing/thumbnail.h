#pragma once

#include <filesystem>
#include <stop_token>
#include <string>

namespace kavela {

/// The longer side of a thumbnail at most, in pixels.
inline constexpr int ThumbnailSide = 320;

/// A small picture of a film, upright, as the bytes of a JPEG file: its key frame nearest a third
/// of its length. It is kept in a folder, made where it is missing, under a name from the film's
/// path, size and date, and made anew only when one of them changed; a folder that cannot be
/// written to costs the time to make it again. Empty once `stop` is requested. Throws VideoError
/// for a film of which no picture can be decoded. May be called from several threads at once.
[[nodiscard]] std::string thumbnailOf(const std::filesystem::path& film,
                                      const std::filesystem::path& cacheFolder,
                                      const std::stop_token& stop = {});

/// Where thumbnails of this user are kept: "kavela/thumbnails" in the folder for caches that the
/// environment names, or in ".cache".
[[nodiscard]] std::filesystem::path thumbnailFolder();

} // namespace kavela
