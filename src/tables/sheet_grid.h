#pragma once

#include "tables/list_grid.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the readers of spreadsheets share.
namespace kavela {

/// Cells that are one on the sheet, counted from 1.
struct MergedCells {
    std::int64_t firstLine = 0;
    std::int64_t lastLine = 0;
    std::int64_t column = 0;
};

/// Takes the cells of one sheet, line by line.
class SheetGrid {
public:
    explicit SheetGrid(std::string name);

    /// A cell's text at a place counted from 1; empty ones are passed over. Lines must come in
    /// ascending order, or else are refused, and so is what lies beyond the limits of a list.
    void add(std::int64_t line, std::int64_t column, std::string text);
    void refuse(std::int64_t line, std::int64_t column, std::string text, std::string reason);
    void merge(const MergedCells& cells) { m_merged.push_back(cells); }
    [[nodiscard]] bool isFull() const { return m_isFull; }
    /// The cells that were added so far, over all sheets of the document.
    [[nodiscard]] std::size_t cells() const { return m_cells; }
    void countFrom(std::size_t cells) { m_cells = cells; }

    /// The sheet, merged cells filled downwards: a category beside all its boats. Titles merged
    /// over several columns stay in the first one.
    [[nodiscard]] ListGrid finished();

private:
    void refuseRest(std::int64_t line, std::int64_t column, std::string text);
    void fill(const MergedCells& cells);

    ListGrid m_grid;
    std::vector<MergedCells> m_merged;
    std::size_t m_cells = 0;
    std::size_t m_filledLines = 0;
    bool m_isFull = false;
};

/// A number of a spreadsheet as plain text; the text itself where it is none.
[[nodiscard]] std::string sheetNumberText(std::string_view written);

/// Seconds as "1:32.45", with hours from 60 minutes on, to the millisecond.
[[nodiscard]] std::string sheetTimeText(double seconds);

} // namespace kavela
