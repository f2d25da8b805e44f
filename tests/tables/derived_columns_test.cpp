#include "tables/derived_columns.h"
#include "tables/lists.h"
#include "tables/pivot.h"
#include "tables/table_error.h"

#include <gmock/gmock.h>

/// Columns reckoned from others, and pivots.
namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;

constexpr auto None = std::nullopt;

const char* const Results = "Name;Cat;Time;Pen\n"
                            "Jan;K1M;90.004;2\n"
                            "Eva;K1W;100;0\n"
                            "Ota;K1M;90.001;2\n"
                            "Ida;K1W;110;\n"
                            "Ivo;K1M;DNF;\n"
                            "Ben;K1M;999.99;0\n"
                            "Leo;K1M;0;50\n"
                            "Max;K1M;95;50\n";

ListTable derived(const std::string& text, const ListTable& table = tableIn(Results)) {
    return withDerived(table, parsedDerivedColumn(text));
}

auto near(double value) {
    return Optional(DoubleNear(value, 1e-12));
}

std::string faultOf(const std::string& text) {
    try {
        (void)derived(text);
    } catch (const TableError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(DerivedColumns, AddTimesAndPenaltiesOfRuns) {
    const ListTable table = derived("total");
    EXPECT_THAT(numbersOf(table, "total"), ElementsAre(near(92.004), near(100), near(92.001),
                                                       near(110), None, None, None, near(145)));
    EXPECT_EQ(textsOf(table, "total")[4], "DNF");
    EXPECT_TRUE(table.columns.back().isDerived);
}

TEST(DerivedColumns, CompareWithTheBest) {
    EXPECT_THAT(numbersOf(derived("rank:Time"), "rank"),
                ElementsAre(1, 4, 1, 5, None, None, None, 3));
    EXPECT_THAT(numbersOf(derived("rank:Time by Cat"), "rank"),
                ElementsAre(1, 1, 1, 2, None, None, None, 3));
    EXPECT_THAT(numbersOf(derived("gap by Cat"), "gap"),
                ElementsAre(near(0.003), 0, 0, 10, None, None, None, near(4.999)));
    EXPECT_THAT(numbersOf(derived("percent:Time by Cat"), "percent"),
                ElementsAre(near(100 * (90.004 / 90.001 - 1)), 0, 0, near(10), None, None, None,
                            near(100 * (95 / 90.001 - 1))));
    EXPECT_THAT(numbersOf(derived("percentile:Time"), "percentile"),
                ElementsAre(0, 75, 0, 100, None, None, None, 50));
    EXPECT_THAT(numbersOf(derived("difference:Time,Pen"), "difference"),
                ElementsAre(near(88.004), 100, near(88.001), None, None, None, None, 45));
}

TEST(DerivedColumns, RankFromTheHighestOnWish) {
    const ListTable table = tableIn("Name;Points\na;10\nb;30\nc;30\nd;20");
    EXPECT_THAT(numbersOf(derived("rank:Points down", table), "rank"), ElementsAre(4, 1, 1, 3));
    EXPECT_THAT(numbersOf(derived("gap:Points down", table), "gap"), ElementsAre(20, 0, 0, 10));
}

TEST(DerivedColumns, AreWrittenAsTheyAreRead) {
    for (const char* const text :
         {"rank", "total:Time,Pen", "gap:Time by Cat", "rank: down", "rank:Points down by Cat",
          "difference:\"Run 1, clean\",\"a by b\"", "rank:\"down\"", "percent: by Cat"}) {
        const DerivedColumn read = parsedDerivedColumn(text);
        EXPECT_EQ(parsedDerivedColumn(textOf(read)), read) << text << " | " << textOf(read);
    }
    EXPECT_THAT(parsedDerivedColumn("difference:\"Run 1, clean\",\"a by b\"").columns,
                ElementsAre("Run 1, clean", "a by b"));
}

TEST(DerivedColumns, SayWhatIsWrong) {
    EXPECT_THAT(faultOf("sum:Time"), HasSubstr("\"sum\" is none of total, rank"));
    EXPECT_THAT(faultOf("rank:Tme"), HasSubstr("There is no column \"Tme\"; there is \"Name\""));
    EXPECT_THAT(faultOf("rank:Name"), HasSubstr("\"Name\" has no numbers"));
    EXPECT_THAT(faultOf("rank:Time,Pen"), HasSubstr("one column, not of 2"));
    EXPECT_THAT(faultOf("difference"), HasSubstr("needs two columns"));
}

TEST(Pivots, PutRowsTogether) {
    const ListTable list =
        tableIn("Nation;Cat;Time\nCZE;K1M;92\nSLO;K1W;110\nCZE;K1M;90\nCZE;K1W;105\n"
                "SLO;K1W;999.99\nSLO;K1M;DNF");
    const ListTable means = pivoted(list, parsedPivot("Nation,Cat,Time,mean"));
    EXPECT_THAT(textsOf(means, "Nation"), ElementsAre("CZE", "SLO"));
    EXPECT_THAT(numbersOf(means, "K1M"), ElementsAre(91, None));
    EXPECT_THAT(numbersOf(means, "K1W"), ElementsAre(105, 110));
    const ListTable counts = pivoted(list, parsedPivot("Nation,,Time,count"));
    EXPECT_THAT(numbersOf(counts, "count Time"), ElementsAre(3, 3));
    EXPECT_EQ(counts.columns[1].kind, ListColumnKind::Whole);
    struct FigureRow {
        const char* function;
        double cze;
    };
    for (const FigureRow& row : {FigureRow{"sum", 287}, FigureRow{"median", 92},
                                 FigureRow{"least", 90}, FigureRow{"most", 105}}) {
        const ListTable table =
            pivoted(list, parsedPivot(std::string("Nation,,Time,") + row.function));
        EXPECT_EQ(table.columns[1].cells[0].number, row.cze) << row.function;
    }
    EXPECT_THROW((void)parsedPivot("Nation,Cat,Time"), TableError);
    EXPECT_THROW((void)parsedPivot("Nation,Cat,Time,average"), TableError);
    EXPECT_THROW((void)pivoted(list, parsedPivot("Nation,Cat,Cat,sum")), TableError);
}

} // namespace kavela::test
