#pragma once

#include <QAbstractItemModel>
#include <QString>

namespace kavela::desktop {

/// The rows of a table, in the order given, as tab-separated text with the headers: what a
/// spreadsheet takes from the clipboard.
[[nodiscard]] QString tabSeparated(const QAbstractItemModel& model, const QList<int>& rows);

/// The whole table as shown, as semicolon-separated text with a header line.
[[nodiscard]] QString semicolonSeparated(const QAbstractItemModel& model);

} // namespace kavela::desktop
