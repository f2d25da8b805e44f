#include "cli/program.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "results/selection_edit.h"
#include "results/team_records.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

/// The calls of a team and of a selection, and what info and upgrade make of their files.
namespace kavela::test {

namespace {

using nlohmann::json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string team() {
    myTeamStruct athlete{"BROOK Adam", 1999, {{"MX1", {}, {}}}, false};
    for (const std::int64_t year : {2025, 2024})
        athlete.cats[0].seasons.push_back(
            {year, 4, 100, {{"Weirton", year == 2025 ? "WCH" : "WC1", 2, {}}}, {}});
    athlete.cats[0].seasons[1].races.push_back({"Mill", "ICF", 0, {}});
    return encode(myTeamToSaveStruct{{athlete}});
}

selectionracesStruct_v3 selection() {
    selectionracesStruct_v3 document;
    document.year = 2026;
    const std::size_t category = categoryIndex(document, "MK1");
    for (const char* race : {"Weirton", "Mill"})
        addRace(document, race);
    (void)addAthlete(document, category, {"LOCK Cy", 2001, "Mill", {}, {-1}});
    (void)addAthlete(document, category, {"BROOK Adam", 2003, "Mill", {}, {0}});
    setResult(document, {0, 0, 0}, 100, 2);
    setResult(document, {0, 0, 1}, 100, 0);
    setResult(document, {0, 1, 0}, 100, 0, 99);
    return document;
}

/// The selection in an older layout: one flag, no bonuses.
std::string olderSelection() {
    std::string text = encode(selection());
    for (const auto& [now, before] :
         {std::pair<std::string, std::string>{R"("preselected":[false])", R"("preselected":false)"},
          {R"(,"bonuses":[-1])", ""},
          {R"(,"bonuses":[0])", ""}})
        for (std::size_t at = text.find(now); at != std::string::npos; at = text.find(now))
            text.replace(at, now.size(), before);
    return text;
}

class ResultsCalls : public testing::Test {
protected:
    ResultsCalls() {
        add("a.kvteam", team());
        add("a.kvsr", encode(selection()));
        add("old.kvsr", olderSelection());
    }
    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }
    [[nodiscard]] json printed(const std::vector<std::string>& arguments) const {
        const Ending ending = call(arguments);
        EXPECT_EQ(ending.status, 0) << ending.errors;
        return json::parse(ending.output);
    }
    [[nodiscard]] std::string content(const char* name) const {
        return contentOf(m_kavela.folder().path() / name);
    }
    [[nodiscard]] selectionracesStruct_v3 document() const {
        return decodeText<selectionracesStruct_v3>(content("a.kvsr"));
    }
    void add(const std::string& name, const std::string& text) const {
        (void)m_kavela.folder().add(name, text);
    }

    Program m_kavela;
};

} // namespace

TEST_F(ResultsCalls, SummarizeAndCategorizeATeam) {
    EXPECT_EQ(printed({"team", "summary", "a.kvteam", "--athlete", "adam brook", "--category",
                       "MX1", "--json"}),
              json::parse(R"({"medals":3,"championshipMedals":1,"top6":3,"top15":3})"));
    EXPECT_EQ(call({"team", "summary", "a.kvteam", "--athlete", "BROOK Adam", "--category", "MX1"})
                  .output,
              "BROOK Adam, MX1\n  Medals: 3\n  Medals in SP or EP: 1\n  Top 6s: 3\n"
              "  Top 15s: 3\n");
    EXPECT_EQ(printed({"team", "categorize", "a.kvteam", "--category", "MX1", "--json"}),
              json::parse(R"json([{"name":"BROOK Adam","medals":2,"championshipMedals":1,"top6":2,
        "top15":2,"events":2,"label":"Categorization: Medalist ","lines":["Medals: 2 (with 1 in EP or SP)",
        "Top 8: 2","Top 15: 2","International events: 2"],"races":[
        {"year":2025,"event":"WCH","location":"Weirton","finalPos":2},
        {"year":2024,"event":"WC1","location":"Weirton","finalPos":2}]
}])json"));
    EXPECT_EQ(printed({"team", "categorize", "a.kvteam", "--category", "WK1", "--json"}),
              json::array());
}

