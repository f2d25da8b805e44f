#pragma once

#include "common/delimited_text.h"
#include "common/refused_line.h"

#include <cstdint>
#include <string>
#include <string_view>
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

} // namespace kavela
