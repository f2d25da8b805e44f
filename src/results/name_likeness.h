#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// How alike two ways of writing a name are, for a coach who looks for the person behind a name
/// that no key finds: initials, a second given name, a letter more or less.
namespace kavela {

/// From this likeness on it is worth asking whether two names mean the same person.
inline constexpr double ProbablyTheSame = 0.7;

/// From 0, nothing in common, to 1, the same words. Case, accents and the order of the words do not
/// count; an initial is nearly as good as the name it stands for.
[[nodiscard]] double nameLikeness(std::string_view a, std::string_view b);

/// The places of the names in the order of their likeness, the likest first; equally like ones in
/// the order given.
[[nodiscard]] std::vector<std::size_t> byLikeness(std::string_view name,
                                                  std::span<const std::string> names);

/// The likest name, where one is likely to mean the same person.
[[nodiscard]] std::optional<std::size_t> likelyName(std::string_view name,
                                                    std::span<const std::string> names);

} // namespace kavela
