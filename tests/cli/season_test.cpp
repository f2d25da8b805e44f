#include "cli/program.h"
#include "common/json_encode.h"
#include "results/team_file.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>

/// The call that tells a team's season.
namespace kavela::test {

namespace {

using namespace std::chrono_literals;
using nlohmann::ordered_json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

ReferenceDate dayOfRace(unsigned race) {
    return referenceDate(2025y / std::chrono::month(4 + race) / 10, 36000);
}

std::string raceOfFour(unsigned race) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.title = "Race " + std::to_string(race);
    document.info.category = "K1W";
    document.info.date = dayOfRace(race);
    for (unsigned i = 0; i < 4; ++i) {
        athletedata031 run;
        run.names = {i == 2 ? "Anna Bell" : "Rival " + std::string(1, static_cast<char>('A' + i))};
        run.phase = "Final";
        run.sectioninfo.realtime = 90 + i + 0.3 * ((race * (i + 2)) % 4);
        document.athletes.push_back(run);
    }
    return encode(document);
}

std::string teamOfOne() {
    myTeamToSaveStruct team;
    mtSeasonStruct season;
    season.year = 2025;
    for (unsigned race = 1; race <= 4; ++race) {
        mtPhaseStruct final;
        final.phase = "Final";
        final.date = dayOfRace(race);
        final.time = 92 + race * 0.25;
        season.races.push_back({"Race " + std::to_string(race), "ICF", 3, {final}});
    }
    team.realMyTeam.push_back({"BELL Anna", 2000, {{"WK1", {season}, {}}}, false});
    return encode(team);
}

class SeasonCalls : public testing::Test {
protected:
    SeasonCalls() {
        std::filesystem::create_directory(m_kavela.folder().path() / "races");
        for (unsigned race = 1; race <= 4; ++race)
            (void)m_kavela.folder().add("races/" + std::to_string(race) + ".kvx", raceOfFour(race));
        (void)m_kavela.folder().add("team.kvteam", teamOfOne());
    }

    [[nodiscard]] Ending call(const std::vector<std::string>& more) const {
        std::vector<std::string> arguments{"season", "team.kvteam", "races", "--category", "WK1"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return m_kavela.call(arguments);
    }

    Program m_kavela;
};

std::vector<std::string> keysOf(const ordered_json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items())
        keys.push_back(key);
    return keys;
}

} // namespace

