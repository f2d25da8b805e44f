#pragma once

#include "compose/composition.h"
#include "compose/overlay.h"
#include "video/writing/film_sink.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela {

/// How far the making of a film has come.
struct ComposeProgress {
    double opened = 0;       ///< 0 to 1 of the reading of the films, before the first frame
    std::int64_t frames = 0; ///< made so far
    std::int64_t all = 0;    ///< to be made; 0 as long as the films are being read
};

/// A composed film.
struct ComposedFilmFile {
    std::filesystem::path path; ///< as it was named: "NAME 2" where the name was taken
    std::int64_t frames = 0;
    FrameRate rate;
    /// What a viewer should know, a sentence each: a film that is missing or ends early, a mark
    /// outside its film.
    std::vector<std::string> notes;
};

/// Composes a film and writes it: H.264 High of level 4.2 at most, a key frame a second, ready to
/// be played while it is being loaded. The target's extension becomes ".mp4". Nothing, and nothing
/// is left on the disk, once `stop` is requested, which takes effect within half a second.
/// `onProgress` is called from the calling thread. `painter` may be null for a film without words.
/// Throws DecodeError for what cannot be brought together, VideoError when no film can be opened,
/// FilmError without the encoder, FileError for the disk.
[[nodiscard]] std::optional<ComposedFilmFile>
compose(const Composition& composition, CaptionPainter* painter,
        const std::filesystem::path& target, const std::stop_token& stop = {},
        const std::function<void(const ComposeProgress&)>& onProgress = {});

} // namespace kavela
