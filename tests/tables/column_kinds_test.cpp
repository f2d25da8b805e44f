#include "tables/column_kinds.h"
#include "tables/lists.h"
#include "tables/shown_decimals.h"

#include <gmock/gmock.h>

/// What columns and cells are taken for.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct KindRow {
    const char* name;
    std::vector<std::string> cells;
    ListColumnKind kind;
};

class GuessedKinds : public testing::TestWithParam<KindRow> {};

std::string nameOfKinds(const testing::TestParamInfo<KindRow>& tested) {
    return tested.param.name;
}

struct CellRow {
    ListColumnKind kind;
    const char* text;
    std::optional<double> number;
    bool isRefused = false;
};

} // namespace

TEST_P(GuessedKinds, AreTheNarrowestThatTakeMost) {
    EXPECT_EQ(guessedKind(GetParam().cells), GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, GuessedKinds,
    testing::Values(KindRow{"Whole", {"1", "2", "-", ""}, ListColumnKind::Whole},
                    KindRow{"Ordinal", {"1.", "2.", "10."}, ListColumnKind::Whole},
                    KindRow{"PointAndComma", {"92.45", "92,5", "7"}, ListColumnKind::Decimal},
                    KindRow{
                        "TimesOverAMinute", {"59.20", "58.10", "1:02.45"}, ListColumnKind::Time},
                    KindRow{"TimesWithPenalty", {"92.45 (2)", "93.10"}, ListColumnKind::Time},
                    KindRow{"TimesBesideStatus", {"92.45", "DNF", "dns"}, ListColumnKind::Decimal},
                    KindRow{"Status", {"DNF", "DSQ-R", ""}, ListColumnKind::Status},
                    KindRow{"Days", {"2026-05-03", "3. 5. 2026", "3/5/2026"}, ListColumnKind::Date},
                    KindRow{"OneFault", {"1", "2", "abc"}, ListColumnKind::Whole},
                    KindRow{"TooManyFaults", {"1", "x", "abc"}, ListColumnKind::Text},
                    KindRow{"Nothing", {"", "-"}, ListColumnKind::Text}),
    nameOfKinds);

TEST(ColumnKinds, ReadCells) {
    for (const CellRow& row : {CellRow{ListColumnKind::Time, "1:32,45", 92.45},
                               CellRow{ListColumnKind::Time, "92.45 +2", 92.45},
                               CellRow{ListColumnKind::Time, "92.45 (x)", {}, true},
                               CellRow{ListColumnKind::Time, "1:75.00", {}, true},
                               CellRow{ListColumnKind::Time, "DNF", {}},
                               CellRow{ListColumnKind::Whole, "12.5", {}, true},
                               CellRow{ListColumnKind::Decimal, "–", {}},
                               CellRow{ListColumnKind::Decimal, "1e5", {}, true},
                               CellRow{ListColumnKind::Date, "2000-01-02", 10958.0},
                               CellRow{ListColumnKind::Date, "30.2.2026", {}, true},
                               CellRow{ListColumnKind::Date, "3.5.26", {}, true},
                               CellRow{ListColumnKind::Text, "x", {}}}) {
        const CellValue value = valueAs(row.kind, row.text);
        EXPECT_EQ(value.number, row.number) << row.text;
        EXPECT_EQ(!value.reason.empty(), row.isRefused) << row.text;
    }
    EXPECT_EQ(valueAs(ListColumnKind::Time, "1:32.45 (50)").penalty, 50);
    EXPECT_EQ(dayNumberText(10958), "2000-01-02");
}

TEST(TableReading, TellsWhatWasNotTaken) {
    const ListTable table = tableIn("World Cup\n\nPos;Name;Time\n1;Jan;92.45\n2;Eva;9x.1\n3;Iva\n"
                                    "Pos;Name;Time\n4;Ota;93.1;more\n5;Ida;94.0\n");
    EXPECT_THAT(textsOf(table, "Name"), ElementsAre("Jan", "Eva", "Iva", "Ota", "Ida"));
    EXPECT_THAT(table.lines, ElementsAre(4, 5, 6, 8, 9));
    ASSERT_THAT(table.refused, SizeIs(5));
    EXPECT_EQ(table.refused[0], (RefusedCell{1, 0, "World Cup", "stands above the titles"}));
    EXPECT_EQ(table.refused[1].line, 5);
    EXPECT_EQ(table.refused[1].column, 3);
    EXPECT_EQ(table.refused[1].text, "9x.1");
    EXPECT_EQ(table.refused[2],
              (RefusedCell{6, 3, "", "the line ends here: it has 2 of 3 fields"}));
    EXPECT_EQ(table.refused[3].reason, "the titles once more");
    EXPECT_EQ(table.refused[4].text, "more");
}

TEST(TableReading, FindsOutWhetherTheFirstLineIsTitles) {
    EXPECT_EQ(tableIn("1;Jan;92.45\n2;Eva;93.10").rows(), 2U);
    EXPECT_EQ(tableIn("1;Jan;92.45\n2;Eva;93.10").columns[1].name, "Column 2");
    EXPECT_EQ(tableIn("Name;2025;2026\nJan;92.45;91\nEva;93.1;90").rows(), 2U);
    EXPECT_EQ(tableIn("Name;Club\nJan;USK\nEva;Dukla").rows(), 2U);
}

TEST(TableReading, PartsTimesFromTheirPenalties) {
    const ListTable table =
        tableIn("Name;Run 1;Run 1\nJan;92.45 (2);90.1\nEva;1:33.10;x\nIda;DNF;89");
    ASSERT_THAT(table.columns, SizeIs(4));
    EXPECT_EQ(table.columns[2].name, "Run 1 penalty");
    EXPECT_TRUE(table.columns[2].isDerived);
    EXPECT_EQ(table.columns[3].name, "Run 1 2");
    EXPECT_THAT(numbersOf(table, "Run 1"), ElementsAre(92.45, 93.1, std::nullopt));
    EXPECT_THAT(numbersOf(table, "Run 1 penalty"), ElementsAre(2, std::nullopt, std::nullopt));
    EXPECT_THAT(table.refused, SizeIs(1)); // the x; DNF is a word of its own
}

/// A spreadsheet that shows 84.90 hands 84.9 on.
TEST(ShownDecimals, AreAsManyInAllCellsOfAColumn) {
    const ListTable table = tableIn("Name;Time;Points;Rank\n"
                                    "a;84.9;7,5;1\n"
                                    "b;1:32.45;12;2\n"
                                    "c;DNF;10,25;3\n"
                                    "d;92;x;4\n");
    const auto shown = [&](std::size_t column) {
        std::vector<std::string> texts;
        const ShownDecimals decimals(table.columns.at(column));
        for (const GridCell& cell : table.columns[column].cells)
            texts.push_back(decimals.textOf(cell));
        return texts;
    };
    ASSERT_THAT(table.columns, SizeIs(4));
    EXPECT_THAT(shown(1), ElementsAre("84.90", "1:32.45", "DNF", "92.00"));
    EXPECT_THAT(shown(2), ElementsAre("7,50", "12,00", "10,25", "x"));
    EXPECT_THAT(shown(3), ElementsAre("1", "2", "3", "4"));
    EXPECT_EQ(table.columns[1].cells[0].text, "84.9") << "what was read stays";
}

} // namespace kavela::test
