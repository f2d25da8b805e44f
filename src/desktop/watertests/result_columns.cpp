#include "desktop/watertests/result_columns.h"

#include "desktop/shell/shown_number.h"
#include "planning/test_table.h"

namespace kavela::desktop {

namespace {

constexpr int NameAndDate = 2; ///< columns of text; the others hold numbers

/// The cells hold numbers to the last digit, as a spreadsheet wants them; people see two decimals.
Cell cellOf(const QString& title, const QString& text, bool isNumber) {
    bool isRead = false;
    const double number = isNumber ? text.toDouble(&isRead) : 0;
    const QString tip = title + ": " + text;
    if (!isRead)
        return {.text = text, .tip = tip};
    return {.text = shownHundredths(number), .number = number, .tip = tip};
}

} // namespace

std::vector<TestResultRow> resultRows(const TestList& tests) {
    std::vector<TestResultRow> rows;
    for (const auto& test : tests) {
        TestResultRow row{test, {}};
        for (const std::string& cell : testTableCells(tableRunOf(*test)))
            row.cells.append(QString::fromStdString(cell));
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<Column<TestResultRow, TestId>> resultColumns() {
    std::vector<Column<TestResultRow, TestId>> columns;
    for (const std::string& name : testTableColumns()) {
        const int at = static_cast<int>(columns.size());
        const bool isNumber = at >= NameAndDate;
        const QString title = QString::fromStdString(name);
        columns.push_back({.title = title,
                           .kind = isNumber ? ColumnKind::Number : ColumnKind::Text,
                           .show = [=](const TestResultRow& row) {
                               return cellOf(title, row.cells.value(at), isNumber);
                           }});
    }
    return columns;
}

std::string resultCsv(const std::vector<TestResultRow>& rows) {
    std::vector<testData> runs;
    for (const TestResultRow& row : rows)
        runs.push_back(tableRunOf(*row.test));
    return testTableCsv(runs);
}

} // namespace kavela::desktop