TEST_F(ResultsCalls, RankASelectionAndWriteOnlyWhenAsked) {
    const std::string before = content("a.kvsr");
    const json ranking = printed({"selection", "rank", "a.kvsr", "--json"});
    EXPECT_EQ(ranking["races"][0],
              json::parse(R"({"location":"Weirton","bestTimes":[100],"bestxTimes":[99]})"));
    const json& athletes = ranking["categories"][0]["athletes"];
    EXPECT_EQ(ranking["categories"][0]["cat"], "MK1");
    EXPECT_EQ(athletes[0]["name"], "LOCK Cy");
    EXPECT_EQ(athletes[0]["rank"], 1) << "equal to the other, and first before";
    EXPECT_EQ(athletes[1]["rank"], 1);
    EXPECT_EQ(
        athletes[1]["races"][1],
        json::parse(R"({"resultTime":999.9,"pen":0,"resultPer":999.99,"resultxPer":999.99})"));
    EXPECT_EQ(content("a.kvsr"), before);

    const json withBonus =
        printed({"selection", "rank", "a.kvsr", "--bonus", "0", "--json", "--write"});
    EXPECT_EQ(withBonus["categories"][0]["athletes"][0]["result"], 0);
    EXPECT_EQ(document().races[0].bestTimes, std::vector<double>{100});
    EXPECT_NEAR(document().categories[0].athletes[0].racedata[0].resultPer, 2, 1e-9);
    EXPECT_THAT(call({"selection", "rank", "a.kvsr"}).output,
                AllOf(HasSubstr("(-)"), Not(HasSubstr("999.99"))));
}