TEST_F(SeasonCalls, PrintOneDocumentInItsOrder) {
    const auto before = m_kavela.everything();
    const Ending ending = call({"--json"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const auto shown = ordered_json::parse(ending.output);
    EXPECT_THAT(keysOf(shown), ElementsAre("category", "spread", "athletes", "benchmarks",
                                           "simulation", "starter"));
    EXPECT_TRUE(shown["starter"].is_null());
    EXPECT_THAT(keysOf(shown["spread"]),
                ElementsAre("runs", "df", "cv", "low", "high", "worthwhile"));
    EXPECT_EQ(shown["spread"]["runs"], 16);
    EXPECT_EQ(shown["spread"]["df"], 9);
    const auto& anna = shown["athletes"].at(0);
    EXPECT_THAT(keysOf(anna), ElementsAre("name", "races", "medals", "finals", "semifinals",
                                          "phases", "missed", "spread", "trend", "heats12",
                                          "semifinalToFinal", "heatsToFinal", "headToHead"));
    EXPECT_EQ(anna["medals"]["count"], 4);
    EXPECT_THAT(keysOf(anna["phases"].at(0)),
                ElementsAre("year", "event", "location", "phase", "total", "winner", "source",
                            "percent", "behindSplits"));
    EXPECT_EQ(anna["phases"].at(0)["source"], "file");
    EXPECT_TRUE(anna["phases"].at(0)["behindSplits"].is_null());
    EXPECT_EQ(anna["trend"]["winner"]["runs"], 4);
    EXPECT_EQ(anna["trend"]["splits"]["verdict"], "unclear");
    EXPECT_EQ(anna["headToHead"].size(), 3U);
    EXPECT_EQ(shown["simulation"].size(), 4U);
    EXPECT_EQ(m_kavela.everything(), before) << "files are only read";
}

TEST_F(SeasonCalls, PlacesAreOfTheFieldThatIsNamed) {
    const auto shown =
        ordered_json::parse(call({"--json", "--field", "bell anna", "RIVAL A"}).output);
    EXPECT_EQ(shown["simulation"].size(), 2U);
    const Ending unknown = call({"--field", "Anna Bel"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_THAT(unknown.errors, AllOf(HasSubstr("\"Anna Bel\""), HasSubstr("BELL Anna")));
}

TEST_F(SeasonCalls, RacesAreThoseOfTheStarter) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.title = "Elsewhere";
    document.info.category = "K1W";
    document.info.date = dayOfRace(5);
    document.athletes.resize(1);
    document.athletes[0].names = {"Rival A"};
    document.athletes[0].phase = "Final";
    document.athletes[0].sectioninfo.realtime = 90;
    (void)m_kavela.folder().add("races/5.kvx", encode(document));
    EXPECT_EQ(ordered_json::parse(call({"--json"}).output)["spread"]["runs"], 17);
    const auto shown = ordered_json::parse(call({"--json", "--starter", "Anna Bell"}).output);
    EXPECT_EQ(shown["spread"]["runs"], 16);
    EXPECT_EQ(shown["starter"], "BELL Anna");
    EXPECT_THAT(call({"--starter", "anna bell"}).output,
                HasSubstr("Only races in which BELL Anna starts."));
    const Ending unknown = call({"--starter", "Anna Bel"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.output, "");
    EXPECT_THAT(unknown.errors, AllOf(HasSubstr("\"Anna Bel\""), HasSubstr("BELL Anna")));
}

TEST_F(SeasonCalls, TellPeopleWhatIsKnown) {
    const Ending ending = call({});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output,
                AllOf(HasSubstr("Season WK1 · 1 athlete · 4 split files"),
                      HasSubstr("medals       4 of 4 ("), HasSubstr("■"),
                      HasSubstr("would have been a medal in"), HasSubstr("Expected place")));
    EXPECT_THAT(ending.output, Not(HasSubstr("\x1b"))) << "no colours in a pipe";
    EXPECT_THAT(call({"--years", "2024"}).output, HasSubstr("Too few runs"));
    EXPECT_THAT(call({"--why", "percent/Anna Bell/2025/ICF/Final/Race 2"}).output,
                HasSubstr("behind the winner"));
    EXPECT_EQ(call({"--why", "trend/Nobody"}).status, 1);
}

TEST_F(SeasonCalls, WriteTheRunsForSpreadsheetsButOverNoSource) {
    EXPECT_EQ(call({"--csv", "runs.csv"}).status, 0);
    const std::string table = m_kavela.everything().at("runs.csv");
    EXPECT_EQ(std::ranges::count(table, '\n'), 5) << "titles and four runs";
    EXPECT_THAT(table, HasSubstr("BELL Anna;2025;ICF;Race 1;Final;2025-05-10;;92.25;"));
    const auto before = m_kavela.everything();
    EXPECT_EQ(call({"--csv", "team.kvteam"}).status, 2);
    EXPECT_EQ(call({"--csv", "races/1.kvx"}).status, 2);
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(SeasonCalls, SayWhatIsWrongWithTheCall) {
    const Ending category = m_kavela.call({"season", "team.kvteam", "--category", "MC1"});
    EXPECT_EQ(category.status, 1);
    EXPECT_THAT(category.errors, AllOf(HasSubstr("\"MC1\""), HasSubstr("Categories: WK1")));
    EXPECT_EQ(call({"--years", "2025-2023"}).status, 2);
    EXPECT_EQ(m_kavela.call({"season", "races/1.kvx", "--category", "WK1"}).status, 1);
    (void)m_kavela.folder().add("races/broken.kvx", "{");
    const Ending broken = call({"--json"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.errors, HasSubstr("broken.kvx"));
    EXPECT_EQ(ordered_json::parse(broken.output)["spread"]["runs"], 16) << "the others still count";
}

} // namespace kavela::test
