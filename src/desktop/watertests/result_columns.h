#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/watertests/listed_test.h"

#include <QStringList>

#include <string>
#include <vector>

/// The tests as they stand in the exported table, one line each.
namespace kavela::desktop {

struct TestResultRow {
    TestList::value_type test;
    QStringList cells; ///< as they are exported
};

[[nodiscard]] std::vector<TestResultRow> resultRows(const TestList& tests);
[[nodiscard]] std::vector<Column<TestResultRow, TestId>> resultColumns();
/// The table as it is exported.
[[nodiscard]] std::string resultCsv(const std::vector<TestResultRow>& rows);

} // namespace kavela::desktop
