#pragma once

#include "vision/river_scene.h"

#include <filesystem>

namespace kavela {

/// Writes a scene as a film: each half pixel becomes two by two pixels.
void writeRiverFilm(const RiverScene& scene, const std::filesystem::path& path);

} // namespace kavela
