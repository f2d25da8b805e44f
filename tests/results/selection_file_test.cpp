#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "results/messages.h"
#include "results/selection_attach.h"
#include "results/selection_file.h"
#include "results/selection_import.h"
#include "results/selections.h"

#include <gmock/gmock.h>

#include <fmt/format.h>

namespace kavela::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

/// A file as a release of the layout wrote it: `rest` is what stands between club and the end of
/// the athlete.
std::string fileWith(const std::string& preselected, const std::string& bonuses) {
    return fmt::format(R"({{"year":2024,"rules":"Best three","races":[{{"location":"Weirton",)"
                       R"("bestTimes":[97.5],"bestxTimes":[999]}}],"categories":[{{"cat":"MK1",)"
                       R"("athletes":[{{"name":"BROOK Adam","year":2003,"club":"Mill","racedata":)"
                       R"([{{"pos":1,"resultTime":95.5,"pen":2,"xTime":0,"resultPer":0,)"
                       R"("resultxPer":0,"points":9}}],"preselected":{},"result":0.5{}}}]}}]}})",
                       preselected, bonuses);
}

const std::string Version3 = fileWith("[true,false]", R"(,"bonuses":[-1,0.25])");
const std::string Version2 = fileWith("[true,false]", "");
const std::string Version1 = fileWith("true", "");

athletedata031 runOf(std::vector<std::string> names, const char* category, double total,
                     std::int64_t pen = 0) {
    athletedata031 run;
    run.names = std::move(names);
    run.cat = category;
    run.sectioninfo.totaltime = total;
    run.sectioninfo.totalpen = pen;
    return run;
}

} // namespace

TEST(SelectionFile, EveryLayoutIsRecognisedAndBecomesTheCurrentOne) {
    struct Row {
        const std::string& text;
        const char* label;
        std::string expected;
        std::size_t failures;
    };
    for (const Row& row : {Row{Version3, "3", Version3, 0},
                           Row{Version2, "2", fileWith("[true,false]", R"(,"bonuses":[])"), 1},
                           Row{Version1, "1", fileWith("[true]", R"(,"bonuses":[])"), 2}}) {
        const auto found = recogniseSelectionDocument(JsonDocument::fromText(row.text));
        ASSERT_TRUE(found.version) << row.label;
        EXPECT_EQ(found.version->label, row.label);
        EXPECT_EQ(encode(found.document), row.expected);
        EXPECT_THAT(found.failures, SizeIs(row.failures));
    }
}

TEST(SelectionFile, TellsWhatSpeaksAgainstEachLayout) {
    const auto found = recogniseSelectionDocument(
        JsonDocument::fromText(fileWith("[true,1]", R"(,"bonuses":[])")));
    EXPECT_FALSE(found.version);
    ASSERT_THAT(found.failures, SizeIs(3));
    EXPECT_EQ(found.failures[0].fault.path, "categories[0].athletes[0].preselected[1]");
    EXPECT_THAT(found.failures[2].fault.message(), HasSubstr("preselected"));
}

TEST(SelectionFile, OpeningAnOlderLayoutKeepsThePreviousFile) {
    const TempFolder folder;
    Recorder recorder;
    const auto path = folder.add("spring.kvsr", Version1);
    (void)folder.add("spring_old.kvsr", "something else");
    const auto opened = openSelectionFile(path, recorder.log(), recorder);
    ASSERT_TRUE(opened);
    EXPECT_THAT(opened->categories[0].athletes[0].preselected, ElementsAre(true));
    EXPECT_TRUE(recogniseSelectionFile(path).isCurrent());
    EXPECT_EQ(contentOf(folder.path() / "spring_old.kvsr"), "something else");
    EXPECT_EQ(contentOf(folder.path() / "spring_old2.kvsr"), Version1);
    EXPECT_TRUE(openSelectionFile(path, recorder.log(), recorder));
    EXPECT_THAT(folder.names(),
                UnorderedElementsAre("spring.kvsr", "spring_old.kvsr", "spring_old2.kvsr"));
    EXPECT_THAT(recorder.lines, IsEmpty());
    EXPECT_THAT(recorder.alerts, IsEmpty());
    EXPECT_FALSE(openSelectionFile(folder.path() / "none.kvsr", recorder.log(), recorder));
    EXPECT_THAT(recorder.alerts, SizeIs(1));
}

TEST(SelectionFile, ASaveThatFailsIsToldInItsOwnWords) {
    const TempFolder folder;
    Recorder recorder;
    EXPECT_FALSE(saveSelectionFile({}, folder.path() / "none" / "a.kvsr", recorder.log()));
    ASSERT_THAT(recorder.lines, SizeIs(2));
    EXPECT_EQ(recorder.lines[0], "Failed to save selection race file");
    const auto path = folder.add("a.kvsr", Version3);
    auto document = recogniseSelectionFile(path).document;
    document.categories[0].athletes[0].result = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(saveSelectionFile(document, path, recorder.log()));
    EXPECT_EQ(contentOf(path), Version3);
}

