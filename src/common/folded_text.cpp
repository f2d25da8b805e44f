#include "common/folded_text.h"

#include "common/utf8.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>

namespace kavela {

namespace {

struct PlainLetters {
    char32_t letter;
    std::string_view plain;
};

/// Small letters that are no accented ones to Unicode, but are to those who type a name.
constexpr std::array PlainTable = std::to_array<PlainLetters>({
    {U'æ', "ae"},
    {U'ð', "d"},
    {U'ø', "o"},
    {U'þ', "th"},
    {U'đ', "d"},
    {U'ħ', "h"},
    {U'ı', "i"},
    {U'ĳ', "ij"},
    {U'ĸ', "k"},
    {U'ŀ', "l"},
    {U'ł', "l"},
    {U'ŉ', "n"},
    {U'ŋ', "n"},
    {U'œ', "oe"},
    {U'ŧ', "t"},
    {U'ƶ', "z"},
});

/// Accents, which stand behind their letter once they are taken apart.
bool isAccent(char32_t character) {
    return character >= 0x0300 && character <= 0x036F;
}

/// A character in small letters, its accents apart. Their number is small, that of "ΐ" 3.
std::u32string takenApart(char32_t character) {
    constexpr auto How = static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_CASEFOLD);
    std::array<utf8proc_int32_t, 32> parts{};
    int boundary = 0;
    const auto count =
        utf8proc_decompose_char(static_cast<utf8proc_int32_t>(character), parts.data(),
                                static_cast<utf8proc_ssize_t>(parts.size()), How, &boundary);
    if (count < 0 || count > static_cast<utf8proc_ssize_t>(parts.size()))
        return {character};
    return {parts.begin(), parts.begin() + count};
}

/// The plain letters for one of the table; nothing for any other character.
std::string_view plainLettersFor(char32_t character) {
    const auto found = std::ranges::find(PlainTable, character, &PlainLetters::letter);
    return found == PlainTable.end() ? std::string_view() : found->plain;
}

bool isDigitByte(char c) {
    return c >= '0' && c <= '9';
}

/// Takes the digits off the front of a text, without leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigitByte);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

/// Below 0, 0 or above 0 as the order of two folded names.
int naturalOrder(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isDigitByte(a.front()) && isDigitByte(b.front())) {
            const std::string_view left = takeNumber(a);
            const std::string_view right = takeNumber(b);
            if (left.size() != right.size())
                return left.size() < right.size() ? -1 : 1;
            if (const int order = left.compare(right); order != 0)
                return order;
        } else if (a.front() != b.front()) {
            return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front())
                       ? -1
                       : 1;
        } else {
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

} // namespace

std::string folded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    const auto append = [&](char32_t character) {
        const std::string_view plain = plainLettersFor(character);
        if (plain.empty())
            appendUtf8(result, character);
        result += plain;
    };
    while (!text.empty()) {
        const char32_t character = takeCharacter(text).value_or(ReplacementCharacter);
        // "ŉ" as a whole, since an apostrophe would be left of it.
        if (const char32_t small = smallLetter(character); !plainLettersFor(small).empty())
            append(small);
        else
            for (const char32_t part : takenApart(character))
                if (!isAccent(part))
                    append(part);
    }
    return result;
}

bool isNaturallyBefore(std::string_view a, std::string_view b) {
    return NaturalName(a).isBefore(NaturalName(b));
}

bool NaturalName::isBefore(const NaturalName& other) const {
    const int order = naturalOrder(m_folded, other.m_folded);
    return order != 0 ? order < 0 : m_text < other.m_text;
}

} // namespace kavela
