#include "cli/program.h"
#include "common/json_encode.h"
#include "performance/table_work.h"
#include "results/team_records.h"
#include "splitdata/document.h"
#include "tables/list_reader.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

/// The call that shows any list of results as a table.
namespace kavela::test {

namespace {

using nlohmann::json;

using testing::HasSubstr;

struct WrongTableCall {
    const char* name;
    std::vector<std::string> arguments;
    int status;
    const char* message;
};

std::string nameOfTableCall(const testing::TestParamInfo<WrongTableCall>& tested) {
    return tested.param.name;
}

class TableCalls : public testing::Test {
protected:
    TableCalls() {
        (void)m_kavela.folder().add("list.csv", "Pos;Name;Cat;Time;Pen\n"
                                                "1;BELL Anna;K1W;92,45;2\n"
                                                "2;Šárka Lis;K1W;x;0\n"
                                                "3;Bell A.;K1W;95,5;0\n"
                                                "4;Ida Kos;K1W;DNF;\n");
        myTeamToSaveStruct team;
        team.realMyTeam.resize(1);
        team.realMyTeam[0].name = "BELL Anna";
        (void)m_kavela.folder().add("team.kvteam", encode(team));
        splittakerdata031 race;
        race.info.officialresults.bytes = {'%', 'P', 'D', 'F', '-', '1'};
        (void)m_kavela.folder().add("pdf.kvx", encode(race));
        race.info.resultsCSVdata = {{1, 4, "Anna Bell", "CZE", 90.25, 2, 92.25}};
        (void)m_kavela.folder().add("race.kvx", encode(race));
    }

    Program m_kavela;
};

class WrongTableCalls : public TableCalls, public testing::WithParamInterface<WrongTableCall> {};

} // namespace

TEST_F(TableCalls, PrintOneDocument) {
    const auto before = m_kavela.everything();
    const Ending ending = m_kavela.call({"table", "list.csv", "--derive", "total", "rank:total",
                                         "--team", "team.kvteam", "--json"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const json document = json::parse(ending.output);
    EXPECT_EQ(document["separator"], ";");
    EXPECT_EQ(document["columns"][3],
              (json{{"name", "Time"}, {"kind", "decimal"}, {"derived", false}}));
    EXPECT_EQ(document["columns"][6],
              (json{{"name", "rank"}, {"kind", "whole"}, {"derived", true}}));
    EXPECT_EQ(document["rows"][0], (json{1, "BELL Anna", "K1W", 92.45, 2, 94.45, 1}));
    EXPECT_EQ(document["rows"][1], (json{2, "Šárka Lis", "K1W", nullptr, 0, nullptr, nullptr}));
    EXPECT_EQ(document["rows"][3], (json{4, "Ida Kos", "K1W", "DNF", nullptr, "DNF", "DNF"}));
    ASSERT_EQ(document["refused"].size(), 1U);
    EXPECT_EQ(document["refused"][0]["line"], 3);
    EXPECT_EQ(document["refused"][0]["column"], 4);
    EXPECT_EQ(document["refused"][0]["text"], "x");
    EXPECT_EQ(document["joined"], json::parse(R"([{"row": 0, "athlete": "BELL Anna"}])"));
    EXPECT_THAT(ending.errors, HasSubstr("Line 4, Bell A.: perhaps BELL Anna"));
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(TableCalls, PrintAlignedColumns) {
    const Ending ending = m_kavela.call({"table", "list.csv"});
    ASSERT_EQ(ending.status, 0);
    EXPECT_EQ(ending.output, "Pos  Name       Cat   Time  Pen\n"
                             "  1  BELL Anna  K1W  92,45    2\n"
                             "  2  Šárka Lis  K1W      x    0\n"
                             "  3  Bell A.    K1W  95,50    0\n"
                             "  4  Ida Kos    K1W    DNF\n"
                             "4 rows, 1 refused:\n"
                             "Line 3, column 4, \"x\": no number: the column is decimal\n");
}

TEST_F(TableCalls, WritePivotsAndReadSplitFiles) {
    ASSERT_EQ(m_kavela.call({"table", "list.csv", "--pivot", "Cat,,Time,least", "--csv", "out.csv"})
                  .status,
              0);
    EXPECT_EQ(m_kavela.everything()["out.csv"], "Cat;least Time\nK1W;92.45\n");
    const Ending race = m_kavela.call({"table", "race.kvx"});
    EXPECT_EQ(race.status, 0);
    EXPECT_THAT(race.output, HasSubstr("Anna Bell"));
    EXPECT_THAT(race.errors, HasSubstr("it carries officialresults too"));
}

TEST_F(TableCalls, GoOnWithASavedTable) {
    TableWork work;
    work.steps = TableSteps(readList("Name;Time\nAnna;92.5\nEva;91\n")).with(SortStep{"Time"});
    (void)m_kavela.folder().add("made.kvtable", tableWorkText(work));
    (void)m_kavela.folder().add("broken.kvtable", "{\"steps\": 3}");
    const Ending ending =
        m_kavela.call({"table", "made.kvtable", "--derive", "gap", "--csv", "out.csv"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_EQ(m_kavela.everything()["out.csv"], "Name;Time;gap\nEva;91;0\nAnna;92.5;1.5\n");
    const Ending broken = m_kavela.call({"table", "broken.kvtable"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.errors, HasSubstr("damaged"));
}

TEST_F(TableCalls, ExplainANumberWithItsPlaces) {
    const auto before = m_kavela.everything();
    const Ending ending =
        m_kavela.call({"table", "list.csv", "--derive", "total", "--why", "cell/0/total"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, HasSubstr("list.csv · line 2 · column 4"));
    EXPECT_THAT(ending.output, HasSubstr("list.csv · line 2 · column 5"));
    EXPECT_THAT(ending.output, HasSubstr("94.45"));
    for (const char* const id : {"cell/3/Time", "cell/0/gone", "rank"})
        EXPECT_EQ(m_kavela.call({"table", "list.csv", "--why", id}).status, 1) << id;
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_P(WrongTableCalls, SayWhatIsWrong) {
    const auto before = m_kavela.everything();
    std::vector<std::string> arguments{"table"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    const Ending ending = m_kavela.call(arguments);
    EXPECT_EQ(ending.status, GetParam().status);
    EXPECT_THAT(ending.errors, HasSubstr(GetParam().message));
    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(m_kavela.everything(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, WrongTableCalls,
    testing::Values(
        WrongTableCall{"UnknownColumn",
                       {"list.csv", "--derive", "rank:Tme"},
                       1,
                       "There is no column \"Tme\"; there is \"Pos\", \"Name\""},
        WrongTableCall{
            "UnknownDerivation", {"list.csv", "--derive", "sum:Time"}, 2, "none of total"},
        WrongTableCall{"ShortPivot", {"list.csv", "--pivot", "Cat,Time"}, 2, "ROW,COL,VALUE,FN"},
        WrongTableCall{"NoFile", {"gone.csv"}, 1, "gone.csv"},
        WrongTableCall{"Pdf", {"pdf.kvx"}, 1, "PDF"},
        WrongTableCall{"NoTeam", {"list.csv", "--team", "list.csv"}, 1, "list.csv"},
        WrongTableCall{"OverTheSource", {"list.csv", "--csv", "list.csv"}, 2, "over a file"},
        WrongTableCall{"NoSheet", {"list.csv", "--sheet", "Heats"}, 1, "no sheet \"Heats\""}),
    nameOfTableCall);

} // namespace kavela::test
