#include "cli/program.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

/// The calls that time a race: perfect, import-results, collect.
namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::SizeIs;

std::string race() {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.totalsplits = 4;
    document.athletes.resize(2);
    for (std::size_t i = 0; i < 2; ++i) {
        document.athletes[i].names = {i == 0 ? "Ann" : "Bea"};
        document.athletes[i].sectioninfo.sprinttime = 4;
    }
    document.athletes[0].sectioninfo.times = {10, 20, 33, 40};
    document.athletes[1].sectioninfo.times = {11, 22, 30, 48};
    return encode(document);
}

class SplitTakingCalls : public testing::Test {
protected:
    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }
    [[nodiscard]] std::string content(const char* name) const {
        return contentOf(m_kavela.folder().path() / name);
    }
    [[nodiscard]] splittakerdata031 document(const char* name) const {
        return decode<splittakerdata031>(JsonDocument::fromText(content(name)));
    }
    void add(const std::string& name, const std::string& text) const {
        (void)m_kavela.folder().add(name, text);
    }
    /// A split file of an older release.
    void addOlder() const {
        add("old.kvx", contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.28.kvx"));
    }

    Program m_kavela;
};

} // namespace

TEST_F(SplitTakingCalls, ComputeThePerfectTime) {
    add("race.kvx", race());
    const Ending ending = call({"perfect", "race.kvx", "--json"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "current perfect time 104 from 10 20 30 40 4 0 0 0 0 0 0 0\n");
    EXPECT_EQ(json::parse(ending.output), json::parse(R"({"perfectTime":104,
        "best":[10,20,30,40,4,0,0,0,0,0,0,0],
        "runs":[{"names":["Ann"],"xPer":1,"xTime":104},
                {"names":["Bea"],"xPer":1.1,"xTime":114.4}]})"));
    EXPECT_THAT(call({"perfect", "race.kvx"}).output, HasSubstr("Perfect time  104.00"));
    EXPECT_THAT(call({"perfect", "race.kvx", "--why", "xtime/1"}).output,
                AllOf(HasSubstr("shown 114.40 of 114.4"), HasSubstr("race.kvx · run 1 · split"),
                      HasSubstr("is left out: the largest")));
    EXPECT_EQ(call({"perfect", "race.kvx", "--why", "xtime/2"}).status, 1);
    EXPECT_THAT(call({"show", "race.kvx", "--why", "cell/1/5"}).output,
                HasSubstr("shown 111.00 of 111"))
        << "the total";
    EXPECT_EQ(content("race.kvx"), race()) << "only read";

    EXPECT_EQ(call({"perfect", "race.kvx", "--write"}).status, 0);
    const splittakerdata031 written = document("race.kvx");
    EXPECT_EQ(written.info.perfectRun, 104);
    EXPECT_EQ(written.athletes[1].sectioninfo.xPer, 1.1);
    EXPECT_GT(written.info.lastSavedDate.seconds, 0);
}

TEST_F(SplitTakingCalls, ImportResults) {
    add("race.kvx", race());
    add("list.csv",
        "pos;bib;name;nationality;time;pen\r\n1;5;Ann;FRA;104;2\r\n\r\n2;x;B;F;1;0\r\n");
    const Ending ending = call({"import-results", "race.kvx", "list.csv", "--json"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(json::parse(ending.output), json::parse(R"({"imported":1,"skipped":[{"line":4,
        "reason":"the bib \"x\" is no whole number"}]})"));
    EXPECT_THAT(ending.errors, HasSubstr("current perfect time 104 from"));
    ASSERT_THAT(document("race.kvx").info.resultsCSVdata, SizeIs(1));
    EXPECT_EQ(document("race.kvx").info.resultsCSVdata[0].total, 106);
    EXPECT_EQ(document("race.kvx").info.perfectRun, 104);
    EXPECT_EQ(call({"import-results", "race.kvx", "list.csv"}).output,
              "1 result imported, 1 line skipped\nLine 4: the bib \"x\" is no whole number\n");
    EXPECT_THAT(document("race.kvx").info.resultsCSVdata, SizeIs(2)) << "added to what is there";
    add("odd.csv", "pos;bib;name;nationality;time;pen\n1;7;Ann Lee;GBR;-5;0\n");
    EXPECT_EQ(call({"import-results", "race.kvx", "odd.csv"}).output,
              "1 result imported\nLine 2: the time -5 is below 0, and was imported as it stands\n");
    EXPECT_THAT(call({"import-results", "race.kvx", "odd.csv", "--json"}).errors,
                HasSubstr("Line 2: the time -5 is below 0"));
}

TEST_F(SplitTakingCalls, CollectATrainingFile) {
    for (const char* film : {"films/Ann Lee 2.MOV", "films/ann_lee_1.mp4", "films/Bea 1.MOV"}) {
        fs::create_directory(m_kavela.folder().path() / "films");
        add(film, "");
    }
    m_kavela.prefer("predeterminatedsplits=9\n");
    const Ending ending = call({"collect", "films", "--athlete", "Ann Lee"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_EQ(ending.output, "Saved: films/treining.kvx with 2 videos\n");
    EXPECT_EQ(document("films/treining.kvx").info.totalsplits, 9);
    EXPECT_THAT(document("films/treining.kvx").athletes, SizeIs(2));

    const std::string first = content("films/treining.kvx");
    const Ending again = call({"collect", "films", "--athlete", "Bea"});
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.errors, HasSubstr("--replace"));
    EXPECT_EQ(content("films/treining.kvx"), first);
    EXPECT_EQ(call({"collect", "films", "--athlete", "Bea", "--replace"}).status, 0);
    EXPECT_THAT(document("films/treining.kvx").athletes, SizeIs(1));
}

TEST_F(SplitTakingCalls, LeaveFilesOfOlderVersionsAlone) {
    addOlder();
    add("list.csv", "header\n1;2;a;b;3;4\n");
    const auto before = m_kavela.everything();
    EXPECT_EQ(call({"perfect", "old.kvx", "--json"}).status, 0);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"perfect", "old.kvx", "--write"},
          {"import-results", "old.kvx", "list.csv"}}) {
        const Ending ending = call(arguments);
        EXPECT_EQ(ending.status, 1);
        EXPECT_EQ(ending.output, "");
        EXPECT_THAT(ending.errors, HasSubstr("older version, 0.28"));
        EXPECT_THAT(ending.errors, HasSubstr("kavela upgrade old.kvx"));
    }
    EXPECT_EQ(m_kavela.everything(), before);
}

