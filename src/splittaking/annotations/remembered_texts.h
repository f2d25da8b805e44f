#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Reasons and tag names that a coach uses again: the caller keeps the lists.
namespace kavela {

/// A kept list with new texts added behind: without blanks around them, without empty ones, each
/// once whatever its case and accents.
[[nodiscard]] std::vector<std::string> withRemembered(std::vector<std::string> saved,
                                                      std::span<const std::string> used);

/// The kept texts that fit the letters typed so far, in their order; all without any letters.
[[nodiscard]] std::vector<std::string> fittingTexts(std::span<const std::string> saved,
                                                    std::string_view typed);

} // namespace kavela
