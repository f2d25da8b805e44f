#pragma once

#include <span>
#include <string>
#include <string_view>

/// How athletes and categories are told to be the same although lists write them differently.
namespace kavela {

/// A text that is the same for all ways of writing a crew: whatever the case and accents, surname
/// or given name first, a comma between them or not, the two of a double in either order with "/",
/// "&", "+" or " - " between them.
[[nodiscard]] std::string crewKey(std::string_view crew);

/// The same for a crew given as a list of names.
[[nodiscard]] std::string crewKey(std::span<const std::string> names);

/// A text that is the same for all ways of writing a category: "K1M", "MK1", "k1 m".
[[nodiscard]] std::string categoryKey(std::string_view label);

/// The text in capital letters (Latin, Greek, Cyrillic).
[[nodiscard]] std::string inCapitals(std::string_view text);

} // namespace kavela
