#pragma once

#include "video/index.h"

#include <filesystem>

namespace kavela {

/// A place in the upright picture, in its pixels: 0, 0 is the upper left corner of the first one.
struct SlitPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const SlitPoint&, const SlitPoint&) = default;
};

/// The side that boats come from, for somebody who looks along the line from its first end to its
/// second one, with the picture lying in front of him: for a line drawn downwards the left hand is
/// the right of the picture.
enum class BoatsFrom { Left, Right };

/// A line over the picture of a fixed camera that boats cross.
struct SlitLine {
    SlitPoint first;
    SlitPoint second;
    BoatsFrom from = BoatsFrom::Right;

    friend bool operator==(const SlitLine&, const SlitLine&) = default;
};

/// A line is no shorter than this, in pixels of the upright picture.
inline constexpr double ShortestSlit = 8;

/// The line's length in pixels.
[[nodiscard]] double lengthOf(const SlitLine& line);

/// The direction in which boats cross, at right angles to the line, of length 1.
[[nodiscard]] SlitPoint crossingDirection(const SlitLine& line);

/// Throws VideoError, naming the film, for a line with an end outside the picture (`shown`, the
/// upright size) or shorter than ShortestSlit. An end may lie on the picture's edge.
void checkSlitLine(const SlitLine& line, VideoSize shown, const std::filesystem::path& film);

} // namespace kavela
