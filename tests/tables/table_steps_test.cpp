#include "tables/table_steps.h"

#include "tables/lists.h"
#include "tables/table_error.h"
#include "tables/table_text.h"

#include <gmock/gmock.h>

/// What a coach makes of a list, and takes back.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::ThrowsMessage;

TableSteps listSteps() {
    return TableSteps(readList("Name;Cat;Time\nrun 10;b;93\nrun 9;a;DNF\nRun 2;b;92\nrun 1;a;\n"));
}

} // namespace

TEST(TableSteps, LeaveTheListAndTheStepsBeforeAlone) {
    const TableSteps none = listSteps();
    const std::string source = tableCsv(none.table());
    const TableSteps sorted = none.with(SortStep{"Time"});
    const std::string inOrder = tableCsv(sorted.table());
    EXPECT_THAT(textsOf(sorted.table(), "Name"), ElementsAre("Run 2", "run 10", "run 9", "run 1"));
    const TableSteps ranked =
        sorted.with(parsedDerivedColumn("rank")).with(KindStep{"Cat", ListColumnKind::Text});
    EXPECT_EQ(tableCsv(sorted.table()), inOrder);
    EXPECT_EQ(tableCsv(none.table()), source);
    const TableSteps again(ranked.sharedSource(), ranked.steps());
    EXPECT_EQ(tableCsv(again.table()), tableCsv(ranked.table()));
    EXPECT_EQ(again.table().ids, ranked.table().ids);
    EXPECT_EQ(again.table().lines, ranked.table().lines);
}

TEST(TableSteps, SortWithinGroups) {
    const TableSteps grouped = listSteps().with(GroupStep{"Cat"}).with(SortStep{"Name"});
    EXPECT_THAT(textsOf(grouped.table(), "Name"), ElementsAre("run 1", "run 9", "Run 2", "run 10"));
    EXPECT_THAT(grouped.table().groups, ElementsAre(RowGroup{"a", 0, 2}, RowGroup{"b", 2, 2}));
    const TableSteps filtered = grouped.with(FilterStep{"Name", "RUN 1"});
    EXPECT_THAT(filtered.table().groups, ElementsAre(RowGroup{"a", 0, 1}, RowGroup{"b", 1, 1}));
    EXPECT_THAT(filtered.table().lines, ElementsAre(5, 2));
    const TableSteps down = listSteps().with(SortStep{"Time", true});
    EXPECT_THAT(textsOf(down.table(), "Name"), ElementsAre("run 10", "Run 2", "run 9", "run 1"));
}

TEST(TableSteps, ReadColumnsAsTheyAreTold) {
    const TableSteps told = listSteps().with(KindStep{"time", ListColumnKind::Date});
    EXPECT_EQ(told.table().columns[2].kind, ListColumnKind::Date);
    EXPECT_THAT(told.table().refused, SizeIs(2));
    EXPECT_THAT(listSteps().with(TitlesStep{false}).table().lines, ElementsAre(1, 2, 3, 4, 5));
}

TEST(TableSteps, RefuseWhatCannotBeDone) {
    const TableSteps gap = listSteps().with(parsedDerivedColumn("gap:Time"));
    EXPECT_THROW((void)gap.with(KindStep{"Time", ListColumnKind::Text}), TableError);
    EXPECT_THAT(
        [&] {
            (void)gap.with(KindStep{"gap", ListColumnKind::Text});
        },
        ThrowsMessage<TableError>(HasSubstr("\"gap\" is reckoned here")));
    EXPECT_THROW((void)gap.with(SortStep{"Bib"}), TableError);
    EXPECT_THROW((void)gap.with(TintStep{"Name"}), TableError);
    EXPECT_THAT(gap.with(TintStep{"gap"}).table().coloured, ElementsAre("gap"));
    EXPECT_THAT(gap.table().columns, SizeIs(4));
}

TEST(TableText, ReadsBackTheSame) {
    const ListTable table = tableIn("Name;Run 1;Day\n\"a;\"\"b\"\"\";1:32.45 (2);3.5.2026\n"
                                    "c;DNF;4.5.2026\nd;89,1 (0);5.5.2026\n");
    const std::string text = tableCsv(table);
    EXPECT_EQ(text, "Name;Run 1;Run 1 penalty;Day\n\"a;\"\"b\"\"\";92.45;2;2026-05-03\n"
                    "c;DNF;;2026-05-04\nd;89.1;0;2026-05-05\n");
    EXPECT_EQ(tableCsv(tableIn(text)), text);
}

} // namespace kavela::test
