#pragma once

#include "compose/layout.h"
#include "vision/picture_motion.h"

#include <vector>

struct AVFrame;

/// Laying what follows a path into a whole picture. All are planes of eight bits, with colour for
/// every two by two pixels.
namespace kavela {

/// Lays the part of a picture that begins at a corner, which may lie between pixels, over a place
/// of the whole: a picture that follows a boat glides.
void layPart(const PictureRect& place, const PicturePlace& corner, const AVFrame& picture,
             AVFrame& planes);

/// Draws a line through pixels of the whole, within a place of it and from a column on.
void drawTrail(const std::vector<PicturePlace>& line, const PictureRect& within, int firstColumn,
               AVFrame& planes);

} // namespace kavela
