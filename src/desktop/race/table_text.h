#pragma once

#include <QAbstractItemModel>
#include <QString>

namespace kavela::desktop {

/// Rows and columns of a table, in the order given, as tab-separated text with the headers: what a
/// spreadsheet takes from the clipboard.
[[nodiscard]] QString tabSeparated(const QAbstractItemModel& model, const QList<int>& rows,
                                   const QList<int>& columns);

/// One line of such a text: a field that holds the separator, a quote or a line break is quoted.
[[nodiscard]] QString separatedLine(QStringList fields, QChar separator);

} // namespace kavela::desktop
