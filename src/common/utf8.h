#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Texts in UTF-8 character by character.
namespace kavela {

/// What stands for bytes that are no character.
constexpr char32_t ReplacementCharacter = 0xFFFD;

[[nodiscard]] bool isUtf8(std::string_view text);

/// Takes the first character off a text that is not empty: one byte and nothing where that byte is
/// malformed.
[[nodiscard]] std::optional<char32_t> takeCharacter(std::string_view& text);

/// The characters of a text; the replacement for each malformed byte.
[[nodiscard]] std::u32string charactersIn(std::string_view text);

void appendUtf8(std::string& text, char32_t character);

/// The small letter of a capital, the capital of a small letter; any other character as it is.
[[nodiscard]] char32_t smallLetter(char32_t character);
[[nodiscard]] char32_t capitalLetter(char32_t character);

} // namespace kavela
