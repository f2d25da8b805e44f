#pragma once

#include <QStringList>

#include <vector>

class QTableWidget;

/// Tables of a few texts, as stand beside the films.
namespace kavela::desktop {

/// A table of texts without row numbers, its last column taking what is left.
[[nodiscard]] QTableWidget* textTable(const QStringList& titles);

/// Fills a table row by row, leaving the row that was current so.
void fillTable(QTableWidget& table, const std::vector<QStringList>& rows);

/// Seconds to the hundredth; a dash for 0, which was not timed.
[[nodiscard]] QString timeOrDash(double seconds);

} // namespace kavela::desktop
