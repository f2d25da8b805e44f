#include "analysis/followed_runs.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using Places = std::vector<std::optional<std::size_t>>;

/// One run for each letter, known by it alone; their times differ as the letters do.
RaceSet setOf(const std::string& crews) {
    std::vector<athletedata031> runs;
    for (const char crew : crews) {
        runs.push_back(runOf({static_cast<double>(crew)}));
        runs.back().names = {std::string(1, crew)};
    }
    return makeRaceSet(raceOf(1, std::move(runs)), "a.kvx");
}

} // namespace

TEST(FollowedRuns, KnowsARunByItsCrewWhereverItStands) {
    struct Row {
        const char* name;
        const char* before;
        const char* after;
        Places places;
    };
    for (const Row& row : {Row{"another order", "abc", "cab", {1, 2, 0}},
                           Row{"one more in front", "ab", "xab", {1, 2}},
                           Row{"one gone", "abc", "ac", {0, std::nullopt, 1}},
                           Row{"another in its place", "abc", "axc", {0, std::nullopt, 2}},
                           Row{"the same crew twice", "aba", "aab", {0, 2, 1}},
                           Row{"once only now", "aa", "a", {0, std::nullopt}},
                           Row{"nothing left", "a", "", {std::nullopt}}})
        EXPECT_EQ(followedRuns(setOf(row.before), setOf(row.after)), row.places) << row.name;
}

TEST(FollowedRuns, KnowsARenamedRunByPlaceAndTimes) {
    const RaceSet before = setOf("abc");
    RaceSet after = before;
    after.alldata[1].names = {"B"};
    EXPECT_EQ(followedRuns(before, after), (Places{0, 1, 2}));
    after.alldata[1].sectioninfo.times = {1};
    EXPECT_EQ(followedRuns(before, after), (Places{0, std::nullopt, 2}));
}

TEST(FollowedRuns, TellsHeatAndCategoryApart) {
    RaceSet before = setOf("aa");
    before.alldata[0].phase = "Heat 1";
    before.alldata[1].phase = "Final";
    RaceSet after = before;
    std::swap(after.alldata[0], after.alldata[1]);
    EXPECT_EQ(followedRuns(before, after), (Places{1, 0}));
}

} // namespace kavela::test
