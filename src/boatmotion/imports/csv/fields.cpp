#include "boatmotion/imports/csv/fields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kavela::imports {

namespace {

constexpr std::size_t MostFields = 256;
constexpr std::string_view Blanks = " \t\r";

std::string_view bare(std::string_view field) {
    const auto begin = field.find_first_not_of(Blanks);
    if (begin == field.npos)
        return {};
    field = field.substr(begin, field.find_last_not_of(Blanks) - begin + 1);
    if (field.size() >= 2 && field.front() == '"' && field.back() == '"')
        field = field.substr(1, field.size() - 2);
    return field;
}

/// Where the field that begins here ends.
std::size_t endOfField(std::string_view line, std::size_t begin, char separator) {
    bool isQuoted = false;
    for (std::size_t i = begin; i < line.size(); ++i) {
        if (line[i] == '"')
            isQuoted = !isQuoted;
        else if (line[i] == separator && !isQuoted)
            return i;
    }
    return line.size();
}

} // namespace

void splitFields(std::string_view line, char separator, std::vector<std::string_view>& fields) {
    fields.clear();
    std::size_t begin = 0;
    while (fields.size() < MostFields) {
        const std::size_t end = endOfField(line, begin, separator);
        fields.push_back(bare(line.substr(begin, end - begin)));
        if (end == line.size())
            return;
        begin = end + 1;
    }
}

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
