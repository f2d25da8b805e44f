#include "performance/table_colours.h"
#include "performance/table_join.h"
#include "tables/list_reader.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"

#include <gmock/gmock.h>

/// Whose the rows of a table are, and how they are tinted.
namespace kavela::test {

namespace {

using testing::ElementsAre;

struct JoinRow {
    const char* name;
    const char* line; ///< name and category
    JoinCertainty certainty;
    std::vector<std::size_t> athletes;
};

class JoinedNames : public testing::TestWithParam<JoinRow> {};

std::string nameOfJoin(const testing::TestParamInfo<JoinRow>& tested) {
    return tested.param.name;
}

const std::vector<KnownAthlete> Team{{"BELL Anna", {"WK1", "WC1"}},
                                     {"DVOŘÁK Jan", {"MK1"}},
                                     {"NOVÁK Petr", {"MK1"}},
                                     {"Novák Petr", {"MK1"}},
                                     {"Hora Jan / Lis Eva", {}}};

} // namespace

TEST_P(JoinedNames, AreCertainByCrewAndCategory) {
    const ListTable table =
        tableOf(readList(std::string("Name;Class\n") + GetParam().line + "\nX Y;K1M\n"));
    const std::vector<JoinedRow> joined = joinedRows(table, Team);
    EXPECT_EQ(joined.at(0).certainty, GetParam().certainty);
    EXPECT_EQ(joined.at(0).athletes, GetParam().athletes);
    EXPECT_EQ(joined.at(1).certainty, JoinCertainty::None);
}

INSTANTIATE_TEST_SUITE_P(
    Names, JoinedNames,
    testing::Values(JoinRow{"Reordered", "Anna Bell;K1W", JoinCertainty::Certain, {0}},
                    JoinRow{"NoAccents", "Dvorak, Jan;K1M", JoinCertainty::Certain, {1}},
                    JoinRow{"NoCategory", "Dvorak Jan;", JoinCertainty::Certain, {1}},
                    JoinRow{"OtherCategory", "Dvorak Jan;C1M", JoinCertainty::Unsure, {1}},
                    JoinRow{"TwoOfOneName", "Petr Novak;K1M", JoinCertainty::Unsure, {2, 3}},
                    JoinRow{"Double", "Eva Lis & Jan Hora;X", JoinCertainty::Certain, {4}},
                    JoinRow{"Initial", "Bell A.;K1W", JoinCertainty::Unsure, {0}},
                    JoinRow{"Stranger", "Somebody Else;K1W", JoinCertainty::None, {}}),
    nameOfJoin);

TEST(JoinedRows, NeedAColumnOfNames) {
    EXPECT_THROW((void)joinedRows(tableOf(readList("Club;Time\nUSK;92")), Team), TableError);
}

TEST(TableBands, TintTheWinnersGapAsTheFastest) {
    const ListTable table = tableOf(readList("Name;Gap;Time\na;0;90\nb;1;DNF\nc;2;92\nd;9;999.99"));
    EXPECT_EQ(tableBands(table.columns[1]).front(), Band::Fastest);
    EXPECT_EQ(tableBands(table.columns[1]).back(), Band::Band10);
    EXPECT_THAT(tableBands(table.columns[2]),
                ElementsAre(Band::Fastest, Band::Clear, Band::Band10, Band::Clear));
    EXPECT_THROW((void)tableBands(table.columns[0]), TableError);
}

} // namespace kavela::test
