#pragma once

#include <span>
#include <string>
#include <string_view>

/// How athletes, categories and phases are told to be the same although lists write them
/// differently.
namespace kavela {

/// A text that is the same for all ways of writing a crew: whatever the case and accents, surname
/// or given name first, a comma between them or not, the two of a double in either order with "/",
/// "&", "+" or " - " between them.
[[nodiscard]] std::string crewKey(std::string_view crew);

/// The same for a crew given as a list of names.
[[nodiscard]] std::string crewKey(std::span<const std::string> names);

/// The text in small letters without accents, blanks and marks: "Heats 1", "HEATS-1".
[[nodiscard]] std::string bareKey(std::string_view text);

/// A text that is the same for all ways of writing a category: "K1M", "MK1", "k1 m".
[[nodiscard]] std::string categoryKey(std::string_view label);

/// The team's label of a phase that a file writes in its own way, such as "Heats 1" for "1st run";
/// empty when there is none such.
[[nodiscard]] std::string teamPhase(std::string_view written);

/// The text in capital letters (Latin, Greek, Cyrillic).
[[nodiscard]] std::string inCapitals(std::string_view text);

} // namespace kavela
