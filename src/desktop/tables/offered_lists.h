#pragma once

#include "performance/table_work.h"
#include "tables/list_grid.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

/// Where a table may come from.
namespace kavela::desktop {

/// One of the lists of a file: its only one, a sheet, or what a split file carries.
struct OfferedList {
    std::string name; ///< tells it from the others of the file; empty for the only one of a text
    QString title;    ///< how it is called; empty for the only one of a text
    ListGrid grid;
};

struct OfferedLists {
    std::vector<OfferedList> lists; ///< at least one, or none beside saved work
    QStringList left;               ///< what a split file carries besides, and why it is no list
    /// What was made of a list and saved, which has that list in it: no others are offered then.
    std::optional<TableWork> work = {};
};

/// Whether a file is what was made of a list, by its name.
[[nodiscard]] bool isTableWorkFile(const QString& path);

/// Whether a file is a race, which may carry lists.
[[nodiscard]] bool isRaceFile(const QString& path);

/// Every list of a text, a spreadsheet or a split file, which is only read. Throws TableError where
/// there is none, DecodeError for damaged work, FileError for what cannot be read. For any thread.
[[nodiscard]] OfferedLists offeredLists(const QString& path);

/// The same of a text, as it was copied.
[[nodiscard]] OfferedLists offeredLists(std::string bytes);

/// What the kinds of files are called where one is chosen.
[[nodiscard]] QString listFilter();

/// Whether a file is one that may hold a list, by its name.
[[nodiscard]] bool isListFile(const QString& path);

} // namespace kavela::desktop
