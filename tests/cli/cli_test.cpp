#include "cli/program.h"
#include "common/json_encode.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include <set>
#include <sstream>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string release(const std::string& label) {
    return contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / (label + ".kvx"));
}

std::string smallRace() {
    splittakerdata031 race;
    race.info.title = "Spring \x1b[31m cup";
    race.info.category = "K1M";
    race.info.splitTitles = {"Bridge"};
    race.info.totalsplits = 2;
    race.athletes.resize(3);
    for (std::size_t i = 0; i < 3; ++i) {
        athletedata031& run = race.athletes[i];
        run.names = {"Boat " + std::to_string(i), "Crew"};
        run.phase = i < 2 ? "Heat" : "Final";
        run.sectioninfo.times = {30.125 + static_cast<double>(i), 40};
        run.sectioninfo.pens = {2, 0};
        run.sectioninfo.totalpen = 2;
    }
    race.athletes[1].cat = "C1W";
    race.athletes[1].sectioninfo.times[1] = 0;
    return encode(race);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> keysOf(const json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items())
        keys.push_back(key);
    return keys; // in alphabetical order
}

class CommandLine : public testing::Test {
protected:
    Ending call(const std::vector<std::string>& arguments) { return m_kavela.call(arguments); }
    json shown(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"show", "race.kvx", "--json"});
        const Ending ending = call(arguments);
        EXPECT_EQ(ending.status, 0) << ending.errors;
        return json::parse(ending.output);
    }
    [[nodiscard]] const TempFolder& folder() const { return m_kavela.folder(); }

    Program m_kavela;
};

} // namespace

TEST_F(CommandLine, TellsWrongCallsFromHelp) {
    for (const char* line : {"--bogus", "show", "show a.kvx --mode blue", "show a.kvx b.kvx",
                             "info", "upgrade", "export a.kvx", "export --csv out.csv", "demo"}) {
        std::istringstream words(line);
        const std::vector<std::string> wrong(std::istream_iterator<std::string>(words), {});
        const Ending ending = call(wrong);
        EXPECT_EQ(ending.status, 2) << line;
        EXPECT_EQ(ending.output, "");
        EXPECT_NE(ending.errors, "");
    }
    for (const char* command : {"show", "info", "upgrade", "export", "demo"}) {
        const Ending ending = call({command, "--help"});
        EXPECT_EQ(ending.status, 0);
        EXPECT_THAT(ending.output, HasSubstr("Usage: kavela " + std::string(command)));
    }
    EXPECT_EQ(call({"--help"}).status, 0);
    EXPECT_EQ(call({"--version"}).output, "0.31.0\n");
    EXPECT_THAT(m_kavela.everything(), IsEmpty());
}

TEST_F(CommandLine, ShowsTheTableAsJson) {
    (void)folder().add("race.kvx", smallRace());
    const json table = shown({"--mode", "training", "--penalties-visible"});
    EXPECT_THAT(keysOf(table), ElementsAre("columns", "rows"));
    EXPECT_EQ(table["columns"], json::parse(R"([{"number":1,"title":"Bridge"},
        {"number":2,"title":"S2"},{"number":11,"title":"Total"},{"number":12,"title":"Sprint"},
        {"number":13,"title":"Real"}])"));
    json stopped = table["rows"][1];
    EXPECT_EQ(stopped["cells"].size(), 5U);
    EXPECT_EQ(stopped["cells"][0], json::parse(R"json({"column":1,"value":31.125,"text":"31.13 (2)",
        "band":"5","background":[1,1,1,1],"foreground":null})json"));
    EXPECT_EQ(stopped["cells"][1], json::parse(R"json({"column":2,"value":0,"text":"- (0)",
        "band":"clear","background":null,"foreground":null})json"));
    stopped.erase("cells");
    EXPECT_EQ(stopped, json::parse(R"({"names":["Boat 1","Crew"],"phase":"Heat","category":"C1W",
        "fullRun":false})"));
    const json inRace = shown({"--mode", "race", "--penalties-included"});
    EXPECT_EQ(inRace["rows"][0]["cells"][2], json::parse(R"({"column":11,"value":72.125,
        "text":"72.13","band":null,"background":null,"foreground":[0,1,0,1]})"));
    EXPECT_EQ(shown({"--accumulated"})["rows"][2]["cells"][1]["value"], 72.125);
    EXPECT_EQ(shown({"--category", "K1M"})["rows"].size(), 2U);
    EXPECT_EQ(shown({"--category", "K1M", "--phase", "Final"})["rows"].size(), 1U);
    EXPECT_FALSE(m_kavela.hasPreferences()) << "showing a file stores nothing";
}

