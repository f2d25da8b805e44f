#pragma once

#include "analysis/cell_text.h"

#include <optional>
#include <string>
#include <string_view>

/// Why a number of the analyzer is what it is, by the functions that make it. Ids:
///
///     cell/RUN/COL      the time in a cell, with its colour
///     band/RUN/COL      the colour alone, with the time
///     ideal/SECTION     the best of a section; ideal/total
///
/// RUN is counted from 0 in its file, columns and sections from 1.
namespace kavela {

/// A table as it is shown.
struct ShownTable {
    const RaceSet& set;
    const TableSettings& settings;
    const SplitTable& table;
    const TableFigures& figures;
    CellContent content = CellContent::Time;
    const TableReference& reference;
};

/// Why a cell of a run shows what it shows: its figure with the time it is made of, or its time
/// with the colour. For a cell that shows a dash, why there is no figure. `row` and `column` are
/// counted from 0 in the table.
[[nodiscard]] Reason explainCell(const ShownTable& shown, std::size_t row, std::size_t column);

/// The same for a cell of a row beside the runs; nothing where it shows a dash.
[[nodiscard]] std::optional<Reason> explainComparison(const ShownTable& shown,
                                                      const ComparisonRow& row, std::size_t column);

/// A number by its id; nothing when it names none, or one that is not known.
[[nodiscard]] std::optional<Reason> explainRace(const RaceSet& set, const TableSettings& settings,
                                                std::string_view id);

} // namespace kavela
