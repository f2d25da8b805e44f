#pragma once

#include "video/demuxer.h"
#include "video/index.h"

namespace kavela {

/// What the head of an open file says of its video.
[[nodiscard]] VideoFacts videoFacts(const Demuxer& demuxer, const std::filesystem::path& path);

/// Whether a file that was just opened keeps a list of its packets, so that a place in it is found
/// without reading everything before.
[[nodiscard]] bool hasStoredIndex(const Demuxer& demuxer, const std::filesystem::path& path);

/// The size at which pictures are shown: the width stretched so that its pixels
/// become square, then turned. An aspect of no meaning counts as square.
[[nodiscard]] VideoSize shownSize(VideoSize stored, PixelAspect aspect, int rotation);

} // namespace kavela
