#include "splittaking/table_export.h"

#include "common/error.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

athletedata031 runOf(std::vector<std::string> names, std::string phase, std::vector<double> times,
                     std::vector<std::int64_t> pens) {
    athletedata031 run;
    run.names = std::move(names);
    run.phase = std::move(phase);
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.pens = std::move(pens);
    return run;
}

splittakerdata031 raceOf(std::int64_t splits, std::vector<athletedata031> runs) {
    splittakerdata031 race;
    race.info.totalsplits = splits;
    race.athletes = std::move(runs);
    return race;
}

} // namespace

TEST(TableExport, WritesHeaderAndRuns) {
    splittakerdata031 race = raceOf(3, {runOf({"Ann Lee"}, "Heat 1", {30.5, 28, 31.25}, {0, 2, 50}),
                                        runOf({"Bea", "Cy"}, "Final", {29, 0}, {})});
    race.athletes[0].sectioninfo.totaltime = 89.75;
    race.athletes[0].sectioninfo.totalpen = 52;
    race.athletes[1].sectioninfo.totaltime = 99; // as stored, whatever the splits say
    EXPECT_EQ(splitTableCsv(race), "Name;Phase;S1;P1;S2;P2;S3;P3;Total;P\n"
                                   "Ann Lee;Heat 1;30.5;0;28;2;31.25;50;89.75;52\n"
                                   "Bea / Cy;Final;29;0;0;0;0;0;99;0\n");
    EXPECT_EQ(splitTableCsv(raceOf(0, {})), "Name;Phase;Total;P\n");
    EXPECT_EQ(splitTableCsv(raceOf(-3, {})), "Name;Phase;Total;P\n");
}

TEST(TableExport, QuotesWhatWouldBreakALine) {
    struct Row {
        const char* name;
        const char* written;
    };
    for (const Row& row :
         {Row{"a;b", "\"a;b\""}, Row{"Jo \"J\"", "\"Jo \"\"J\"\"\""}, Row{"a\nb", "\"a\nb\""},
          Row{"a\rb", "\"a\rb\""}, Row{"a, b", "a, b"}, Row{"", ""}, Row{"Šárka", "Šárka"}}) {
        const std::string end = ";0;0\n";
        EXPECT_EQ(splitTableCsv(raceOf(0, {runOf({row.name}, row.name, {}, {})})),
                  "Name;Phase;Total;P\n" + std::string(row.written) + ';' + row.written + end);
    }
}

TEST(TableExport, WritesShortestPlainNumbers) {
    struct Row {
        double time;
        const char* text;
    };
    for (const Row& row :
         {Row{12.346, "12.346"}, Row{0.1, "0.1"}, Row{100, "100"}, Row{1e-7, "0.0000001"},
          Row{1e21, "1000000000000000000000"}, Row{1.0 / 3, "0.3333333333333333"},
          Row{5e-10, "0.0000000005"}, Row{-2.5, "-2.5"}})
        EXPECT_EQ(splitTableCsv(raceOf(1, {runOf({}, "", {row.time}, {})})),
                  "Name;Phase;S1;P1;Total;P\n;;" + std::string(row.text) + ";0;0;0\n");
}

TEST(TableExport, SumsGatePenaltiesBySection) {
    splittakerdata031 race = raceOf(3, {runOf({"A"}, "", {1, 2, 3}, {2, 50, 0, 2})});
    race.info.gates = 4;
    race.info.definedsections = {{1, 2}, {4, 3, 99, 0}};
    EXPECT_EQ(splitTableCsv(race), "Name;Phase;S1;P1;S2;P2;S3;P3;Total;P\nA;;1;52;2;2;3;0;0;0\n");
    race.info.gates = 5; // the penalties are not those of every gate: they count by section
    EXPECT_EQ(splitTableCsv(race), "Name;Phase;S1;P1;S2;P2;S3;P3;Total;P\nA;;1;2;2;50;3;0;0;0\n");
}

TEST(TableExport, RefusesACourseThatNoTableCanHold) {
    EXPECT_THROW((void)splitTableCsv(raceOf(INT64_MAX, {})), EncodeError);
}

} // namespace kavela::test
