#pragma once

#include "boatmotion/imports/track.h"

namespace kavela::imports {

[[nodiscard]] bool looksLikeFit(std::string_view content);

/// A track from a FIT file or several in a row. Throws DecodeError for anything damaged, also where
/// only a sum of bytes does not agree: a watch that lost a byte cannot be trusted with the rest.
[[nodiscard]] ImportedTrack fitTrack(std::string_view content);

} // namespace kavela::imports
