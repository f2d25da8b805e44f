#pragma once

#include "video/index.h"

#include <optional>
#include <variant>

namespace kavela {

/// What a player is asked to show: the frame of a number, the one with a stamp, or the one due at a
/// number of seconds.
using FrameRequest = std::variant<FrameNumber, CMTime, double>;

/// The frame that a request means, brought into the film. Nothing as long as the film is still
/// being read and its index does not reach so far, and for a stamp that is no moment.
[[nodiscard]] std::optional<FrameNumber> frameOf(const VideoIndex& index,
                                                 const FrameRequest& request);

} // namespace kavela
