#pragma once

#include "analysis/colouring.h"
#include "analysis/standing.h"

#include <optional>
#include <string>
#include <vector>

/// The split table as it is shown: columns, and for each run its cells with value, text and colour.
namespace kavela {

/// How the coach wants the table. Defaults are those of the preferences.
struct TableSettings {
    ValueKind kind = ValueKind::Sections;
    bool penaltiesIncluded = false;
    bool penaltiesVisible = false;
    std::string colorMode = "Race"; ///< anything else tints the cells

    /// Whether cells are tinted by rank; in race mode only their text is coloured.
    [[nodiscard]] bool isTinted() const { return colorMode != "Race"; }
};

/// One column of the table.
struct TableColumn {
    std::optional<int> number; ///< of the comparison column; none for sections beyond the tenth
    std::string title;
};

/// One cell of the table.
struct TableCell {
    std::optional<int> column;
    double value = 0; ///< seconds, unrounded: the value that is coloured
    std::string text;
    std::optional<Band> band; ///< none in race mode
    std::optional<Colour> background;
    std::optional<Colour> foreground;
    /// Whether the value may be a best. Band and background follow the value alone.
    TimeStanding standing = TimeStanding::Counts;
    bool isBest = false; ///< to the hundredth, among the values of the column that count

    /// Whether a value is shown that counts for nothing: it is greyed.
    [[nodiscard]] bool isGreyed() const { return value != 0 && standing != TimeStanding::Counts; }
};

/// The cells of one run, in the order of the columns.
struct TableRow {
    const analyzerdata* run = nullptr;
    bool isFullRun = false;
    std::vector<TableCell> cells;
};

/// A whole table. Its rows point into the race set it was made of.
struct SplitTable {
    std::vector<TableColumn> columns;
    std::vector<TableRow> rows;
};

/// The columns of the table of a race: the sections of the course, total, sprint and real time.
[[nodiscard]] std::vector<TableColumn> tableColumns(const RaceSet& set);

/// Builds and colours the table: the sections of the course, total, sprint and real time.
[[nodiscard]] SplitTable makeSplitTable(const RaceSet& set, const TableSettings& settings);

/// One cell of the table of a race, not yet coloured: the run by its place in the set, the column
/// by its place in the table.
[[nodiscard]] TableCell splitCell(const RaceSet& set, const TableSettings& settings,
                                  std::size_t run, std::size_t column, Why* why = nullptr);

/// The values of a row by column, 0 where they do not count: what others are held against.
[[nodiscard]] std::vector<double> countedValues(const TableRow& row);

/// Whether some cell shows a value that counts for nothing.
[[nodiscard]] bool hasGreyed(const SplitTable& table);

/// The text of a time: two decimals; where cells are tinted, "-" for a time that was not taken.
[[nodiscard]] std::string timeText(double seconds, bool isTinted);

} // namespace kavela
