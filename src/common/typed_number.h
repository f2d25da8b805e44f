#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Numbers as people type them: plain digits with one decimal sign, a point or a comma, whichever
/// their country writes; blanks around them count for nothing. Nothing is guessed: an exponent, a
/// name such as "nan" and signs that group digits ("1.234,5", "1 234") are no number. Texts of
/// files are read elsewhere and more strictly.
namespace kavela {

/// A number such as "-82,75"; nothing where the text is none.
[[nodiscard]] std::optional<double> typedReal(std::string_view text);

/// A number without a decimal sign, such as "12".
[[nodiscard]] std::optional<std::int64_t> typedWhole(std::string_view text);

/// Seconds, not below 0: "82.75", "1:22,75" or "1:01:22.75", minutes and seconds below 60 behind a
/// colon.
[[nodiscard]] std::optional<double> typedSeconds(std::string_view text);

} // namespace kavela
