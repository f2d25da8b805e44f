#pragma once

#include <QStringList>

class QTableWidget;

/// Tables of the season's results, all of one look.
namespace kavela::desktop {

/// A table that is only read, whole rows chosen, the last column as wide as there is room.
[[nodiscard]] QTableWidget* plainTable(const QStringList& titles);

void setText(QTableWidget& table, int row, int column, const QString& text);
/// On the right.
void setNumber(QTableWidget& table, int row, int column, const QString& text);

} // namespace kavela::desktop