TEST(SelectionImport, AddsAthletesAndTellsWhichLinesItLeftOut) {
    auto document = selectionOf({{"BROOK Adam", {100, 101}}});
    const ListImport import = importAthletes(document, "Cat;Name;Surname;year;club\r\n"
                                                       "WK1;Bea;van Šlap;2004;\"Mill; Old\"\r\n\r\n"
                                                       "K1M;ADAM;brook;2000;Mill\n"
                                                       "MK1;Cy;Dam;20x4;Mill\n"
                                                       "MK1;Cy;Dam;2004\n"
                                                       "MK1;Cy;;2004;Mill\n"
                                                       " MK1 ; Cy ; Dam ;2004;;more\n"
                                                       "Veterans;Al;Old;1950;Mill");
    EXPECT_EQ(import.imported, 3);
    EXPECT_EQ(import.present, 1);
    EXPECT_THAT(import.added,
                ElementsAre(NewCategory{"WK1", 2, true}, NewCategory{"Veterans", 9, false}));
    std::vector<std::int64_t> lines;
    for (const RefusedLine& skipped : import.skipped)
        lines.push_back(skipped.line);
    EXPECT_THAT(lines, ElementsAre(4, 5, 6, 7));
    EXPECT_EQ(import.skipped[0].reason, "BROOK ADAM is in MK1 already");
    EXPECT_EQ(import.skipped[1].reason, "the year \"20x4\" is no whole number");
    EXPECT_THAT(namesOf(document), ElementsAre("BROOK Adam", "DAM Cy"));
    EXPECT_THAT(namesOf(document, 1), ElementsAre("VAN ŠLAP Bea"));
    EXPECT_EQ(document.categories[1].athletes[0].club, "Mill; Old");
    EXPECT_EQ(document.categories[1].athletes[0].racedata[1].resultTime, 999.9);

    selectionracesStruct_v3 empty;
    EXPECT_TRUE(importAthletes(empty, "t\nMK1;A;B;2000;c").needsRace);
    EXPECT_THAT(empty.categories, IsEmpty());
}

TEST(SelectionImport, EntersResultsOfBothLayouts) {
    auto document = selectionOf({{"BROOK Adam", {999.9}}, {"LOCK Cy", {999.9}}});
    const FoundRuns coma = foundInList(document, 0, ResultLayout::ComaMode,
                                       "Pos;SURNAME Name;Totaltime;Totalpen\n"
                                       "1;LOCK Cy;95,25;2\n2;Adam Brook;98.5;0\n"
                                       "3;WEIR Ed;99;0\n4;LOCK Cy;DNS;");
    EXPECT_THAT(coma.refused,
                ElementsAre(RefusedLine{5, "the time \"DNS\" is no time in seconds"}));
    EXPECT_FALSE(coma.runs.at(2).athlete) << "WEIR Ed is not in MK1";
    EXPECT_THAT(enterRuns(document, 0, coma).results, SizeIs(2));
    const auto& athletes = document.categories[0].athletes;
    EXPECT_EQ(athletes[1].racedata[0].resultTime, 95.25);
    EXPECT_EQ(athletes[1].racedata[0].pen, 2);
    EXPECT_EQ(athletes[1].racedata[0].pos, 1);

    const FoundRuns tacen =
        foundInList(document, 0, ResultLayout::Tacen,
                    "cat;SURNAME NAME;Club;Time(.);P;Tot\nK1M;BROOK ADAM;Mill;94.1;4;98.1\n"
                    "WK1;BROOK ADAM;Mill;94.1;4;98.1\nMK1;LOCK CY;Mill;94,1;0;94,1");
    EXPECT_THAT(tacen.refused, SizeIs(1));
    EXPECT_THAT(enterRuns(document, 0, tacen).results, ElementsAre(ResultPlace{0, 0, 0}));
    EXPECT_EQ(athletes[0].racedata[0].resultTime, 94.1);
    EXPECT_EQ(athletes[0].racedata[0].pos, 2);
}

