#pragma once

#include "common/refused_line.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// Semicolon-separated lists that people and spreadsheets write.
namespace kavela {

/// A line with something on it, its fields without blanks around them and without the quotes that
/// spreadsheets put around a field.
struct ListLine {
    std::int64_t number = 0;
    std::vector<std::string> fields;
};

/// The lines of a list but its first, which holds the titles, and blank ones.
[[nodiscard]] std::vector<ListLine> linesBelowTitles(std::string_view text);

/// Reads a whole field as a number in plain form with a point; false when it is none.
template <class Number>
[[nodiscard]] bool parseField(std::string_view field, Number& number) {
    if (field.starts_with('+') && !field.starts_with("+-"))
        field.remove_prefix(1);
    const char* const end = field.data() + field.size();
    const auto [rest, fault] = std::from_chars(field.data(), end, number);
    return fault == std::errc() && rest == end;
}

} // namespace kavela
