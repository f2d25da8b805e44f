#pragma once

#include <string>

namespace kavela::report {

/// Mends what a finished PDF document says of its characters, so that its text can be searched and
/// copied. For each glyph the painter notes the lowest of the characters that lead to it, which for
/// a blank is a tab, for many a Chinese or Japanese character a radical of the same look, for an
/// Arabic letter one of its four forms. Each becomes the character that people type. The document
/// keeps its length, and whatever this does not know stays as it is.
void makeTextSearchable(std::string& pdf);

} // namespace kavela::report
