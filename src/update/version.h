#pragma once

#include <array>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace kavela::update {

/// A version of the program, "0.31.0": three whole numbers from 0 to 999,999, compared as numbers.
struct Version {
    std::array<int, 3> numbers{};

    [[nodiscard]] std::string text() const;

    friend auto operator<=>(const Version&, const Version&) = default;
};

/// Nothing for any other text; also for numbers with zeros in front, which would make two texts of
/// one version.
[[nodiscard]] std::optional<Version> parsedVersion(std::string_view text);

} // namespace kavela::update