TEST(SelectionAttach, FindsRunsHoweverNamesAreWritten) {
    auto document = selectionOf({{"van der BROOK Ádám", {50, 50}},
                                 {"LOCK Cy", {50, 50}},
                                 {"WEIR Ed", {50, 50}},
                                 {"SLUICE Fay", {50, 50}}});
    document.categories.push_back({"C2X", {document.categories[0].athletes[0]}});
    document.categories[1].athletes[0].name = "RAPID Gil / POOL Ida";
    document.categories.push_back({"WC1", {document.categories[0].athletes[1]}});
    splittakerdata031 heats;
    heats.info.category = "K1M";
    heats.info.totalsplits = 2;
    heats.athletes = {runOf({"Adam van der Brook"}, "", 99, 2),
                      runOf({"Cy Lock"}, "MK1", 97),
                      runOf({"Ida Pool", "Gil Rapid"}, "C2X", 120),
                      runOf({"Ed Weir"}, "", 60),
                      runOf({"Nobody"}, "", 90),
                      runOf({"Cy Lock"}, "WK1", 90)};
    heats.athletes[1].sectioninfo.realtime = 98.25;
    heats.athletes[1].sectioninfo.realpen = 4;
    heats.athletes[1].sectioninfo.xTime = 96;
    heats.athletes[3].sectioninfo.times = {60, 0};
    splittakerdata031 finals = heats;
    finals.athletes = {runOf({"BROOK Adam van der"}, "", 100.5)};
    const Attached attached = attachRace(document, 1, std::vector{heats, finals});

    EXPECT_THAT(attached.entered.results, SizeIs(3));
    const auto result = [&](std::size_t category, std::size_t athlete) {
        const saRaceStruct& r = document.categories[category].athletes[athlete].racedata[1];
        return std::vector<double>{r.resultTime, static_cast<double>(r.pen), r.xTime,
                                   static_cast<double>(r.pos)};
    };
    EXPECT_THAT(result(0, 0), ElementsAre(100.5, 0, 999.9, 1)) << "better than 99 with 2 seconds";
    EXPECT_THAT(result(0, 1), ElementsAre(98.25, 4, 96, 2)) << "the official time";
    EXPECT_THAT(result(0, 2), ElementsAre(999.9, 0, 999.9, 0)) << "an unfinished run";
    EXPECT_THAT(result(0, 3), ElementsAre(999.9, 0, 999.9, 0)) << "no run";
    EXPECT_THAT(result(1, 0), ElementsAre(120, 0, 999.9, 1)) << "a double, the other way round";
    EXPECT_EQ(result(2, 0)[0], 50) << "a category that was not raced";
    EXPECT_EQ(document.categories[0].athletes[0].racedata[0].resultTime, 50) << "another race";
    EXPECT_THAT(attached.entered.missing, ElementsAre(ResultPlace{0, 2, 1}, ResultPlace{0, 3, 1}));
    std::vector<std::string> unused;
    for (const UnusedRun& run : attached.unused)
        unused.push_back(run.crew + ": " + run.reason);
    EXPECT_THAT(unused,
                ElementsAre("Ed Weir: did not finish the run", "Nobody: is not in the selection",
                            "Cy Lock: is not in the selection"));
}

TEST(SelectionAttach, KeepsAnExpectedTimeThatTheFileDoesNotHave) {
    auto document = selectionOf({{"BROOK Adam", {50}}, {"LOCK Cy", {50}}});
    setResult(document, {0, 0, 0}, 50, 0, 48.5);
    splittakerdata031 file;
    file.info.category = "MK1";
    file.athletes = {runOf({"Adam Brook"}, "", 99), runOf({"Cy Lock"}, "", 97)};
    const Attached attached = attachRace(document, 0, std::vector{file});
    EXPECT_EQ(document.categories[0].athletes[0].racedata[0].resultTime, 99);
    EXPECT_EQ(document.categories[0].athletes[0].racedata[0].xTime, 48.5);
    EXPECT_THAT(attached.entered.keptExpected, ElementsAre(ResultPlace{0, 0, 0}));
}

TEST(SelectionTakeover, EntersWhatWasGivenToAthletesByHand) {
    auto document = selectionOf({{"BROOK Adam", {50}}, {"LOCK Cy", {50}}, {"WEIR Ed", {50}}});
    splittakerdata031 file;
    file.info.category = "K1M";
    file.athletes = {runOf({"A. Broock"}, "", 99), runOf({"Adam Brook"}, "", 101),
                     runOf({"Fay Sluice"}, "", 98), runOf({"Fay SLUICE"}, "", 97)};
    FoundRuns found = foundInSplitFiles(document, std::vector{file});
    EXPECT_THAT(withoutRun(document, 0, found),
                ElementsAre(AthletePlace{0, 1}, AthletePlace{0, 2}));
    found.runs[0].athlete = AthletePlace{0, 0};
    found.runs[2].isOfNewAthlete = found.runs[3].isOfNewAthlete = true;
    found.kept = {{0, 2}};
    const EnteredRuns entered = enterRuns(document, 0, found);
    const auto& athletes = document.categories[0].athletes;
    EXPECT_EQ(athletes[0].racedata[0].resultTime, 99) << "the better of both ways of writing";
    EXPECT_THAT(entered.missing, ElementsAre(ResultPlace{0, 1, 0}));
    EXPECT_EQ(athletes[2].racedata[0].resultTime, 50) << "kept by hand";
    ASSERT_THAT(athletes, SizeIs(4)) << "one new athlete for both runs";
    EXPECT_EQ(athletes[3].name, "Fay Sluice");
    EXPECT_EQ(athletes[3].racedata[0].resultTime, 97);
    EXPECT_EQ(athletes[3].racedata[0].pos, 2);
}

} // namespace kavela::test
