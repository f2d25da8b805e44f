#include "common/display_text.h"

#include "common/utf8.h"

#include <utf8proc.h>

#include <algorithm>

namespace kavela {

namespace {

constexpr std::string_view Replacement = "\uFFFD";

/// One character with the bytes it came from.
struct Character {
    char32_t code = ReplacementCharacter;
    std::string_view bytes; ///< of the replacement where they were malformed
};

Character takeWithBytes(std::string_view& text) {
    const std::string_view before = text;
    const auto code = takeCharacter(text);
    return code ? Character{*code, before.substr(0, before.size() - text.size())}
                : Character{ReplacementCharacter, Replacement};
}

bool isControl(char32_t code) {
    const bool steersDirection =
        (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || steersDirection;
}

int widthOf(char32_t code) {
    return utf8proc_charwidth(static_cast<utf8proc_int32_t>(code));
}

} // namespace

std::string validUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty())
        valid += takeWithBytes(text).bytes;
    return valid;
}

std::string printable(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = takeWithBytes(text);
        result += isControl(character.code) ? std::string_view(" ") : character.bytes;
    }
    return result;
}

int displayWidth(std::string_view text) {
    int width = 0;
    while (!text.empty())
        width += widthOf(takeWithBytes(text).code);
    return width;
}

std::string fitted(std::string_view text, int width) {
    const int full = displayWidth(text);
    if (full <= width)
        return std::string(text).append(static_cast<std::size_t>(width - full), ' ');
    std::string cut;
    int used = 0;
    while (!text.empty()) {
        const Character character = takeWithBytes(text);
        if (used + widthOf(character.code) > width - 1)
            break;
        used += widthOf(character.code);
        cut += character.bytes;
    }
    return (cut + "…").append(static_cast<std::size_t>(std::max(width - 1 - used, 0)), ' ');
}

std::string rightAligned(std::string_view text, int width) {
    const int missing = std::max(width - displayWidth(text), 0);
    return std::string(static_cast<std::size_t>(missing), ' ').append(text);
}

} // namespace kavela
