#include "desktop/watertests/entry_table.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"

#include <QHeaderView>

#include <algorithm>

namespace kavela::desktop {

Cell entryCell(double value, bool hasZero) {
    if (value == 0 && !hasZero)
        return {};
    return {.text = shownHundredths(value), .number = value, .typed = shownNumber(value)};
}

double typedEntry(const QString& text, const EntryFacts& facts) {
    if (text.isEmpty() && !facts.hasZero)
        return 0;
    const QString title = QString(facts.title).replace('\n', ' ');
    const NumberRange range{
        0, facts.most,
        EntryTable::tr("“%1” is a number from 0 to %2").arg(title, shownNumber(facts.most))};
    const double number = text.contains(':') ? typedSeconds(text, range) : typedReal(text, range);
    if (number == 0 && !facts.hasZero)
        throw RefusedEntry(
            EntryTable::tr("“%1” is more than 0. An emptied cell stands for none.").arg(title));
    return number;
}

EntryTable::EntryTable(RowModel& rows, const char* name, QWidget* parent)
    : ColumnTable(rows, name, parent) {
    setSelectionBehavior(SelectItems);
    setSelectionMode(SingleSelection);
    setShowGrid(true);
    setAlternatingRowColors(false);
    setGoesDown(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    stretchAll();
    horizontalHeader()->setMinimumSectionSize(grown(*this, 64));
}

/// High enough for the rows of most tests, so that they need no scrolling.
QSize EntryTable::sizeHint() const {
    const int rows = std::clamp(model()->rowCount(), 5, 14);
    return {ColumnTable::sizeHint().width(), horizontalHeader()->sizeHint().height() +
                                                 rows * verticalHeader()->defaultSectionSize() +
                                                 2 * frameWidth()};
}

void EntryTable::emptyCurrent() {
    model()->setData(currentIndex(), QString());
}

} // namespace kavela::desktop
