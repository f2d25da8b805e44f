#pragma once

#include "video/av_handles.h"

namespace kavela {

/// Planes of eight bits, with colour for every two by two pixels, turned clockwise by 90, 180 or
/// 270 degrees. Throws std::bad_alloc.
[[nodiscard]] AvOwner<AVFrame> turnedPlanes(const AVFrame& planes, int rotation);

} // namespace kavela
