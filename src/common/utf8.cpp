#include "common/utf8.h"

#include <simdjson.h>
#include <utf8proc.h>

#include <array>

namespace kavela {

namespace {

const utf8proc_uint8_t* bytesOf(std::string_view text) {
    return reinterpret_cast<const utf8proc_uint8_t*>(text.data()); // NOLINT: a C library's bytes
}

} // namespace

bool isUtf8(std::string_view text) {
    return simdjson::validate_utf8(text.data(), text.size());
}

std::optional<char32_t> takeCharacter(std::string_view& text) {
    utf8proc_int32_t character = 0;
    const utf8proc_ssize_t length =
        utf8proc_iterate(bytesOf(text), static_cast<utf8proc_ssize_t>(text.size()), &character);
    text.remove_prefix(length > 0 ? static_cast<std::size_t>(length) : 1);
    if (length <= 0)
        return std::nullopt;
    return static_cast<char32_t>(character);
}

std::u32string charactersIn(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty())
        characters += takeCharacter(text).value_or(ReplacementCharacter);
    return characters;
}

void appendUtf8(std::string& text, char32_t character) {
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto length =
        utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}

char32_t smallLetter(char32_t character) {
    return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(character)));
}

char32_t capitalLetter(char32_t character) {
    return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(character)));
}

} // namespace kavela
