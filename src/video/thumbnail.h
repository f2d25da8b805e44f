#pragma once

#include "video/picture.h"

#include <filesystem>
#include <optional>
#include <stop_token>

namespace kavela {

/// A small picture of a film, and how long it is.
struct Thumbnail {
    Picture picture; ///< without pixels once reading was stopped
    std::optional<double>
        seconds; ///< the film's length as its head tells; nothing where it does not
};

/// The key frame nearest to a third of a film, as large as fits into the box: the boat is in sight
/// there more often than at the beginning. One packet is decoded; a film that cannot be searched
/// shows its first frame. Throws VideoError for a file that cannot be opened, or of which no frame
/// can be decoded, and where it is stopped while the file is opened.
[[nodiscard]] Thumbnail readThumbnail(const std::filesystem::path& film, VideoSize box,
                                      const std::stop_token& stop = {});

} // namespace kavela
