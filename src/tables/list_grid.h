#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A list as it stands in its file, before anybody says what its columns are.
namespace kavela {

/// A cell, or a whole line, that was not taken, and why.
struct RefusedCell {
    std::int64_t line = 0;   ///< of the file or sheet, counted from 1
    std::int64_t column = 0; ///< of the file or sheet, counted from 1; 0 for the whole line
    std::string text;        ///< as it stands there
    std::string reason;

    friend bool operator==(const RefusedCell&, const RefusedCell&) = default;
};

/// A line with something on it. Its fields are without blanks and quotes around them.
struct GridLine {
    std::int64_t number = 0; ///< of the file or sheet, counted from 1 with the blank ones
    std::vector<std::string> fields;
};

/// A whole list.
struct ListGrid {
    std::string name;      ///< of the sheet; empty for a text
    std::string separator; ///< of a text: one character or two blanks; empty where there is none
    std::vector<GridLine> lines;
    std::vector<RefusedCell> refused;
    std::vector<std::string> notes; ///< what was taken and is odd, in sentences

    [[nodiscard]] bool isText() const { return name.empty(); }
};

/// More than this no list of results has; what lies beyond is refused, never silently dropped.
inline constexpr std::size_t MostGridLines = 200'000;
inline constexpr std::size_t MostGridColumns = 256;
inline constexpr std::size_t MostGridCells = 1'000'000;

} // namespace kavela
