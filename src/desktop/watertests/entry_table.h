#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"

#include <vector>

namespace kavela::desktop {

/// What can be typed into a column of numbers, none of them negative.
struct EntryFacts {
    QString title;
    QString tip = {};
    double most = 0;      ///< a greater number is refused
    bool hasZero = false; ///< 0 is a value here and not the want of one
};

/// A number as it is entered. 0 stands for "not entered" and is an empty cell, unless it has zero.
[[nodiscard]] Cell entryCell(double value, bool hasZero = false);
/// The number typed into a cell; 0 for an emptied one. Throws RefusedEntry.
[[nodiscard]] double typedEntry(const QString& text, const EntryFacts& facts);

/// A column of numbers that a coach types into a row; `take` gets the number of the row, from 0.
template <class Row>
Column<Row> entryColumn(const EntryFacts& facts, std::function<double(const Row&)> value,
                        std::function<void(std::size_t row, double value)> take = {}) {
    Column<Row> column{
        .title = facts.title,
        .tip = facts.tip,
        .kind = ColumnKind::Number,
        .show = [=](const Row& row) { return entryCell(value(row), facts.hasZero); }};
    if (take)
        column.take = [=](const std::size_t& at, const Row& row, const QString& typed) {
            if (const double number = typedEntry(typed, facts); number != value(row))
                take(at, number);
        };
    return column;
}

/// A table to type numbers into: a digit begins, Enter goes on to the next row, Delete empties.
class EntryTable : public ColumnTable {
    Q_OBJECT

public:
    EntryTable(RowModel& rows, const char* name, QWidget* parent = nullptr);

    void emptyCurrent();
    [[nodiscard]] QSize sizeHint() const override;
};

} // namespace kavela::desktop
