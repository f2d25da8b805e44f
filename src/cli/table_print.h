#pragma once

#include "cli/console.h"
#include "performance/table_join.h"
#include "tables/table.h"

#include <span>
#include <string>

namespace kavela::cli {

/// A table with whom its rows are about.
struct TablePrint {
    const ListTable& table;
    std::span<const KnownAthlete> athletes;
    std::span<const JoinedRow> joined; ///< empty where nobody asked
};

/// For people: aligned columns, groups under their key, whom we know behind, then how many rows
/// there are and each cell that was refused.
[[nodiscard]] std::string tableText(const TablePrint& print, const Terminal& terminal);

/// For programs: numbers in full precision, times in seconds, days as 2026-05-03, null for nothing
/// and for what was refused. A row is a list in the order of the columns; rows count from 0.
[[nodiscard]] std::string tableJson(const TablePrint& print);

} // namespace kavela::cli
