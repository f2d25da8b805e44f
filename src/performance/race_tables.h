#pragma once

#include "common/reference_date.h"
#include "splitdata/records.h"
#include "tables/list_grid.h"
#include "tables/table.h"

#include <filesystem>
#include <string>
#include <vector>

/// The lists that a split file carries.
namespace kavela {

/// The names of those that are there: of its members "resultsCSVdata", "officialresults" and
/// "officialresultsAnalysis", in this order.
[[nodiscard]] std::vector<std::string> raceTableNames(const infodata031& info);

/// The lists of one of them: several where a spreadsheet with several sheets is attached. Throws
/// TableError for a document that holds no list, such as a PDF, and for a name that is not there.
[[nodiscard]] std::vector<ListGrid> raceTableLists(const infodata031& info,
                                                   const std::string& name);

/// Keeps a table with the race: as text in its `officialresultsAnalysis`, in place of what was
/// there. Reading it back gives the same columns and numbers.
void keepWithRace(infodata031& info, const ListTable& table);

/// Whether a table that the file has already may give way.
enum class KeptBefore { Stays, IsReplaced };

/// The same in a split file, which is written safely with `now` as its last moment; all else in it
/// stays. False, and nothing written, where it keeps a table already that is to stay. Throws
/// TableError for what is no split file of the current release, FileError where it cannot be
/// written.
[[nodiscard]] bool keepInSplitFile(const std::filesystem::path& file, const ListTable& table,
                                   KeptBefore before, ReferenceDate now);

} // namespace kavela
