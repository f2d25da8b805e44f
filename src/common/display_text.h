#pragma once

#include <string>
#include <string_view>

/// Text for people: on a terminal, and from sources that need not be valid UTF-8.
namespace kavela {

/// The text with every malformed byte replaced by U+FFFD.
[[nodiscard]] std::string validUtf8(std::string_view text);

/// The text with control characters, also those that could steer a terminal, replaced by blanks.
[[nodiscard]] std::string printable(std::string_view text);

/// Columns that a printable text takes on a terminal: two for a wide character, none for an accent
/// that sits on the letter before it.
[[nodiscard]] int displayWidth(std::string_view text);

/// The text brought to a width: cut with an ellipsis, or filled with blanks at its end.
[[nodiscard]] std::string fitted(std::string_view text, int width);

/// The text with blanks in front of it up to a width.
[[nodiscard]] std::string rightAligned(std::string_view text, int width);

} // namespace kavela
