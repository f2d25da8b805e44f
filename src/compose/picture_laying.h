#pragma once

#include "compose/layout.h"

struct AVFrame;

/// Laying pictures of films into a whole one. All are planes of eight bits, with colour for every
/// two by two pixels.
namespace kavela {

/// Makes all of it black.
void darken(AVFrame& planes);

/// Lays a picture, which has the size of its place, into the whole.
void layPicture(const FilmPlace& place, const AVFrame& picture, AVFrame& planes);

/// A line from top to bottom where one film ends and the next one begins.
void drawDivider(AVFrame& planes, int column);

} // namespace kavela
