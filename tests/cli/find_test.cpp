#include "cli/program.h"
#include "common/json_encode.h"
#include "facts/small_season.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <unistd.h>

#include <chrono>
#include <sstream>

/// The calls that search a season and write what it says as tables.
namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class FindCalls : public testing::Test {
protected:
    FindCalls() {
        fs::create_directory(at("season"));
        add("season/cup.kvx", encode(smallRace()));
    }
    ~FindCalls() override {
        std::error_code ignored;
        fs::permissions(at("season/closed"), fs::perms::owner_all, ignored);
    }

    [[nodiscard]] fs::path at(const std::string& name) const {
        return m_kavela.folder().path() / name;
    }

    /// Written long ago: what is known of a file that was just written is not relied on.
    void add(const std::string& name, const std::string& content) const {
        const fs::path path = m_kavela.folder().add(name, content);
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1));
    }

    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }

    /// What a search of the season prints as a document, which must succeed.
    [[nodiscard]] json found(const std::string& query) const {
        const Ending ending = call({"find", "season", query, "--json"});
        EXPECT_EQ(ending.status, 0) << ending.errors;
        EXPECT_EQ(ending.errors, "");
        return json::parse(ending.output);
    }

    Program m_kavela;
};

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

TEST_F(FindCalls, ExplainANumberWithItsPlace) {
    const std::string query = "gates up left cat K1W time<4 year 2026";
    const Ending ending = call({"find", "season", query, "--why", "cell/0/time"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, HasSubstr("cup.kvx · run 0"));
    for (const char* const id : {"cell/0/athlete", "cell/9/time", "time"})
        EXPECT_EQ(call({"find", "season", query, "--why", id}).status, 1) << id;
}

TEST_F(FindCalls, PrintOneDocument) {
    const auto before = m_kavela.everything();
    EXPECT_EQ(found("gates up left cat K1W time<4 year 2026"), json::parse(R"({
        "query": "gates up left cat K1W time<4 year 2026",
        "scanned": {"files": 1, "read": 1, "failed": []},
        "columns": ["athlete", "cat", "phase", "date", "place", "gate", "direction", "style",
                    "time", "type"],
        "rows": [{"file": "season/cup.kvx", "run": 0, "split": 2, "film": null, "at": 20,
                  "athlete": "BELL Anna", "cat": "K1W", "phase": "Final", "date": "2026-05-11",
                  "place": "Praha-Troja", "gate": 3, "direction": "left", "style": "sternPivot",
                  "time": 3.5, "type": "up"}]})"));
    const json groups = found("best sprint by athlete");
    EXPECT_EQ(groups["columns"], json::parse(R"(["athlete", "count", "best", "mean", "median"])"));
    ASSERT_EQ(groups["rows"].size(), 1U);
    EXPECT_EQ(groups["rows"][0]["run"], 3) << "where the best one is";
    EXPECT_EQ(groups["rows"][0]["mean"], 8.5);
    EXPECT_EQ(found("runs athlete Bell phase Heats")["rows"][0]["total"], nullptr);
    EXPECT_EQ(m_kavela.everything(), before) << "nothing is written";
}

TEST_F(FindCalls, PrintATableAndWriteIt) {
    const Ending ending =
        call({"find", "season/cup.kvx", "penalties sort gate", "--csv", "list.csv"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const auto lines = linesOf(ending.output);
    ASSERT_EQ(lines.size(), 4U) << ending.output;
    EXPECT_THAT(lines[0], AllOf(StartsWith("athlete"), Not(HasSubstr("pole")))) << "nothing in it";
    EXPECT_THAT(lines[1], AllOf(StartsWith("Dún Cy / Eck Di"), HasSubstr("missed")));
    EXPECT_EQ(lines[3], "2 rows");
    EXPECT_THAT(linesOf(contentOf(at("list.csv"))),
                testing::ElementsAre("file;run;split;film;at;athlete;cat;phase;date;place;gate;"
                                     "seconds;kind;pole;moment",
                                     testing::StartsWith("season/cup.kvx;2;1;;"),
                                     testing::EndsWith(";3;2;touch;;")));
    const std::string race = contentOf(at("season/cup.kvx"));
    EXPECT_EQ(call({"find", "season", "runs", "--csv", "season/cup.kvx"}).status, 2);
    EXPECT_EQ(contentOf(at("season/cup.kvx")), race);
}

TEST_F(FindCalls, TellAWrongWordWithItsPlace) {
    const Ending ending = call({"find", "season", "gates up lft"});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(ending.errors, "\"lft\" means nothing in a query about gates.\n"
                             "    gates up lft\n"
                             "             ^^^\n"
                             "Near it are: left\n");
    EXPECT_EQ(call({"find", "season"}).status, 2) << "no query";
    const Ending nobody = call({"find", "season", "runs athlete Bello"});
    EXPECT_EQ(nobody.status, 0);
    EXPECT_EQ(nobody.output, "0 rows\n");
    EXPECT_THAT(nobody.errors, AllOf(HasSubstr("\"Bello\""), HasSubstr("BELL Anna")));
}

TEST_F(FindCalls, AnswerFromTheOthersWhereAFileCannotBeRead) {
    add("season/broken.kvx", "{}");
    const Ending ending = call({"find", "season", "season/none.kvx", "runs best total", "--json"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, AllOf(HasSubstr("season/broken.kvx: "),
                                     HasSubstr("season/none.kvx: there is no such file")));
    const json shown = json::parse(ending.output);
    EXPECT_EQ(shown["scanned"]["files"], 1);
    ASSERT_EQ(shown["scanned"]["failed"].size(), 2U);
    std::vector<std::string> paths;
    for (const json& failed : shown["scanned"]["failed"]) {
        paths.push_back(failed["path"]);
        EXPECT_NE(failed["reason"], "") << failed["path"];
    }
    EXPECT_THAT(paths, testing::UnorderedElementsAre("season/broken.kvx", "season/none.kvx"));
    ASSERT_EQ(shown["rows"].size(), 1U);
    EXPECT_EQ(shown["rows"][0]["athlete"], "Cole Bea");
}

TEST_F(FindCalls, AnswerFromTheOthersWhereAFolderIsClosed) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "no folder is closed to root";
    fs::create_directory(at("season/closed"));
    fs::permissions(at("season/closed"), fs::perms::none);
    const Ending ending = call({"find", "season", "runs"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("season/closed"));
    EXPECT_THAT(ending.output, HasSubstr("4 rows"));
}

TEST_F(FindCalls, AreTheSameWhateverBecomesOfTheCache) {
    json first = found("sections sort time");
    EXPECT_EQ(first["scanned"]["read"], 1);
    const auto isAsFirst = [&](int read) {
        json again = found("sections sort time");
        EXPECT_EQ(again["scanned"]["read"], read);
        EXPECT_EQ(again["rows"], first["rows"]);
    };
    isAsFirst(0);
    for (const auto& kept : fs::directory_iterator(m_kavela.cache())) {
        std::string bytes = contentOf(kept.path());
        bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] + 1);
        std::ofstream(kept.path(), std::ios::binary) << bytes;
    }
    isAsFirst(1);
    isAsFirst(0);
    fs::remove_all(m_kavela.cache());
    isAsFirst(1);
    add("season/open.kvx", encode(smallRace("Lipno")));
    const json more = found("sections place Lipno");
    EXPECT_EQ(more["scanned"]["read"], 1);
    EXPECT_EQ(more["rows"].size(), 6U);
}

TEST_F(FindCalls, WriteTablesWithTheDescriptionOfEveryColumn) {
    const auto before = contentOf(at("season/cup.kvx"));
    const Ending ending = call({"facts", "season", "--csv", "tables"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_EQ(ending.output, "10 tables of 1 file with 4 runs written to tables\n");
    EXPECT_EQ(contentOf(at("season/cup.kvx")), before);
    EXPECT_EQ(contentOf(at("tables/gates.csv")),
              "file;run;gate;direction;style;time;entrance;exit;at\n"
              "0;0;3;0;0;3.5;0;0;20\n"
              "0;1;3;1;0;4.5;0;0;20\n");
    EXPECT_EQ(contentOf(at("tables/courses.csv")),
              "file;section;gate;upstream\n0;1;1;0\n0;1;2;0\n0;2;3;1\n");
    EXPECT_THAT(contentOf(at("tables/losses.csv")), HasSubstr(";\"Too wide\nLate\";"));
    EXPECT_THAT(contentOf(at("tables/runs.csv")), HasSubstr("\n0;2;Dún Cy / Eck Di;C2X;Final;"));
    const auto sections = linesOf(contentOf(at("tables/sections.csv")));
    ASSERT_EQ(sections.size(), 9U);
    EXPECT_EQ(sections[1], "0;0;1;40;1;;0;0;0;0");

    std::map<std::string, std::string> titles;
    for (const std::string& line : linesOf(contentOf(at("tables/columns.csv")))) {
        const std::size_t end = line.find(';');
        titles[line.substr(0, end)] += line.substr(end + 1, line.find(';', end + 1) - end);
    }
    titles.erase("table"); // its own line of titles
    EXPECT_EQ(titles.size(), 9U);
    for (const auto& [table, described] : titles)
        EXPECT_EQ(linesOf(contentOf(at("tables/" + table + ".csv"))).front() + ';', described);
}

TEST_F(FindCalls, WriteTablesOverNothingOfOthers) {
    ASSERT_EQ(call({"facts", "season", "--csv", "tables"}).status, 0);
    EXPECT_EQ(call({"facts", "season", "--csv", "tables"}).status, 0) << "over its own";
    add("tables/gates.csv", "gate;my notes\n");
    fs::remove(at("tables/runs.csv"));
    const Ending ending = call({"facts", "season", "--csv", "tables"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_THAT(ending.errors, HasSubstr("tables/gates.csv"));
    EXPECT_EQ(contentOf(at("tables/gates.csv")), "gate;my notes\n");
    EXPECT_FALSE(fs::exists(at("tables/runs.csv"))) << "all or nothing";
    add("plain", "");
    EXPECT_EQ(call({"facts", "season", "--csv", "plain/tables"}).status, 1);
    EXPECT_EQ(call({"facts", "season"}).status, 2) << "without a folder";
    const Ending none = call({"facts", "nowhere", "--csv", "other"});
    EXPECT_EQ(none.status, 1);
    EXPECT_THAT(none.errors, HasSubstr("nowhere: there is no such file"));
}

} // namespace kavela::test
