#pragma once

#include "vision/path_figures.h"

#include <string>
#include <vector>

namespace kavela {

/// A path as lines of text with commas, under a line of titles: frame, seconds, x and y in pixels,
/// the same with the camera's motion taken out, metres on the water, metres a second with their
/// uncertainty, and how well it was known again. Frames of a gap have their number alone.
[[nodiscard]] std::string pathCsv(const std::vector<PathFigure>& figures);

} // namespace kavela
