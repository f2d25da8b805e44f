#pragma once

#include <QList>
#include <QString>

namespace kavela::desktop {

class SplitTableModel;

/// How a table becomes text for other programs.
struct TextTable {
    QChar separator;
    QString decimalSign;
};

/// Rows and columns of a split table, in the order given, as text with a line of headers. Cells are
/// numbers that can be reckoned with; penalties that the cells show in brackets stand in a column
/// of their own behind that of the times.
[[nodiscard]] QString tableAsText(const SplitTableModel& model, const QList<int>& rows,
                                  const QList<int>& columns, const TextTable& style);

/// What the spreadsheet of this computer takes from the clipboard.
[[nodiscard]] TextTable clipboardTable();

/// What is written to a file, the same on every computer.
[[nodiscard]] TextTable fileTable();

} // namespace kavela::desktop
