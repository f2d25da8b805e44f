#include "desktop/splitfile/text_table.h"

#include "desktop/shell/shown_number.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace kavela::desktop {

QTableWidget* textTable(const QStringList& titles) {
    auto* table = new QTableWidget(0, static_cast<int>(titles.size()));
    table->setHorizontalHeaderLabels(titles);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

namespace {

bool isNumberOrNone(const QString& text) {
    static const QRegularExpression number("[-–−+±]?[0-9:.,\\s]*(%|s)?");
    return number
               .match(text, 0, QRegularExpression::NormalMatch,
                      QRegularExpression::AnchorAtOffsetMatchOption)
               .capturedLength() == text.size();
}

/// Numbers stand under each other by their last digit, and their title with them.
void alignNumbers(QTableWidget& table, int column) {
    const auto isDigit = [](QChar sign) { return sign.isDigit(); };
    bool hasNumber = false;
    bool areNumbers = true;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString text = table.item(row, column)->text();
        hasNumber = hasNumber || std::ranges::any_of(text, isDigit);
        areNumbers = areNumbers && isNumberOrNone(text);
    }
    const bool isRight = hasNumber && areNumbers;
    const Qt::Alignment side = (isRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    table.horizontalHeaderItem(column)->setTextAlignment(side);
    for (int row = 0; row < table.rowCount(); ++row)
        table.item(row, column)->setTextAlignment(side);
    if (isRight && column == table.columnCount() - 1)
        table.horizontalHeader()->setStretchLastSection(false); // beside the others, not far off
}

} // namespace

void fillTable(QTableWidget& table, const std::vector<QStringList>& rows) {
    const QSignalBlocker blocked(table);
    const int current = table.currentRow();
    table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column) {
            if (!table.item(row, column)) // one that is being edited must stay
                table.setItem(row, column, new QTableWidgetItem);
            table.item(row, column)->setText(rows[static_cast<std::size_t>(row)].value(column));
        }
    for (int column = 0; column < table.columnCount(); ++column)
        alignNumbers(table, column);
    if (current >= 0 && current < table.rowCount() && current != table.currentRow())
        table.setCurrentCell(current, 0);
}

QString timeOrDash(double seconds) {
    return hundredthsOrDash(seconds);
}

} // namespace kavela::desktop
