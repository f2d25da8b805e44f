#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* Header = "pos;bib;name;nationality;time;pen\n";

ResultsList listOf(const std::string& lines) {
    return parseResults(Header + lines);
}

} // namespace

TEST(ResultsImport, ReadsEveryField) {
    const ResultsList list =
        listOf("1;14;Élie M;FRA;84.25;2\r\n-2;0;;;.5;-50;more;\n3;3; b;x;1e2;0");
    EXPECT_THAT(list.skipped, IsEmpty());
    EXPECT_EQ(encode(list.results),
              R"([{"pos":1,"bib":14,"name":"Élie M","nationality":"FRA","time":84.25,"pen":2,)"
              R"("total":86.25},{"pos":-2,"bib":0,"name":"","nationality":"","time":0.5,"pen":-50,)"
              R"("total":-49.5},{"pos":3,"bib":3,"name":" b","nationality":"x","time":100,"pen":0,)"
              R"("total":100}])");
}

TEST(ResultsImport, TakesOddResultsAndTellsThem) {
    const ResultsList list = listOf("1;1;a;FRA;-5;0\n2;2;b;FRA;80;-2\n3;3;c;FRA;7200;0\n"
                                    "0;4;d;FRA;0;0\n-1;5;e;FRA;81;50\n6;6;f;FRA;82;5000");
    EXPECT_THAT(list.results, SizeIs(6));
    EXPECT_THAT(list.doubtful, ElementsAre(SkippedLine{2, "the time -5 is below 0"},
                                           SkippedLine{3, "the penalty -2 is below 0"},
                                           SkippedLine{4, "the time 7200 is an hour or more"},
                                           SkippedLine{6, "the position -1 is below 0"},
                                           SkippedLine{7, "the penalty 5000 is over 999"}));
}

TEST(ResultsImport, SkipsWhatDoesNotParse) {
    struct Row {
        const char* line;
        const char* reason;
    };
    for (const Row& row : {Row{"1;2", "2 fields"},
                           Row{"free text", "1 field where six are needed"},
                           Row{"1;2;a;FRA;80", "5 fields where six are needed"},
                           Row{" 1;2;a;FRA;80;0", "the position \" 1\" is no whole number"},
                           Row{"1 ;2;a;FRA;80;0", "position"},
                           Row{"1.0;2;a;FRA;80;0", "position"},
                           Row{"0x1;2;a;FRA;80;0", "position"},
                           Row{";2;a;FRA;80;0", "position"},
                           Row{"99999999999999999999;2;a;FRA;80;0", "position"},
                           Row{"1;+-2;a;FRA;80;0", "bib"},
                           Row{"1;b;a;FRA;80;0", "bib"},
                           Row{"1;2;a;FRA;80,5;0", "the time \"80,5\" is no number of seconds"},
                           Row{"1;2;a;FRA;1:20.5;0", "time"},
                           Row{"1;2;a;FRA; 80;0", "time"},
                           Row{"1;2;a;FRA;nan;0", "time"},
                           Row{"1;2;a;FRA;inf;0", "time"},
                           Row{"1;2;a;FRA;1e400;0", "time"},
                           Row{"1;2;a;FRA;0x10;0", "time"},
                           Row{"1;2;a;FRA;80;2.0", "the penalty \"2.0\" is no whole number"},
                           Row{"1;2;a;FRA;80;", "penalty"},
                           Row{";;;;;", "position"}}) {
        const ResultsList list = listOf(std::string("\n") + row.line + "\n4;5;b;GER;81;0\n");
        EXPECT_THAT(list.results, SizeIs(1)) << row.line;
        ASSERT_THAT(list.skipped, SizeIs(1)) << row.line;
        EXPECT_EQ(list.skipped[0].line, 3);
        EXPECT_THAT(list.skipped[0].reason, HasSubstr(row.reason));
    }
}

TEST(ResultsImport, PassesOverHeaderAndBlankLines) {
    EXPECT_THAT(listOf("\n\r\n  \t\n").skipped, IsEmpty());
    EXPECT_THAT(parseResults("1;2;a;FRA;80;0").results, IsEmpty()) << "a header in any case";
    EXPECT_THAT(parseResults("").skipped, IsEmpty());
}

TEST(ResultsImport, AppendsAndRecomputes) {
    const TempFolder folder;
    Recorder recorder;
    splittakerdata031 race;
    race.info.resultsCSVdata.resize(1);
    race.athletes.resize(1);
    race.athletes[0].sectioninfo.times = {10, 20};
    const auto list = folder.add("list.csv", "\xEF\xBB\xBF" + std::string(Header) +
                                                 "2;1;b;FRA;90;0\nbad\n1;2;a;FRA;80;2\n");
    const ResultsImport import = importResults(race, list, recorder.log());
    EXPECT_EQ(import.imported, 2);
    EXPECT_EQ(import.failure, std::nullopt);
    EXPECT_THAT(import.skipped, SizeIs(1));
    ASSERT_THAT(race.info.resultsCSVdata, SizeIs(3));
    EXPECT_EQ(race.info.resultsCSVdata[1].name, "b") << "in file order";
    EXPECT_EQ(race.info.perfectRun, 30);
    EXPECT_THAT(recorder.lines, ElementsAre(testing::StartsWith("current perfect time 30 from")));
}

TEST(ResultsImport, LeavesTheDocumentAloneWithoutAReadableList) {
    const TempFolder folder;
    splittakerdata031 race;
    race.athletes.resize(1);
    race.athletes[0].sectioninfo.times = {10, 20};
    const std::string before = encode(race);
    for (const auto& list : {folder.path() / "missing.csv", folder.path(),
                             folder.add("latin", std::string(Header) + "1;2;\xC9lie;FRA;80;0\n"),
                             folder.add("utf16", std::string("\xFF\xFEp\0o\0s\0", 8))}) {
        Recorder recorder;
        const ResultsImport import = importResults(race, list, recorder.log());
        EXPECT_NE(import.failure, std::nullopt);
        EXPECT_EQ(import.imported, 0);
        EXPECT_THAT(recorder.lines, ElementsAre(HasSubstr(list.string())));
        EXPECT_EQ(encode(race), before);
    }
}

TEST(ResultsMatch, FindsTheLineOfACrewHoweverItIsWritten) {
    std::vector<athletedata031> runs(4);
    runs[0].names = {"Ana Novák"};
    runs[1].names = {"Ben Berg", "Cem Dal"};
    runs[2].names = {"Somebody Else"};
    const ResultsList list = listOf("1;1;BERG Ben / DAL Cem;GER;90;2\n2;2;NOVAK Ana;CZE;91.5;0\n"
                                    "3;3;Ana Novak;CZE;95;0\n4;4;;CZE;99;0\n");
    const auto matched = matchedResults(runs, list.results);
    ASSERT_THAT(matched, SizeIs(4));
    EXPECT_EQ(matched[0].line, 1U);
    EXPECT_EQ(matched[1].line, 0U);
    EXPECT_FALSE(matched[2].line);
    EXPECT_FALSE(matched[3].line) << "nobody is no name";
    takeResult(runs[1], list.results[0]);
    EXPECT_EQ(runs[1].sectioninfo.realtime, 90);
    EXPECT_EQ(runs[1].sectioninfo.realpen, 2);
}

} // namespace kavela::test
