#include "common/typed_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace kavela {

namespace {

/// The minus of typography, which some systems write in front of numbers.
constexpr std::string_view LongMinus = "\u2212";

constexpr int MostParts = 3; ///< hours, minutes and seconds

bool isDigit(char sign) {
    return sign >= '0' && sign <= '9';
}

std::string_view withoutBlanks(std::string_view text) {
    // Blanks that do not break come with what is copied from web pages and spreadsheets.
    constexpr std::array<std::string_view, 6> Blanks{" ", "\t", "\r", "\n", "\u00A0", "\u202F"};
    for (bool isCut = true; isCut;) {
        isCut = false;
        for (const std::string_view blank : Blanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                isCut = true;
            } else if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                isCut = true;
            }
        }
    }
    return text;
}

/// The text as std::from_chars reads it; empty for one that is no number. A sign is followed by
/// digits with one decimal sign among or around them at most.
std::string plainForm(std::string_view text) {
    text = withoutBlanks(text);
    std::string plain;
    if (text.starts_with('-') || text.starts_with(LongMinus)) {
        text.remove_prefix(text.starts_with('-') ? 1 : LongMinus.size());
        plain = '-';
    } else if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    plain += text;
    const auto isSign = [](char sign) { return sign == '.' || sign == ','; };
    if (std::ranges::none_of(text, isDigit) || std::ranges::count_if(text, isSign) > 1 ||
        !std::ranges::all_of(text, [&](char sign) { return isDigit(sign) || isSign(sign); }))
        return {};
    std::ranges::replace(plain, ',', '.');
    return plain;
}

template <class Number>
std::optional<Number> numberIn(std::string_view text) {
    const std::string plain = plainForm(text);
    const char* const end = plain.data() + plain.size();
    Number number = 0;
    const auto [rest, fault] = std::from_chars(plain.data(), end, number);
    return fault == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<double> typedReal(std::string_view text) {
    return numberIn<double>(text);
}

std::optional<std::int64_t> typedWhole(std::string_view text) {
    return numberIn<std::int64_t>(text);
}

std::optional<double> typedSeconds(std::string_view text) {
    constexpr double PartsOfMore = 60; // minutes of an hour, seconds of a minute
    text = withoutBlanks(text);
    double counted = 0; // of the parts read so far, in the unit of the part in hand
    for (int part = 0; part < MostParts; ++part) {
        const std::size_t colon = text.find(':');
        const std::string_view digits = text.substr(0, colon);
        const bool isLast = colon == std::string_view::npos;
        const bool isUnsigned = !digits.empty() && isDigit(digits.front());
        const bool isPlain =
            isLast ? part == 0 || isUnsigned : std::ranges::all_of(digits, isDigit);
        const auto number = typedReal(digits);
        if (!isPlain || !number || *number < 0 || (part > 0 && *number >= PartsOfMore))
            return {};
        counted = counted * PartsOfMore + *number;
        if (isLast)
            return counted;
        text.remove_prefix(colon + 1);
    }
    return {};
}

} // namespace kavela
