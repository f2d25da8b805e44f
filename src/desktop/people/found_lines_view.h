#pragma once

#include "desktop/people/found_lines.h"
#include "desktop/shell/tables/column_table.h"

namespace kavela::desktop {

/// The lines of a file as a table: Space ticks the line, a click or typing chooses whose it is, Tab
/// goes from choice to choice.
class FoundLinesView : public ColumnTable {
    Q_OBJECT

public:
    explicit FoundLinesView(FoundLines& lines, QWidget* parent = nullptr);

    /// Makes the columns as wide as their texts, within reason.
    void fitColumns();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openChoice(const QModelIndex& index);

    FoundLines& m_lines;
};

} // namespace kavela::desktop