TEST_F(SplitTakingCalls, RefuseBadInputAndChangeNothing) {
    add("race.kvx", race());
    add("broken.kvx", "{\"info\":{}}");
    add("latin.csv", "header\n1;2;\xC9;b;3;4\n");
    fs::create_directory(m_kavela.folder().path() / "empty");
    const auto before = m_kavela.everything();
    struct Row {
        std::vector<std::string> call;
        int status;
        const char* message;
    };
    for (const Row& row : std::vector<Row>{
             {{"perfect", "broken.kvx", "--write"}, 1, Incompatible},
             {{"perfect", "missing.kvx"}, 1, Incompatible},
             {{"perfect"}, 2, "FILE is required"},
             {{"import-results", "broken.kvx", "latin.csv"}, 1, Incompatible},
             {{"import-results", "race.kvx", "latin.csv"}, 1, "not UTF-8"},
             {{"import-results", "race.kvx", "missing.csv"}, 1, "there is no such file"},
             {{"import-results", "race.kvx", "empty"}, 1, "this is a folder"},
             {{"import-results", "race.kvx"}, 2, "LIST is required"},
             {{"collect", "empty", "--athlete", "Ann"},
              1,
              "No video in empty carries the name Ann"},
             {{"collect", "missing", "--athlete", "Ann"}, 1, "cannot be read: No such file"},
             {{"collect", "race.kvx", "--athlete", "Ann"}, 1, "cannot be read: Not a directory"},
             {{"collect", "empty", "--athlete", " - "}, 2, "name must be"},
             {{"collect", "empty"}, 2, "--athlete is required"}}) {
        SCOPED_TRACE(row.call.front() + ": " + row.message);
        const Ending ending = call(row.call);
        EXPECT_EQ(ending.status, row.status);
        EXPECT_EQ(ending.output, "");
        EXPECT_THAT(ending.errors, HasSubstr(row.message));
    }
    EXPECT_EQ(m_kavela.everything(), before);
}

} // namespace kavela::test
