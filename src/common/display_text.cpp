#include "common/display_text.h"

#include <algorithm>
#include <cwchar>
#include <locale.h>
#include <vector>

namespace kavela {

namespace {

constexpr wchar_t Replacement = 0xFFFD;

/// The character tables for UTF-8, loaded once; null where the system has none.
locale_t utf8Tables() {
    static const locale_t Tables = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return Tables;
}

/// While it lives, the character functions of the C library work on UTF-8, whatever the user's
/// locale is.
class Utf8Locale {
public:
    Utf8Locale() {
        if (utf8Tables())
            m_previous = ::uselocale(utf8Tables());
    }
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;
    ~Utf8Locale() {
        if (m_previous)
            ::uselocale(m_previous);
    }

private:
    locale_t m_previous = nullptr;
};

/// One character with the bytes it came from.
struct Character {
    wchar_t code = Replacement;
    std::string_view bytes;
    bool isMalformed = false;
};

/// The C library also takes what looks like UTF-8 but is beyond Unicode, or half a pair.
bool isUnicode(wchar_t code) {
    return code >= 0 && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
}

std::vector<Character> charactersOf(std::string_view text) {
    std::vector<Character> characters;
    characters.reserve(text.size());
    std::mbstate_t state{};
    while (!text.empty()) {
        Character character;
        const std::size_t length = std::mbrtowc(&character.code, text.data(), text.size(), &state);
        character.isMalformed = length > text.size() || !isUnicode(character.code);
        if (character.isMalformed) {
            state = {};
            character.code = Replacement;
        }
        // A NUL character is reported as of length 0.
        const std::size_t taken = character.isMalformed ? 1 : std::max<std::size_t>(length, 1);
        character.bytes = text.substr(0, taken);
        text.remove_prefix(taken);
        characters.push_back(character);
    }
    return characters;
}

bool isControl(wchar_t code) {
    const bool steersDirection =
        (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || steersDirection;
}

int widthOf(const Character& character) {
    return std::max(::wcwidth(character.code), 0);
}

template <class Replace>
std::string rewritten(std::string_view text, Replace replace) {
    const Utf8Locale locale;
    std::string result;
    result.reserve(text.size());
    for (const Character& character : charactersOf(text))
        result += replace(character);
    return result;
}

} // namespace

std::string validUtf8(std::string_view text) {
    return rewritten(text, [](const Character& character) {
        return character.isMalformed ? std::string_view("\uFFFD") : character.bytes;
    });
}

std::string printable(std::string_view text) {
    return rewritten(text, [](const Character& character) {
        if (character.isMalformed)
            return std::string_view("\uFFFD");
        return isControl(character.code) ? std::string_view(" ") : character.bytes;
    });
}

int displayWidth(std::string_view text) {
    const Utf8Locale locale;
    int width = 0;
    for (const Character& character : charactersOf(text))
        width += widthOf(character);
    return width;
}

std::string fitted(std::string_view text, int width) {
    const int full = displayWidth(text);
    if (full <= width)
        return std::string(text).append(static_cast<std::size_t>(width - full), ' ');
    const Utf8Locale locale;
    std::string cut;
    int used = 0;
    for (const Character& character : charactersOf(text)) {
        if (used + widthOf(character) > width - 1)
            break;
        used += widthOf(character);
        cut += character.bytes;
    }
    return (cut + "…").append(static_cast<std::size_t>(std::max(width - 1 - used, 0)), ' ');
}

std::string rightAligned(std::string_view text, int width) {
    const int missing = std::max(width - displayWidth(text), 0);
    return std::string(static_cast<std::size_t>(missing), ' ').append(text);
}

} // namespace kavela
