#pragma once

#include "boatmotion/imports/track.h"

namespace kavela::imports {

/// A track in XML: the track points of GPX or of TCX, whatever the prefixes of their names; way
/// points and routes are left out. Only the five entities of XML itself are resolved. Throws
/// DecodeError.
[[nodiscard]] ImportedTrack xmlTrack(std::string content);

} // namespace kavela::imports
