#include "desktop/tables/table_chart.h"

#include "tables/list_reader.h"
#include "tables/table_steps.h"

#include <gmock/gmock.h>

namespace kavela::test {

/// A spreadsheet hands 105.40 on as 105.4, and the table shows what was measured.
TEST(TableChartTest, SaysNumbersWithTheDecimalsOfTheTable) {
    const TableSteps steps(readList("Name;Time\nNova;105.4\nBirk;112.26\n"));
    const desktop::ChartContent content = desktop::columnContent(steps.table(), 1);
    EXPECT_THAT(content.subtitle.toStdString(), ::testing::HasSubstr("105.40 (Nova)"));
    EXPECT_THAT(content.subtitle.toStdString(), ::testing::HasSubstr("112.26 (Birk)"));
}

} // namespace kavela::test
