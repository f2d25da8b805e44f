#include "common/folded_text.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace kavela {

namespace {

struct Accents {
    std::string_view plain;
    std::string_view accented;
};

constexpr std::array AccentTable = std::to_array<Accents>({
    {"a", "àáâãäåāăąǎǟǡǻȁȃȧḁạảấầẩẫậắằẳẵặ"},
    {"ae", "æǣǽ"},
    {"b", "ḃḅḇ"},
    {"c", "çćĉċčḉ"},
    {"d", "ðďđḋḍḏḑḓ"},
    {"e", "èéêëēĕėęěȅȇȩḕḗḙḛḝẹẻẽếềểễệ"},
    {"f", "ḟ"},
    {"g", "ĝğġģǧǵḡ"},
    {"h", "ĥħȟḣḥḧḩḫẖ"},
    {"i", "ìíîïĩīĭįıǐȉȋḭḯỉị"},
    {"ij", "ĳ"},
    {"j", "ĵǰ"},
    {"k", "ķĸǩḱḳḵ"},
    {"l", "ĺļľŀłḷḹḻḽ"},
    {"m", "ḿṁṃ"},
    {"n", "ñńņňŉŋǹṅṇṉṋ"},
    {"o", "òóôõöøōŏőơǒǫǭǿȍȏȫȭȯȱṍṏṑṓọỏốồổỗộớờởỡợ"},
    {"oe", "œ"},
    {"p", "ṕṗ"},
    {"r", "ŕŗřȑȓṙṛṝṟ"},
    {"s", "śŝşšſșṡṣṥṧṩẛ"},
    {"ss", "ß"},
    {"t", "ţťŧțṫṭṯṱẗ"},
    {"th", "þ"},
    {"u", "ùúûüũūŭůűųưǔǖǘǚǜȕȗṳṵṷṹṻụủứừửữự"},
    {"v", "ṽṿ"},
    {"w", "ŵẁẃẅẇẉẘ"},
    {"x", "ẋẍ"},
    {"y", "ýÿŷȝȳẏẙỳỵỷỹ"},
    {"z", "źżžƶẑẓẕ"},
    {"α", "ά"},
    {"ε", "έ"},
    {"η", "ή"},
    {"ι", "ίϊΐ"},
    {"ο", "ό"},
    {"σ", "ς"},
    {"υ", "ΰϋύ"},
    {"ω", "ώ"},
    {"а", "ӑӓ"},
    {"г", "ѓ"},
    {"е", "ѐёӗ"},
    {"ж", "ӂӝ"},
    {"з", "ӟ"},
    {"и", "йѝӣӥ"},
    {"к", "ќ"},
    {"о", "ӧ"},
    {"у", "ўӯӱӳ"},
    {"ч", "ӵ"},
    {"ы", "ӹ"},
    {"э", "ӭ"},
    {"і", "ї"},
});

using PlainLetters = std::unordered_map<char32_t, std::string_view>;

const PlainLetters& plainLetters() {
    static const PlainLetters Letters = [] {
        PlainLetters letters;
        for (const Accents& row : AccentTable)
            for (const char32_t letter : charactersIn(row.accented))
                letters.emplace(letter, row.plain);
        return letters;
    }();
    return Letters;
}

bool isWithin(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

bool isEven(char32_t character) {
    return character % 2 == 0;
}

/// Accents that stand behind their letter, as some systems write the names of files.
bool isCombining(char32_t character) {
    return isWithin(character, 0x0300, 0x036F);
}

void append(std::string& text, char32_t character) {
    const auto byte = [&](char32_t bits) { text += static_cast<char>(bits); };
    const auto rest = [&](int shift) { byte(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80)
        return byte(character);
    if (character < 0x800) {
        byte(0xC0 | (character >> 6));
    } else if (character < 0x10000) {
        byte(0xE0 | (character >> 12));
        rest(6);
    } else {
        byte(0xF0 | (character >> 18));
        rest(12);
        rest(6);
    }
    rest(0);
}

/// The length of a character's UTF-8 form by its first byte; 0 where none begins.
std::size_t lengthFrom(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool isUnicode(char32_t character, std::size_t length) {
    constexpr std::array<char32_t, 5> Smallest{0, 0, 0x80, 0x800, 0x10000};
    return character >= Smallest[length] && character <= 0x10FFFF &&
           !isWithin(character, 0xD800, 0xDFFF);
}

/// Takes the first character off a text that is not empty.
char32_t takeCharacter(std::string_view& text) {
    constexpr char32_t Malformed = 0xFFFD;
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const std::size_t length = lengthFrom(at(0));
    char32_t character = length < 2 ? at(0) : at(0) & (0xFFU >> (length + 1));
    bool isWhole = length > 0 && length <= text.size();
    for (std::size_t i = 1; isWhole && i < length; ++i) {
        isWhole = (at(i) & 0xC0U) == 0x80U;
        character = (character << 6) | (at(i) & 0x3FU);
    }
    isWhole = isWhole && isUnicode(character, length);
    text.remove_prefix(isWhole ? length : 1);
    return isWhole ? character : Malformed;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes the digits off the front of a text, without leading zeros.
std::string_view takeNumber(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

/// Below 0, 0 or above 0 as the order of two folded names.
int naturalOrder(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
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

std::u32string charactersIn(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty())
        characters += takeCharacter(text);
    return characters;
}

char32_t smallLetter(char32_t c) {
    if (isWithin(c, 'A', 'Z') || (isWithin(c, 0xC0, 0xDE) && c != 0xD7))
        return c + 0x20;
    if (isWithin(c, 0x0391, 0x03AB) || isWithin(c, 0x0410, 0x042F))
        return c + 0x20;
    if (isWithin(c, 0x0400, 0x040F))
        return c + 0x50;
    switch (c) {
    case 0x0130:
        return 'i';
    case 0x0178:
        return 0xFF;
    case 0x0386:
        return 0x03AC;
    case 0x0388:
    case 0x0389:
    case 0x038A:
        return c + 0x25;
    case 0x038C:
        return 0x03CC;
    case 0x038E:
    case 0x038F:
        return c + 0x3F;
    case 0x1E9E:
        return 0xDF;
    default:
        break;
    }
    // From here on capitals and small letters take turns.
    if (isWithin(c, 0x0139, 0x0148) || isWithin(c, 0x0179, 0x017E) || isWithin(c, 0x01CD, 0x01DC))
        return isEven(c) ? c : c + 1;
    const bool startsEven = isWithin(c, 0x0100, 0x0137) || isWithin(c, 0x014A, 0x0177) ||
                            isWithin(c, 0x01DE, 0x01EF) || isWithin(c, 0x01F8, 0x021F) ||
                            isWithin(c, 0x0222, 0x0233) || isWithin(c, 0x0460, 0x0481) ||
                            isWithin(c, 0x048A, 0x04BF) || isWithin(c, 0x04D0, 0x04FF) ||
                            isWithin(c, 0x1E00, 0x1E95) || isWithin(c, 0x1EA0, 0x1EFF);
    return startsEven && isEven(c) ? c + 1 : c;
}

std::string folded(std::string_view text) {
    const PlainLetters& plain = plainLetters();
    std::string result;
    result.reserve(text.size());
    for (const char32_t character : charactersIn(text)) {
        if (isCombining(character))
            continue;
        const char32_t small = smallLetter(character);
        if (const auto letter = plain.find(small); letter != plain.end())
            result += letter->second;
        else
            append(result, small);
    }
    return result;
}

bool isNaturallyBefore(std::string_view a, std::string_view b) {
    const int order = naturalOrder(folded(a), folded(b));
    return order != 0 ? order < 0 : a < b;
}

} // namespace kavela
