#include "tables/table_reasons.h"

#include "common/why_text.h"
#include "tables/lists.h"
#include "tables/table_error.h"
#include "tables/table_rules.h"

#include <gmock/gmock.h>

#include <cmath>

/// Every number of a table tells how it came about.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// Places of what went into a number, "line:column".
std::vector<std::string> placesIn(const Reason& reason) {
    std::vector<std::string> places;
    for (const Input& input : reason.inputs)
        if (input.place)
            places.push_back(std::to_string(input.place->line.value_or(0)) + ':' +
                             std::to_string(input.place->column.value_or(0)));
    return places;
}

TableSteps resultSteps() {
    return TableSteps(readList("Name;Cat;Time;Pen\n"
                               "Jan;K1M;90.004;2\n"
                               "Eva;K1W;100;0\n"
                               "Ota;K1M;90.001;\n"
                               "Ivo;K1M;DNF;\n"
                               "Max;K1M;95;50\n"));
}

TableSteps withAll(TableSteps steps, const std::vector<std::string>& derivations) {
    for (const std::string& text : derivations)
        steps = steps.with(parsedDerivedColumn(text));
    return steps;
}

Reason reasonOf(const TableSteps& steps, const std::string& id) {
    return explainTable(steps, id, "day/final.csv").value_or(Reason());
}

} // namespace

/// Whatever moved the rows or left some out behind the step that made the number.
TEST(TableReasons, AreOfTheNumberThatIsShown) {
    const TableSteps all =
        withAll(resultSteps(), {"total", "rank:total", "gap:Time by Cat", "percent", "percentile",
                                "difference:total,Time", "rank:total down"});
    const TableSteps moved = all.with(SortStep{"Name", true})
                                 .with(FilterStep{"Cat", "K1M"})
                                 .with(GroupStep{"Cat"})
                                 .with(RemoveStep{"Name"});
    const TableSteps pivot = all.with(parsedPivot("Cat,,total,mean"));
    for (const TableSteps& steps :
         {all, moved, pivot, pivot.with(parsedDerivedColumn("rank:mean total"))}) {
        const ListTable& table = steps.table();
        std::size_t told = 0;
        for (std::size_t row = 0; row < table.rows(); ++row)
            for (std::size_t column = 0; column < table.columns.size(); ++column) {
                const GridColumn& shown = table.columns[column];
                const auto reason = explainTable(steps, row, column, "final.csv");
                const bool isNumber = isReckoned(shown.kind) && shown.cells[row].number;
                ASSERT_EQ(reason.has_value(), isNumber) << shown.name << ' ' << row;
                if (!reason)
                    continue;
                ++told;
                EXPECT_EQ(reason->value, *shown.cells[row].number) << shown.name << ' ' << row;
                EXPECT_EQ(std::stod(reason->shown), std::stod(shown.cells[row].text));
                EXPECT_NE(reason->rule, nullptr);
                EXPECT_FALSE(reason->inputs.empty()) << shown.name << ' ' << row;
            }
        EXPECT_GT(told, 1U);
        EXPECT_FALSE(explainTable(steps, table.rows(), 0, "final.csv"));
        EXPECT_FALSE(explainTable(steps, 0, table.columns.size(), "final.csv"));
    }
}

TEST(TableReasons, NameTheCellsOfTheListAndTheNumbersOnTheWay) {
    const TableSteps steps = withAll(resultSteps(), {"total", "rank:total by Cat"});
    const Reason total = reasonOf(steps, "cell/0/total");
    EXPECT_EQ(total.rule, &ruleOf(TableRule::Total));
    EXPECT_THAT(placesIn(total), ElementsAre("2:3", "2:4"));
    EXPECT_EQ(total.inputs[0].place->file, "day/final.csv");
    EXPECT_EQ(total.inputs[1].name, "Pen");
    EXPECT_THAT(whyText(total), HasSubstr("final.csv · line 2 · column 3"));
    EXPECT_THAT(whyText(total), HasSubstr("shown 92.00 of 92.004"));
    EXPECT_THAT(reasonOf(steps, "cell/2/total").notes, SizeIs(1)) << "a clean run's empty cell";

    // Jan is second behind Ota; Eva races in another category.
    const Reason rank = reasonOf(steps, "cell/0/rank");
    ASSERT_THAT(rank.inputs, SizeIs(4));
    EXPECT_EQ(rank.inputs[0].name, "Jan");
    EXPECT_EQ(rank.inputs[1].name, "Ota");
    EXPECT_EQ(rank.inputs[2].value, 1) << "better";
    EXPECT_EQ(rank.inputs[3].value, 2) << "others";
    EXPECT_THAT(placesIn(rank), ElementsAre("2:0", "4:0")) << "a reckoned column is in no list";
    EXPECT_THAT(rank.notes, ElementsAre(HasSubstr("K1M")));
    ASSERT_THAT(rank.parts, SizeIs(1));
    EXPECT_EQ(rank.parts[0].rule, &ruleOf(TableRule::Total));
    EXPECT_EQ(rank.parts[0].inputs.at(0).place->file, "day/final.csv");

    const Reason gap = reasonOf(withAll(resultSteps(), {"gap:Time"}), "cell/4/gap");
    EXPECT_THAT(placesIn(gap), ElementsAre("6:3", "4:3")) << "its own and the best";
}

TEST(TableReasons, OfPivotsNameEveryRowBehind) {
    const TableSteps steps = resultSteps().with(parsedPivot("Cat,,Time,mean"));
    const Reason mean = reasonOf(steps, "cell/0/mean Time");
    EXPECT_EQ(mean.rule, &ruleOf(TableRule::PivotMean));
    EXPECT_THAT(placesIn(mean), ElementsAre("2:3", "4:3", "6:3"));
    const Reason count =
        reasonOf(resultSteps().with(parsedPivot("Cat,,Time,count")), "cell/0/count Time");
    EXPECT_EQ(count.value, 4) << "DNF says something";
    for (const Input& input : count.inputs)
        EXPECT_EQ(input.value, 1);
    // Of what was reckoned from a pivot the pivot's own rows are behind.
    const Reason rank = reasonOf(steps.with(parsedDerivedColumn("rank:mean Time")), "cell/1/rank");
    EXPECT_EQ(rank.value, 2);
    ASSERT_THAT(rank.parts, SizeIs(1));
    EXPECT_THAT(placesIn(rank.parts[0]), ElementsAre("3:3"));
}

TEST(TableReasons, FollowHowTheListIsReadNow) {
    const TableSteps steps = TableSteps(readList("Name;Time\nJan;1:30.5 (2)\nEva;95,5 (0)"))
                                 .with(parsedDerivedColumn("total:Time,Time penalty"))
                                 .with(KindStep{"Time", ListColumnKind::Time});
    EXPECT_THAT(placesIn(reasonOf(steps, "cell/0/total")), ElementsAre("2:2", "2:2"))
        << "time and penalty stand in one cell";
    EXPECT_EQ(reasonOf(steps, "cell/0/Time penalty").value, 2);
    EXPECT_EQ(reasonOf(steps, "cell/0/time").rule, &ruleOf(TableRule::Read));
    for (const char* const id : {"", "total", "cell/", "cell/0", "cell/x/total", "cell/9/total",
                                 "cell/-1/total", "cell/0/Name"})
        EXPECT_FALSE(explainTable(steps, id, "final.csv")) << id;
    EXPECT_THROW((void)explainTable(steps, "cell/0/bib", "final.csv"), TableError);
}

} // namespace kavela::test
