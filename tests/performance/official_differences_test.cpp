#include "performance/official_differences.h"

#include "performance/loss_races.h"
#include "performance/race_tables.h"
#include "splitdata/run_totals.h"
#include "tables/list_reader.h"
#include "tables/list_source.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"

#include <gmock/gmock.h>

/// Official results beside the films.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Kind = OfficialDifferenceKind;

athletedata031 filmedRun(const std::string& name, std::vector<double> times,
                         std::int64_t penalty = 0) {
    athletedata031 run = lossRun({name}, std::move(times));
    run.sectioninfo.totalpen = penalty;
    return run;
}

splittakerdata031 finalOfSix() {
    return lossRace(2, {filmedRun("Anna Bell", {45, 45}), filmedRun("Eva Dvořák", {46, 46}, 2),
                        filmedRun("Iva Kos", {47, 47}), filmedRun("Ota Lis", {48, 48}),
                        filmedRun("Jan Mach", {49, 0}), filmedRun("Ben Nowak", {50, 50})});
}

std::vector<OfficialLine> listOf(const std::string& lines) {
    return officialLines(tableOf(readList("Bib;Name;Time;Pen\n" + lines)));
}

std::vector<Kind> kindsOf(const std::vector<OfficialDifference>& differences) {
    std::vector<Kind> kinds;
    for (const OfficialDifference& difference : differences)
        kinds.push_back(difference.kind);
    return kinds;
}

} // namespace

TEST(OfficialDifferences, TellEachThingThatDiffers) {
    const auto lines = listOf("1;BELL Anna;90.04;2\n"  // a penalty is missing, the time is near
                              "2;DVORAK Eva;92.05;0\n" // half a frame too far, and clean
                              "3;KOS Iva;96;0\n4;LIS Ota;94;0\n" // each other's times
                              "5;MACH Jan;99;0\n"                // ours has no finish
                              "6;NOWAK Ben;DNF;\n7;Else Somebody;93;0\n");
    const auto differences = officialDifferences(finalOfSix(), lines);
    EXPECT_THAT(kindsOf(differences),
                ElementsAre(Kind::MissingPenalty, Kind::ExcessPenalty, Kind::TimeOff,
                            Kind::SwappedBib, Kind::Unfinished, Kind::NoResult, Kind::NotFilmed));
    EXPECT_THAT(differences[0].text, HasSubstr("2 s of penalties, ours has 0 s"));
    EXPECT_THAT(differences[3].text, HasSubstr("bibs 3 and 4"));
    EXPECT_THAT(differences[5].text, HasSubstr("DNF"));
    EXPECT_FALSE(differences[6].isOpen);
}

TEST(OfficialDifferences, AreTakenOverOneByOne) {
    splittakerdata031 race = finalOfSix();
    const auto lines = listOf("1;BELL Anna;90;2\n2;DVORAK Eva;92;2\n3;KOS Iva;96;0\n"
                              "4;LIS Ota;94;0\n5;MACH Jan;99;0\n6;NOWAK Ben;DNF;\n");
    auto differences = officialDifferences(race, lines);
    ASSERT_THAT(differences, SizeIs(4));
    ASSERT_TRUE(takeOver(race, differences[0]));
    EXPECT_EQ(race.athletes[0].sectioninfo.realtime, 90);
    EXPECT_EQ(race.athletes[0].sectioninfo.realpen, 2);
    EXPECT_EQ(race.athletes[0].sectioninfo.totalpen, 0);
    EXPECT_EQ(race.athletes[4].sectioninfo.realtime, 0); // the others as they were
    ASSERT_TRUE(takeOver(race, differences[1]));
    EXPECT_THAT(race.athletes[2].names, ElementsAre("Ota Lis"));
    EXPECT_FALSE(takeOver(race, differences[1])); // the run is another crew's by now
    ASSERT_TRUE(takeOver(race, differences[2]));
    ASSERT_TRUE(takeOver(race, differences[3]));
    EXPECT_FALSE(totalOf(race.info, race.athletes[5]));
    differences = officialDifferences(race, lines);
    EXPECT_THAT(kindsOf(differences), ElementsAre(Kind::NoResult)); // the film still has a finish
    EXPECT_FALSE(differences[0].isOpen);
}

TEST(OfficialDifferences, MatchTheNearestOfSeveralRuns) {
    splittakerdata031 race =
        lossRace(1, {filmedRun("Anna Bell", {95}), filmedRun("Anna Bell", {90}),
                     filmedRun("Eva Kos", {90})});
    race.athletes[0].phase = "Heats 1";
    race.athletes[1].phase = "Heats 2";
    race.athletes[2].cat = "C1W";
    const auto lines = listOf("1;Anna Bell;90;0\n1;Anna Bell;95.02;0\n");
    OfficialScope kayaks;
    kayaks.category = "MK1";
    EXPECT_THAT(kindsOf(officialDifferences(race, lines, kayaks)), IsEmpty());
    OfficialScope firstHeats;
    firstHeats.phase = "heats-1";
    EXPECT_THAT(kindsOf(officialDifferences(race, lines, firstHeats)),
                ElementsAre(Kind::NotFilmed));
    EXPECT_THAT(kindsOf(officialDifferences(race, lines)), ElementsAre(Kind::NotInList));
}

TEST(OfficialLines, ReadStatusAndTotals) {
    const auto lines = officialLines(
        tableOf(readList("Surname;First name;Total;Penalties\nBell;Anna;1:34.50;4\nKos;Eva;DNS;")));
    EXPECT_EQ(lines[0].crew, "Bell Anna");
    EXPECT_EQ(lines[0].time, 90.5);
    EXPECT_EQ(lines[1].status, "DNS");
    allresultsdata030 refused;
    refused.name = "Anna Bell (dnf)";
    refused.time = 90;
    const auto kept = officialLines(std::vector{refused});
    EXPECT_EQ(kept[0].crew, "Anna Bell");
    EXPECT_EQ(kept[0].status, "DNF");
    EXPECT_FALSE(kept[0].time); // counts even beside a time
    EXPECT_THROW((void)officialLines(tableOf(readList("Name;Club\nAnna;USK"))), TableError);
}

TEST(RaceTables, AreKeptWithTheRace) {
    infodata031 info;
    info.resultsCSVdata = {{1, 4, "Anna; Bell", "CZE", 90.25, 2, 92.25}};
    const ListTable table = tableOf(raceTableLists(info, "resultsCSVdata").at(0));
    EXPECT_EQ(table.columns[2].cells[0].text, "Anna; Bell");
    keepWithRace(info, table);
    EXPECT_THAT(raceTableNames(info), ElementsAre("resultsCSVdata", "officialresultsAnalysis"));
    const ListTable kept = tableOf(raceTableLists(info, "officialresultsAnalysis").at(0));
    ASSERT_THAT(kept.columns, SizeIs(table.columns.size()));
    for (std::size_t i = 0; i < kept.columns.size(); ++i) {
        EXPECT_EQ(kept.columns[i].name, table.columns[i].name);
        EXPECT_EQ(kept.columns[i].cells, table.columns[i].cells);
    }
    info.officialresults.bytes = {'%', 'P', 'D', 'F', '-'};
    EXPECT_THROW((void)raceTableLists(info, "officialresults"), TableError);
}

} // namespace kavela::test
