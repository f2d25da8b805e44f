#pragma once

#include <QLabel>

namespace kavela::desktop {

/// What the cursor points at, told beside it.
class ReadOut : public QLabel {
    Q_OBJECT

public:
    explicit ReadOut(QWidget* chart);

    /// Shows a rich text beside a place of the chart, inside the chart.
    void showAt(const QPointF& place, const QString& text);
};

/// One line of a read-out as a row of a table.
[[nodiscard]] QString readOutRow(const QStringList& cells, const QColor& mark = {});

/// A table under a heading.
[[nodiscard]] QString readOutText(const QString& heading, const QStringList& rows);

} // namespace kavela::desktop
