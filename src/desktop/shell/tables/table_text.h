#pragma once

#include <QList>
#include <QString>

class QAbstractItemModel;

namespace kavela::desktop {

/// How a table becomes text for other programs.
struct TextTable {
    QChar separator;
    QString decimalSign;
};

/// What the spreadsheet of this computer takes from the clipboard.
[[nodiscard]] TextTable clipboardTable();

/// What is written to a file, the same on every computer.
[[nodiscard]] TextTable fileTable();

/// Rows and columns of a table, in the order given, as text with a line of titles. Cells are
/// numbers that can be reckoned with where their model tells them.
[[nodiscard]] QString tableAsText(const QAbstractItemModel& model, const QList<int>& rows,
                                  const QList<int>& columns, const TextTable& style,
                                  bool hasRowTitles = false);

/// One line of such a text: a field that holds the separator, a quote or a line break is quoted.
[[nodiscard]] QString separatedLine(QStringList fields, QChar separator);

} // namespace kavela::desktop
