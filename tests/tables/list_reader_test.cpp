#include "tables/list_reader.h"
#include "tables/list_source.h"
#include "tables/lists.h"
#include "tables/table_error.h"

#include <gmock/gmock.h>

/// Lists as text: their separators, quotes and letters.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct SeparatedList {
    const char* name;
    const char* text;
    const char* separator;
    std::vector<std::string> second; ///< fields of the second line
};

class ListSeparators : public testing::TestWithParam<SeparatedList> {};

std::string nameOfList(const testing::TestParamInfo<SeparatedList>& tested) {
    return tested.param.name;
}

} // namespace

TEST_P(ListSeparators, AreFoundByTheCountsOfFields) {
    const ListGrid grid = readList(GetParam().text);
    EXPECT_EQ(grid.separator, GetParam().separator);
    ASSERT_THAT(grid.lines, SizeIs(testing::Ge(2U)));
    EXPECT_EQ(grid.lines[1].fields, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, ListSeparators,
    testing::Values(
        SeparatedList{"DecimalCommaAgainstSemicolon", "a,b;1,2\nc,d;3,4", ";", {"c,d", "3,4"}},
        SeparatedList{"TabFirst", "a\tb;c\nd\te;f", "\t", {"d", "e;f"}},
        SeparatedList{"Bar", "Pos|Name\n1|Novák, Jan", "|", {"1", "Novák, Jan"}},
        SeparatedList{"Comma", "Pos,Name\n1,Jan", ",", {"1", "Jan"}},
        SeparatedList{"MostLinesWin", "x;y\n1,2,3\n4,5,6", ",", {"1", "2", "3"}},
        SeparatedList{"TwoBlanks", "Pos  Name\n  1   Jan Novák ", "  ", {"1", "Jan Novák"}},
        SeparatedList{"DecimalCommaAgainstBlanks",
                      "1  Jan  92,45\n2  Eva  93,10",
                      "  ",
                      {"2", "Eva", "93,10"}},
        SeparatedList{"None", "Jan\nEva", "", {"Eva"}},
        SeparatedList{"EmptyFields", "a;b;c\n;;3\n", ";", {"", "", "3"}},
        SeparatedList{"QuotedSeparator", "a;b\n\"x;y\";2", ";", {"x;y", "2"}},
        SeparatedList{"DoubledQuotes", "a;b\n\"the \"\"Duck\"\"\";2", ";", {"the \"Duck\"", "2"}},
        SeparatedList{"OpenQuote", "a;b\n\"x;2\nc;d", ";", {"\"x", "2"}},
        SeparatedList{"HardBlanks", "a;b\n\u00A0x\u202F;2", ";", {"x", "2"}}),
    nameOfList);

TEST(ListReader, CountsLinesOverBlankAndQuotedOnes) {
    const ListGrid grid = readList("a;b\r\n\r\n\"two\r\nlines\";2\r\nc;3\r\n");
    ASSERT_THAT(grid.lines, SizeIs(3));
    EXPECT_EQ(grid.lines[1].number, 3);
    EXPECT_THAT(grid.lines[1].fields, ElementsAre("two lines", "2"));
    EXPECT_EQ(grid.lines[2].number, 5);
}

TEST(ListReader, RefusesWhatIsBeyondTheLimit) {
    std::string line;
    for (std::size_t i = 0; i <= MostGridColumns; ++i)
        line += "x;";
    const ListGrid grid = readList("y;z\n" + line, ";");
    EXPECT_THAT(grid.lines[1].fields, SizeIs(MostGridColumns));
    ASSERT_THAT(grid.refused, SizeIs(1));
    EXPECT_EQ(grid.refused[0].line, 2);
    EXPECT_EQ(grid.refused[0].column, static_cast<std::int64_t>(MostGridColumns) + 1);
}

TEST(ListSource, ReadsEveryEncoding) {
    const std::string utf8 = "Name;Time\nŠárka 🛶;92.5\n";
    std::string low = "\xFF\xFE";
    std::string high;
    for (const char16_t unit : std::u16string(u"Name;Time\nŠárka 🛶;92.5\n")) {
        low += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        high += {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
    }
    for (const std::string& bytes : {utf8, "\xEF\xBB\xBF" + utf8, low, high}) {
        const ListGrid grid = chosenList(readLists(bytes), "");
        ASSERT_THAT(grid.lines, SizeIs(2));
        EXPECT_EQ(grid.lines[0].fields[0], "Name");
        EXPECT_EQ(grid.lines[1].fields[0], "Šárka 🛶");
        EXPECT_THAT(grid.notes, IsEmpty());
    }
    const ListGrid latin = chosenList(readLists("Name;Time\n\x8A\xE1rka;92.5"), "");
    EXPECT_EQ(latin.lines[1].fields[0], "Šárka");
    EXPECT_THAT(latin.notes, ElementsAre(HasSubstr("Latin-1")));
}

TEST(ListSource, SaysWhatIsNoList) {
    const auto fault = [](const std::string& bytes) -> std::string {
        try {
            (void)readLists(bytes);
        } catch (const TableError& error) {
            return error.what();
        }
        return {};
    };
    EXPECT_THAT(fault("%PDF-1.7 ..."), HasSubstr("PDF"));
    EXPECT_THAT(fault("\x89PNG\r\n\x1A\n\1\2\3"), HasSubstr("neither text nor"));
    EXPECT_THAT(fault(" \n\n"), HasSubstr("nothing in it"));
    EXPECT_THAT(fault("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), HasSubstr("password"));
    EXPECT_THAT(fault("PK\x03\x04 cut off"), HasSubstr("damaged"));
}

} // namespace kavela::test
