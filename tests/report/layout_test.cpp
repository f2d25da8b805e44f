#include "report/list_flow.h"
#include "report/report_table.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using report::flowLists;
using report::FlowSizes;
using report::ListPart;

constexpr FlowSizes Sizes{30, 10, 12, 400, 600};

athletedata031 runIn(const char* name, const char* phase, std::vector<double> times) {
    athletedata031 run = runOf(std::move(times));
    run.names = {name};
    run.phase = phase;
    return run;
}

} // namespace

TEST(ListFlow, KeepsOrderAndRowsAndStaysOnThePage) {
    using Rows = std::vector<std::size_t>;
    for (const Rows& rows :
         {Rows{}, Rows{0}, Rows{3}, Rows{28, 20, 10}, Rows{200}, Rows{37, 1, 38, 2}, Rows(50, 7),
          Rows{55, 56, 57, 58}, Rows{1, 300, 1}}) {
        for (const std::size_t columns : {1U, 2U, 3U}) {
            std::vector<std::size_t> rowsSeen(rows.size());
            std::size_t column = 0;
            qreal bottom = 0;
            for (const ListPart& part : flowLists(rows, columns, Sizes)) {
                EXPECT_EQ(part.firstRow, rowsSeen[part.list]);
                rowsSeen[part.list] = part.endRow;
                if (part.column > column)
                    bottom = 0;
                EXPECT_GE(part.column, column);
                EXPECT_GE(part.top, bottom) << "parts lie on one another";
                column = part.column;
                bottom = part.top + Sizes.height(part.endRow - part.firstRow);
                EXPECT_LE(bottom, column < columns ? Sizes.firstPage : Sizes.otherPages);
            }
            EXPECT_EQ(rowsSeen, rows);
        }
    }
}

TEST(ListFlow, CutsNoListThatFitsAndEvensOutTheColumns) {
    const std::vector<std::size_t> rows{10, 10, 10, 10};
    const std::vector<ListPart> parts = flowLists(rows, 2, Sizes);
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_EQ(parts[1].column, 0U);
    EXPECT_EQ(parts[2].column, 1U);

    const std::vector<std::size_t> one{30};
    EXPECT_EQ(flowLists(one, 3, Sizes).size(), 1U) << "a list is not cut to fill columns";
}

TEST(ReportTable, GroupsRunsAndCarriesTheColoursOfTheTable) {
    const RaceSet set = makeRaceSet(raceOf(1, {runIn("A", "Heats", {10}), runIn("B", "Final", {11}),
                                               runIn("C", "Heats", {12}), runIn("D", "", {0})}),
                                    "a.kvx");
    TableSettings settings;
    const report::ReportTable race =
        report::reportTable(set, makeSplitTable(set, settings), settings);
    ASSERT_EQ(race.groups.size(), 3U);
    EXPECT_EQ(race.groups[0].title, "Heats");
    ASSERT_EQ(race.groups[0].rows.size(), 2U);
    EXPECT_EQ(race.groups[0].rows[1].name, "C");
    EXPECT_EQ(race.groups[2].title, "");
    EXPECT_EQ(race.rowCount(), 4U);
    const report::ReportCell& best = race.groups[0].rows[0].cells[0];
    const report::ReportCell& other = race.groups[0].rows[1].cells[0];
    EXPECT_TRUE(best.isBest);
    EXPECT_FALSE(best.ground);
    EXPECT_GT(best.ink.green(), best.ink.red());
    EXPECT_FALSE(other.isBest);
    EXPECT_GT(other.ink.red(), other.ink.green());
    EXPECT_EQ(race.groups[2].rows[0].cells[0].text, "0.00");

    settings.colorMode = "Training";
    const report::ReportTable training =
        report::reportTable(set, makeSplitTable(set, settings), settings);
    EXPECT_TRUE(training.groups[0].rows[0].cells[0].isBest);
    EXPECT_EQ(training.groups[0].rows[0].cells[0].ground, QColor(0, 255, 0));
    EXPECT_EQ(training.groups[0].rows[1].cells[0].ground, QColor(255, 51, 51))
        << "red with a fifth of the paper";
    EXPECT_EQ(training.groups[2].rows[0].cells[0].text, "-");
}

} // namespace kavela::test