TEST_F(CommandLine, TakesItsDefaultsFromThePreferences) {
    (void)folder().add("race.kvx", smallRace());
    m_kavela.prefer("colorMode=Training\npenaltiesVisible=true\npenaltiesIncluded=true\n");
    EXPECT_EQ(shown({})["rows"][0]["cells"][0]["text"], "32.13 (2)");
    EXPECT_EQ(shown({})["rows"][0]["cells"][0]["band"], "fastest");
    const json other =
        shown({"--no-penalties-visible", "--no-penalties-included", "--mode", "race"});
    EXPECT_EQ(other["rows"][0]["cells"][0]["text"], "30.13");
    EXPECT_EQ(other["rows"][0]["cells"][0]["band"], nullptr);
}

TEST_F(CommandLine, PrintsAPlainTableWhenPiped) {
    (void)folder().add("race.kvx", smallRace());
    const Ending ending = call({"show", "race.kvx"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_THAT(ending.output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(linesOf(ending.output),
                Contains(testing::ContainsRegex("^Boat 1 / Crew +Heat +C1W +31\\.13 +0\\.00 ")));
    EXPECT_EQ(ending.errors, "");
}

TEST_F(CommandLine, ReadsAnOlderFileWithoutRewritingIt) {
    (void)folder().add("old.kvx", release("0.28"));
    const auto before = m_kavela.everything();
    const Ending shown = call({"show", "old.kvx"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(linesOf(shown.errors),
                ElementsAre("Trying version 0.30", "Trying version 0.29", "Trying version 0.28"));
    EXPECT_EQ(call({"info", "old.kvx"}).status, 0);
    EXPECT_EQ(m_kavela.everything(), before);
    EXPECT_EQ(call({"export", "old.kvx", "--csv", "old.csv"}).status, 0);
    EXPECT_EQ(contentOf(folder().path() / "old.kvx"), release("0.28"));
    EXPECT_THAT(contentOf(folder().path() / "old.csv"), StartsWith("Name;Phase;Total;P\nAna"));
}

TEST_F(CommandLine, UpgradesEveryFileOfAFolderThatCanBeRead) {
    fs::create_directories(folder().path() / "season" / "may");
    (void)folder().add("season/a.kvx", release("0.30"));
    (void)folder().add("season/b.kvx", "{\"info\":{}}");
    (void)folder().add("season/film.mov", release("0.30"));
    (void)folder().add("season/may/c.KVX", release("0.29"));
    (void)folder().add("season/may/d.kvx", release("0.31"));
    const auto before = m_kavela.everything();
    const Ending ending = call({"upgrade", "season", "season/a.kvx", "missing.kvx"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, "5 files: 2 upgraded, 1 already current, 2 not opened\n");
    const auto lines = linesOf(ending.errors);
    ASSERT_EQ(lines.size(), 2U + 28 + 3 + 28);
    EXPECT_EQ(lines[0], "Trying version 0.30");
    EXPECT_EQ(lines[1], "I am wriwriting in season/a.kvx");
    EXPECT_EQ(lines[25], "I have no more options, sorry");
    EXPECT_EQ(lines[26], "I could not do season/b.kvx");
    EXPECT_EQ(lines[28], Incompatible);
    EXPECT_THAT(lines[29], testing::StartsWith("b.kvx: "));
    EXPECT_EQ(lines[32], "I am wriwriting in season/may/c.KVX");
    EXPECT_EQ(lines[57], "I could not do missing.kvx");
    auto after = m_kavela.everything();
    for (const char* name : {"season/a.kvx", "season/may/c.KVX"}) {
        EXPECT_THAT(after[name], HasSubstr("\"lastSavedDate\":"));
        after[name] = before.at(name);
    }
    EXPECT_EQ(after, before) << "nothing else changed";
    fs::remove(folder().path() / "season/b.kvx");
    const Ending again = call({"upgrade", "season"});
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(again.output, "3 files: 0 upgraded, 3 already current, 0 not opened\n");
    EXPECT_EQ(again.errors, "");
}

TEST_F(CommandLine, SaysWhatFilesAre) {
    (void)folder().add("a.kvx", release("0.31"));
    (void)folder().add("b.kvx", release("0.11"));
    (void)folder().add("c.kvx", "{}");
    const Ending ending = call({"info", "--json", "a.kvx", "b.kvx", "c.kvx"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.errors, "");
    const json facts = json::parse(ending.output);
    ASSERT_EQ(facts.size(), 3U);
    for (const json& file : facts)
        EXPECT_THAT(keysOf(file), ElementsAre("attempts", "counts", "current", "error", "kind",
                                              "label", "path", "record"));
    EXPECT_EQ(facts[0]["kind"], "split file");
    EXPECT_EQ(facts[0]["record"], "splittakerdata031");
    EXPECT_EQ(facts[0]["current"], true);
    EXPECT_EQ(facts[0]["counts"]["runs"], 2);
    EXPECT_EQ(facts[0]["attempts"], json::array());
    EXPECT_EQ(facts[1]["label"], "0.11");
    EXPECT_EQ(facts[1]["current"], false);
    EXPECT_EQ(facts[1]["error"], nullptr);
    EXPECT_EQ(facts[1]["attempts"].size(), 20U);
    EXPECT_EQ(facts[2]["kind"], "unknown");
    EXPECT_EQ(facts[2]["error"], Incompatible);
    EXPECT_EQ(facts[2]["record"], nullptr);
    EXPECT_GE(facts[2]["attempts"].size(), 24U);
    EXPECT_EQ(facts[2]["attempts"][23],
              json::parse(R"({"record":"splittakerdataOLD","fault":"info: the key is missing"})"));
    EXPECT_EQ(call({"info", "a.kvx", "b.kvx"}).status, 0);
}

TEST_F(CommandLine, SaysInOneLineWhyAFileCannotBeRead) {
    (void)folder().add("a.kvx", release("0.31"));
    fs::create_directory(folder().path() / "b.kvx");
    fs::create_symlink("gone.kvx", folder().path() / "c.kvx");
    const std::vector<std::string> names{"info", "a.kvx", "b.kvx", "c.kvx", "south.kvx"};
    const Ending ending = call(names);
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.output, AllOf(StartsWith("a.kvx\n  split file, "), Not(HasSubstr("b.kvx")),
                                     Not(HasSubstr("splittakerdata030"))));
    EXPECT_THAT(linesOf(ending.errors),
                ElementsAre("b.kvx: this is a folder, not a file",
                            "c.kvx: this is a link to gone.kvx, which is missing",
                            "south.kvx: there is no such file"));

    std::vector<std::string> asJson = names;
    asJson.emplace_back("--json");
    const json facts = json::parse(call(asJson).output);
    ASSERT_EQ(facts.size(), 4U);
    for (const std::size_t i : {1U, 2U, 3U}) {
        EXPECT_FALSE(facts[i].contains("unread"));
        EXPECT_EQ(facts[i]["error"], Incompatible);
        EXPECT_GE(facts[i]["attempts"].size(), 24U);
    }
    EXPECT_EQ(facts[2]["attempts"][0]["fault"], "this is a link to gone.kvx, which is missing");
}

TEST_F(CommandLine, RefusesEveryBadFileAndChangesNothing) {
    const std::string good = release("0.31");
    const auto replaced = [&](const std::string& what, const std::string& by) {
        const auto at = good.find(what);
        EXPECT_NE(at, std::string::npos) << what;
        return good.substr(0, at) + by + good.substr(at + what.size());
    };
    const std::string date = "\"date\":";
    for (const auto& [name, content] : std::map<std::string, std::string>{
             {"empty", ""},
             {"blanks", std::string(1 << 17, '\n')},
             {"text", "hello"},
             {"cut off", good.substr(0, good.size() / 2)},
             {"no UTF-8", replaced("\"place\":\"", "\"place\":\"\xff")},
             {"nested a hundred-fold", replaced(date, date + std::string(100, '[') + "0" +
                                                          std::string(100, ']') + ",\"x\":")},
             {"nested without end", "{\"info\":" + std::string(200000, '[')},
             {"huge number", replaced(date, date + "1e999,\"x\":")},
             {"wide integer", replaced("\"gates\":", "\"gates\":99999999999999999999,\"x\":")},
             {"wrong kind", replaced(date, date + "\"today\",\"x\":")},
             {"null", replaced(date, date + "null,\"x\":")},
             {"missing key", replaced("\"athletes\":", "\"Athletes\":")}})
        (void)folder().add(name, content);
    fs::create_directory(folder().path() / "folder");
    ASSERT_EQ(::mkfifo((folder().path() / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(::truncate(folder().add("sparse", "").c_str(), off_t(2) << 30), 0);
    auto names = m_kavela.everything();
    names["missing"] = "";
    const std::set<std::string> unread{"folder", "pipe", "missing"};
    const auto before = m_kavela.everything();
    for (const auto& [name, content] : names) {
        for (const char* command : {"show", "info", "export", "upgrade"}) {
            SCOPED_TRACE(std::string(command) + " " + name);
            if (name == "folder" && command == std::string("upgrade"))
                continue; // walked, and found empty
            std::vector<std::string> arguments{command, name};
            if (command == std::string("export"))
                arguments.insert(arguments.end(), {"--csv", "out.csv"});
            const Ending ending = call(arguments);
            EXPECT_EQ(ending.status, 1);
            const bool isToldAlone = command == std::string("info") && unread.contains(name);
            EXPECT_THAT(ending.output + ending.errors,
                        HasSubstr(isToldAlone ? name + ": " : Incompatible));
        }
    }
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(CommandLine, ShowsNumbersThatAddUpToNoNumber) {
    json race = json::parse(smallRace());
    race["athletes"][0]["sectioninfo"]["times"] = {1e308, 1e308};
    (void)folder().add("race.kvx", race.dump());
    EXPECT_EQ(call({"show", "race.kvx"}).status, 0);
    EXPECT_EQ(shown({})["rows"][0]["cells"][2]["value"], nullptr);
}

TEST_F(CommandLine, ExportsTheTableWhereItMayBeWritten) {
    const fs::path race = folder().add("race.kvx", smallRace());
    ASSERT_EQ(call({"export", "race.kvx", "--csv", "out.csv"}).status, 0);
    EXPECT_EQ(linesOf(contentOf(folder().path() / "out.csv"))[1],
              "Boat 0 / Crew;Heat;30.125;2;40;0;0;2");
    fs::create_symlink("race.kvx", folder().path() / "link");
    EXPECT_EQ(call({"export", "race.kvx", "--csv", "./link"}).status, 2);
    for (const char* target : {"missing/out.csv", "."}) {
        const Ending ending = call({"export", "race.kvx", "--csv", target});
        EXPECT_EQ(ending.status, 1);
        EXPECT_THAT(linesOf(ending.errors),
                    ElementsAre("Failed to create file", StartsWith("The file ")));
    }
    EXPECT_EQ(contentOf(race), smallRace());
}

TEST_F(CommandLine, WritesASampleSeasonThatItCanRead) {
    ASSERT_EQ(call({"demo", "season"}).status, 0);
    const auto season = m_kavela.everything();
    std::vector<std::string> info{"info", "--json"};
    for (const auto& [name, content] : season)
        if (content != "folder" && !name.ends_with(".csv") && !name.ends_with(".gpx") &&
            !name.ends_with(".json"))
            info.push_back(name);
    const Ending ending = call(info);
    EXPECT_EQ(ending.status, 0) << ending.errors;
    for (const json& file : json::parse(ending.output))
        EXPECT_NE(file["kind"], "unknown") << file["path"];

    ASSERT_EQ(call({"demo", "season"}).status, 0);
    EXPECT_EQ(m_kavela.everything(), season) << "written again, the same";
    const std::string mine = info.back();
    (void)folder().add(mine, "my own notes");
    const Ending refused = call({"demo", "season"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors, HasSubstr(mine));
    EXPECT_EQ(contentOf(folder().path() / mine), "my own notes");
}

TEST_F(CommandLine, BecomesTheDesktopProgramThatTheEnvironmentNames) {
    ::setenv("KAVELA_DESKTOP", "/bin/echo", 1);
    (void)folder().add("race one.kvx", smallRace());
    const Ending opened = call({"race one.kvx"});
    const Ending another = call({"--new", "race one.kvx"});
    const Ending missing = call({"race two.kvx"});
    ::unsetenv("KAVELA_DESKTOP");
    EXPECT_EQ(opened.status, 0);
    EXPECT_EQ(opened.output, "race one.kvx\n");
    EXPECT_EQ(another.output, "--new race one.kvx\n");
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.errors, HasSubstr("race two.kvx"));
}

} // namespace kavela::test
