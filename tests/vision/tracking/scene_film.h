#pragma once

#include "vision/tracking/track_scene.h"

#include <filesystem>

namespace kavela {

/// Writes so many frames of a shot as a film of 50 frames a second; gives the path that it got.
[[nodiscard]] std::filesystem::path writeScene(TrackScene& scene, int frames,
                                               const std::filesystem::path& target);

} // namespace kavela
