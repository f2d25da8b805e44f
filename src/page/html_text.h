#pragma once

#include <string>
#include <string_view>

/// Text from split files in a page. Whatever stands in a file stays text: names that are markup or
/// a script, bytes that are no letters, signs that turn the direction of what follows.
namespace kavela::page {

/// The text for an element or a quoted attribute: valid UTF-8, without control characters, with the
/// five signs of the markup written out.
[[nodiscard]] std::string escaped(std::string_view text);

/// The same as an element of its own, so that a name written from right to left, or a mark that
/// turns the direction, moves nothing around it.
[[nodiscard]] std::string isolated(std::string_view text);

/// A path of a file beside the page, with "/" between folders, as an address for an attribute.
[[nodiscard]] std::string addressOf(std::string_view path);

/// A text of the page in the language of the program, for an element or a quoted attribute: the
/// literal is the key of its translation.
[[nodiscard]] std::string said(std::string_view text);

} // namespace kavela::page
