#pragma once

#include <QAbstractItemModel>
#include <QString>

namespace kavela::desktop {

/// Rows and columns of a table, in the order given, as tab-separated text with the headers: what a
/// spreadsheet takes from the clipboard.
[[nodiscard]] QString tabSeparated(const QAbstractItemModel& model, const QList<int>& rows,
                                   const QList<int>& columns);

/// Every row, as semicolon-separated text with a header line.
[[nodiscard]] QString semicolonSeparated(const QAbstractItemModel& model,
                                         const QList<int>& columns);

} // namespace kavela::desktop
