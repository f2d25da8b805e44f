#pragma once

#include "video/writing/film_cut.h"
#include "video/writing/unfinished_file.h"

namespace kavela {

/// Copies the packets of a piece of a film, with those of its sound, into a sink. `container` is
/// "mp4" or "mov". Throws as cutFilm() does, and FilmStopped.
void copyPackets(const VideoIndex& film, const FilmCut& cut, const std::string& container,
                 UnfinishedFile& sink, const std::stop_token& stop,
                 const std::function<void(double fraction)>& onProgress);

} // namespace kavela
