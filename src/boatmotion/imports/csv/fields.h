#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::imports {

/// A number that is all of a field, with a point or, as set, a comma. Nothing for what is none, or
/// not finite.
[[nodiscard]] std::optional<double> fieldNumber(std::string_view field, bool hasDecimalComma);

/// Whether a field stands for a value that is missing: empty, "NaN", "null" and the like.
[[nodiscard]] bool isMissing(std::string_view field);

} // namespace kavela::imports
