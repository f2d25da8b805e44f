#include "splitdata/run_totals.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

athletedata031 timedRun(std::vector<double> times) {
    athletedata031 run;
    run.names = {"Ana Novak"};
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.totalpen = 4;
    return run;
}

} // namespace

TEST(RunTotals, AreOfficialBeforeTheyAreOfTheVideo) {
    struct Row {
        const char* name;
        std::vector<double> times;
        double official;
        std::int64_t sections;
        std::optional<double> total;
    };
    for (const Row& row :
         {Row{"both", {10, 20}, 91.2, 2, 93.2}, Row{"video alone", {10, 20}, 0, 2, 34},
          Row{"official alone", {}, 91.2, 2, 93.2}, Row{"a section missed", {10, 0}, 0, 2, {}},
          Row{"a section not reached", {10}, 0, 2, {}},
          Row{"beyond the course", {10, 20, 5}, 0, 2, 34},
          Row{"no result in the list", {10, 20}, 999.9, 2, 34},
          Row{"no result anywhere", {10, 999.99}, 999.9, 2, {}},
          Row{"a wrong mark", {10, -1}, 0, 2, {}},
          Row{"a wrong official time", {10, 20}, -1, 2, 34},
          Row{"twelve sections, the last missed", {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0}, 0, 12, {}},
          Row{"no sections", {}, 0, 0, {}}, Row{"damaged course", {10}, 0, INT64_MAX, {}}}) {
        infodata031 info;
        info.totalsplits = row.sections;
        athletedata031 run = timedRun(row.times);
        run.sectioninfo.realtime = row.official;
        run.sectioninfo.realpen = 2;
        const std::optional<RunTotal> total = totalOf(info, run);
        ASSERT_EQ(total.has_value(), row.total.has_value()) << row.name;
        if (total) {
            EXPECT_DOUBLE_EQ(total->total(), *row.total) << row.name;
            EXPECT_EQ(total->official, isTakenTime(row.official)) << row.name;
        }
    }
}

TEST(RunTotals, AreNoneForACrewThatTheListRefuses) {
    struct Row {
        const char* name;
        const char* nation;
        bool isRefused;
    };
    for (const Row& row : {Row{"NOVAK Ana DNF", "SLO", true}, Row{"dsq Ana Novak", "", true},
                           Row{"Novak, Ana (DNS)", "SLO", true}, Row{"Ana Novak", "DNF", true},
                           Row{"Ana Novak", "SLO", false}, Row{"Ana Novakdnf", "SLO", false},
                           Row{"Eva Novak DNF", "SLO", false}, Row{"DNF", "", false}}) {
        infodata031 info;
        info.totalsplits = 1;
        info.resultsCSVdata.resize(1);
        info.resultsCSVdata[0].name = row.name;
        info.resultsCSVdata[0].nationality = row.nation;
        athletedata031 run = timedRun({90});
        run.sectioninfo.realtime = 91;
        EXPECT_EQ(isRefused(info, run), row.isRefused) << row.name;
        EXPECT_EQ(totalOf(info, run).has_value(), !row.isRefused) << row.name;
    }
}

TEST(RunTotals, KnowWhichTimesAreOfOneSection) {
    constexpr double Endless = std::numeric_limits<double>::infinity();
    const std::vector<double> times{10, 0, 31, 12, -1, 9, 999.9, 14, Endless};
    const std::vector<bool> alone{true, false, false, true, false, false, false, false, false};
    for (std::size_t section = 0; section < times.size(); ++section)
        EXPECT_EQ(standsAlone(timedRun(times), section), alone[section]) << section;
    EXPECT_FALSE(standsAlone(timedRun(times), times.size()));
    EXPECT_FALSE(standsAlone(timedRun({}), 0));
}

TEST(RunTotals, KnowTheMarksOfAFilmThatBeganBehindTheStart) {
    const auto mark = [](std::int64_t ticks) { return std::vector{CMTime{ticks, 600, 1, 0}}; };
    athletedata031 run = timedRun({0, 9.48, 10.2});
    run.sectioninfo.cmtimes = {mark(1896), mark(7584), mark(13704)};
    EXPECT_TRUE(standsAlone(run, 1));
    run.sectioninfo.times[1] += 6.1;
    EXPECT_FALSE(standsAlone(run, 1)) << "the time is not what lies between these marks";
    run.sectioninfo.times[1] = 12.64;
    run.sectioninfo.cmtimes[0].clear();
    EXPECT_FALSE(standsAlone(run, 1)) << "the mark was not seen";
    EXPECT_TRUE(standsAlone(run, 2));
}

} // namespace kavela::test
