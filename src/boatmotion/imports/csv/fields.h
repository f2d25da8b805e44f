#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::imports {

/// The fields of a line, without blanks and quotation marks around them. A separator between
/// quotation marks separates nothing.
void splitFields(std::string_view line, char separator, std::vector<std::string_view>& fields);

/// A number that is all of a field, with a point or, as set, a comma. Nothing for what is none, or
/// not finite.
[[nodiscard]] std::optional<double> fieldNumber(std::string_view field, bool hasDecimalComma);

/// Whether a field stands for a value that is missing: empty, "NaN", "null" and the like.
[[nodiscard]] bool isMissing(std::string_view field);

} // namespace kavela::imports
