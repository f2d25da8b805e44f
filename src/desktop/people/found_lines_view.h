#pragma once

#include "desktop/people/found_lines.h"
#include "desktop/shell/edit_order.h"

namespace kavela::desktop {

/// The lines of a file as a table: Space ticks the line, a click or typing chooses whose it is, Tab
/// goes from choice to choice. The line stays the current one when lines come or go.
class FoundLinesView : public EditOrder<QTableView> {
    Q_OBJECT

public:
    explicit FoundLinesView(FoundLines& lines, QWidget* parent = nullptr);

    /// Makes the columns as wide as their texts, within reason.
    void fitColumns();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openChoice(const QModelIndex& index);
    void keepCurrent();

    FoundLines& m_lines;
    QString m_current; ///< the name in the current line, over the model's resets
    int m_column = 0;
};

} // namespace kavela::desktop
