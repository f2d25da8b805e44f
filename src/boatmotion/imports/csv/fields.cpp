#include "boatmotion/imports/csv/fields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kavela::imports {

std::optional<double> fieldNumber(std::string_view field, bool hasDecimalComma) {
    std::array<char, 64> copy; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    if (hasDecimalComma && field.size() <= copy.size()) {
        std::replace_copy(field.begin(), field.end(), copy.begin(), ',', '.');
        field = {copy.data(), field.size()};
    }
    if (field.starts_with('+'))
        field.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
    if (error != std::errc() || end != field.data() + field.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool isMissing(std::string_view field) {
    constexpr std::array<std::string_view, 7> Words = {"nan",  "null", "-",  "na",
                                                       "none", "n/a",  "inf"};
    if (field.empty())
        return true;
    if (field.size() > 4)
        return false;
    std::string lower(field);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    return std::ranges::find(Words, lower) != Words.end();
}

} // namespace kavela::imports
