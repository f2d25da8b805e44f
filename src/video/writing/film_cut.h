#pragma once

#include "video/index.h"
#include "video/writing/film_sink.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace kavela {

/// How a piece is cut out of a film.
enum class CutKind {
    /// What is stored is taken over as it is, from the key frame before; a list in the file says
    /// that the frames up to the first wanted one are not shown. Quick and without loss; a player
    /// that does not honour such lists begins a little early, and behind the last frame up to a few
    /// more may follow, on which it builds.
    Copy,
    Exact ///< encoded anew, right at both ends
};

/// A piece of a film, both ends included.
struct FilmCut {
    CutKind kind = CutKind::Copy;
    FrameNumber first = 0;
    FrameNumber last = 0;
    /// Where it goes; the extension follows the container that is written.
    std::filesystem::path target;
};

/// The extension of pieces of a film, without a dot: "mp4", or "mov", which takes nearly every
/// coding.
[[nodiscard]] std::string extensionOfPieces(const std::filesystem::path& film);

/// Cuts the piece with its sound. `onProgress` gets 0 to 1, from the calling thread. Returns the
/// name that the file got: "NAME 2" where the name was taken. Nothing, and nothing is left on the
/// disk, once `stop` is requested. Throws VideoError for a film that cannot be read, FilmError for
/// one that cannot be written, FileError for the disk, std::out_of_range for frames that are not
/// in the film.
[[nodiscard]] std::optional<std::filesystem::path>
cutFilm(const std::shared_ptr<const VideoIndex>& film, const FilmCut& cut,
        const std::stop_token& stop = {},
        const std::function<void(double fraction)>& onProgress = {});

} // namespace kavela