TEST_F(ResultsCalls, WriteReportsIntoAFolder) {
    std::filesystem::create_directory(m_kavela.folder().path() / "pdf");
    EXPECT_EQ(call({"selection", "rank", "a.kvsr", "--pdf", "pdf"}).status, 0);
    EXPECT_EQ(call({"team", "categorize", "a.kvteam", "--category", "MX1", "--pdf", "pdf"}).status,
              0);
    for (const char* name : {"pdf/Selection races results.pdf", "pdf/selection_results_2026.pdf",
                             "pdf/2025 Categorization.pdf"})
        EXPECT_THAT(content(name), testing::StartsWith("%PDF")) << name;
    const Ending ending = call({"selection", "rank", "a.kvsr", "--pdf", "none"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, "");
    EXPECT_THAT(ending.errors, HasSubstr("Failed to create file"));
}

TEST_F(ResultsCalls, ImportAthletesAndAttachResults) {
    add("list.csv", "Cat;Name;Surname;year;club\nWK1;Bea;Weir;2004;Mill\nMK1;Cy;Lock;2001;Mill\n");
    const Ending imported = call({"selection", "import-athletes", "a.kvsr", "list.csv"});
    EXPECT_EQ(imported.output,
              "1 athlete imported, 1 line skipped\nLine 3: LOCK Cy is in MK1 already\n");
    EXPECT_THAT(imported.errors, HasSubstr("1 line of list.csv skipped"));
    EXPECT_THAT(imported.errors, HasSubstr("Line 2 brought the category WK1"));
    EXPECT_EQ(document().categories[1].athletes[0].name, "WEIR Bea");

    splittakerdata031 race;
    race.info.category = "K1M";
    race.athletes.resize(1);
    race.athletes[0].names = {"Adam Brook"};
    race.athletes[0].sectioninfo.totaltime = 101.5;
    add("race.kvx", encode(race));
    EXPECT_EQ(call({"selection", "attach", "a.kvsr", "--race", "mill", "race.kvx"}).output,
              "1 result attached to Mill\nNo run: LOCK Cy (MK1), was 100.00\n");
    EXPECT_EQ(call({"selection", "attach", "a.kvsr", "--race", "0", "race.kvx"}).output,
              "1 result attached to Weirton\nNo run: LOCK Cy (MK1), was 100.00 (2)\n"
              "Expected time kept: BROOK Adam (MK1), 99.00\n");
    const auto athletes = document().categories[0].athletes;
    EXPECT_EQ(athletes[0].name, "BROOK Adam") << "ranked anew";
    EXPECT_EQ(athletes[0].racedata[1].resultTime, 101.5);
    EXPECT_EQ(athletes[1].racedata[1].resultPer, 999.99);
}

TEST_F(ResultsCalls, TakeAListOfAnOlderSpreadsheetAndSayWhatIsOdd) {
    add("list.csv", "Cat;Name;Surname;year;club\nVeterans;Ren\xE9;Lef\xE8vre;1961;\x8Atern\n");
    const Ending ending = call({"selection", "import-athletes", "a.kvsr", "list.csv"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_THAT(ending.errors, HasSubstr("read as Latin-1"));
    EXPECT_THAT(ending.errors, HasSubstr("Veterans into the selection; it is none of MK1, WK1"));
    EXPECT_EQ(document().categories[1].athletes[0].name, "LEFÈVRE René");
    EXPECT_EQ(document().categories[1].athletes[0].club, "Štern");

    const std::string before = content("a.kvsr");
    add("vain.csv", "t\nMK1;A;B;year;c\n");
    EXPECT_EQ(call({"selection", "import-athletes", "a.kvsr", "vain.csv"}).status, 1);
    add("sheet.csv", std::string("PK\x03\x04\0\0", 6));
    EXPECT_THAT(call({"selection", "import-athletes", "a.kvsr", "sheet.csv"}).errors,
                HasSubstr("the file is no text"));
    EXPECT_EQ(content("a.kvsr"), before);
    EXPECT_EQ(call({"selection", "import-athletes", "a.kvsr", "list.csv"}).status, 0)
        << "who is there already is no failure";
}

TEST_F(ResultsCalls, TellWhatTheirFilesAre) {
    add("unnamed", content("a.kvteam"));
    const json facts = printed({"info", "--json", "a.kvsr", "old.kvsr", "a.kvteam", "unnamed"});
    std::vector<std::string> told;
    for (const json& file : facts)
        told.push_back(file["kind"].get<std::string>() + ' ' + file["record"].get<std::string>() +
                       ' ' + file["label"].get<std::string>() + (file["current"] ? "" : " old"));
    EXPECT_THAT(told, ElementsAre("selection races selectionracesStruct_v3 3",
                                  "selection races selectionracesStruct 1 old",
                                  "team myTeamToSaveStruct 1", "team myTeamToSaveStruct 1"));
    EXPECT_EQ(facts[0]["counts"], json::parse(R"({"athletes":2,"categories":1,"races":2})"));
    EXPECT_EQ(facts[1]["attempts"].size(), 2U);
    EXPECT_EQ(facts[0]["attempts"], json::array());
}

TEST_F(ResultsCalls, UpgradeByExtensionAndKeepThePreviousFile) {
    const std::string before = content("old.kvsr");
    EXPECT_EQ(call({"selection", "rank", "old.kvsr"}).status, 0) << "read as it is";
    const Ending refused = call({"selection", "rank", "old.kvsr", "--write"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors, HasSubstr("kavela upgrade old.kvsr"));
    EXPECT_EQ(content("old.kvsr"), before);
    EXPECT_EQ(call({"upgrade", "."}).output,
              "2 files: 1 upgraded, 1 already current, 0 not opened\n");
    EXPECT_EQ(content("old_old.kvsr"), before);
    const auto upgraded = decodeText<selectionracesStruct_v3>(content("old.kvsr"));
    EXPECT_THAT(upgraded.categories[0].athletes[0].preselected, ElementsAre(false));
    EXPECT_THAT(upgraded.categories[0].athletes[0].bonuses, IsEmpty());
    EXPECT_EQ(call({"upgrade", "."}).output,
              "2 files: 0 upgraded, 2 already current, 0 not opened\n");
}

TEST_F(ResultsCalls, RefuseBadInputAndChangeNothing) {
    selectionracesStruct_v3 empty;
    empty.year = 2026;
    add("empty.kvsr", encode(empty));
    add("list.csv", "t\nMK1;A;B;2000;c\n");
    add("broken.kvsr", "{}");
    const auto before = m_kavela.everything();
    struct Row {
        std::vector<std::string> call;
        int status;
        const char* message;
    };
    for (const Row& row : std::vector<Row>{
             {{"team"}, 2, "subcommand is required"},
             {{"team", "summary", "a.kvteam", "--category", "MX1"}, 2, "--athlete is required"},
             {{"team", "summary", "a.kvteam", "--category", "MX1", "--athlete", "Eve"},
              1,
              "no athlete Eve"},
             {{"team", "summary", "a.kvteam", "--category", "MK1", "--athlete", "BROOK Adam"},
              1,
              "Categories: MX1"},
             {{"team", "categorize", "a.kvsr", "--category", "MK1"}, 1, "realMyTeam"},
             {{"team", "categorize", "none", "--category", "MK1"}, 1, "there is no such file"},
             {{"selection", "rank", "a.kvsr", "--bonus", "-1"}, 2, "--bonus"},
             {{"selection", "rank", "broken.kvsr"}, 1, "not compatible"},
             {{"selection", "import-athletes", "empty.kvsr", "list.csv"},
              1,
              "Careful!\nAdd a race first."},
             {{"selection", "import-athletes", "old.kvsr", "list.csv"}, 1, "older version, 1"},
             {{"selection", "import-athletes", "a.kvsr", "none"}, 1, "there is no such file"},
             {{"selection", "attach", "a.kvsr", "--race", "2", "a.kvsr"},
              1,
              "There is no race 2. Those of the file: 0 \"Weirton\", 1 \"Mill\""},
             {{"selection", "attach", "a.kvsr", "--race", "Spring", "a.kvsr"}, 1, "0 \"Weirton\""},
             {{"selection", "rank", "a.kvsr", "--bonus", "x"}, 2, "\"x\" is no whole number"},
             {{"selection", "attach", "a.kvsr", "--race", "0", "a.kvsr"}, 1, "not compatible"},
             {{"upgrade", "broken.kvsr"}, 1, "not compatible"}}) {
        SCOPED_TRACE(row.call.front() + ": " + row.message);
        const Ending ending = call(row.call);
        EXPECT_EQ(ending.status, row.status);
        EXPECT_THAT(ending.errors, HasSubstr(row.message));
    }
    EXPECT_EQ(m_kavela.everything(), before);
}

} // namespace kavela::test
