#include "facts/query.h"
#include "facts/small_season.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

/// A store of many runs is searched in several parts at once: what comes of it must be what one
/// part would have found, to the row.
namespace kavela::test {

namespace {

/// So many runs that they are searched in parts; times and places differ.
FactStore manyRuns() {
    FactStore some;
    for (int i = 0; i < 41; ++i) {
        splittakerdata031 race = smallRace("Weir " + std::to_string(i % 7));
        for (athletedata031& run : race.athletes)
            for (double& time : run.sectioninfo.times)
                if (time > 0 && time < 900)
                    time += i * 7 % 11 * 0.25;
        some.add(race, std::to_string(i) + ".kvx");
    }
    FactStore all;
    while (all.runs().size() < 20'000)
        all.add(some);
    return all;
}

struct FoundLine {
    FoundPlace place;
    double number = NotKnown;
};

std::vector<FoundLine> linesOf(const QueryAnswer& found, std::string_view column) {
    const auto at = std::ranges::find(found.columns(), column, &FoundColumn::name);
    EXPECT_NE(at, found.columns().end()) << column;
    const auto place = static_cast<std::size_t>(at - found.columns().begin());
    std::vector<FoundLine> lines;
    for (std::size_t row = 0; row < found.size(); ++row)
        lines.push_back({found.place(row), found.value(row, place).number});
    return lines;
}

bool isSameLine(const FoundLine& one, const FoundLine& other) {
    return one.place.run == other.place.run && one.place.section == other.place.section &&
           (one.number == other.number || (std::isnan(one.number) && std::isnan(other.number)));
}

class ManyRuns : public testing::Test {
protected:
    [[nodiscard]] static QueryAnswer found(const std::string& query) {
        return answer(facts(), parsedQuery(query));
    }

private:
    static const FactStore& facts() {
        static const FactStore made = manyRuns();
        return made;
    }
};

TEST_F(ManyRuns, ComeInTheOrderOfTheirFiles) {
    const QueryAnswer rows = found("sections");
    for (std::size_t row = 1; row < rows.size(); ++row)
        ASSERT_LT(std::pair(rows.place(row - 1).run, rows.place(row - 1).section),
                  std::pair(rows.place(row).run, rows.place(row).section));
    EXPECT_GT(rows.size(), 30'000U);
}

TEST_F(ManyRuns, AreSortedAndKeepTheirOrderWhereTheyAreEqual) {
    const std::vector<FoundLine> asFound = linesOf(found("sections"), "time");
    for (const bool isDown : {false, true}) {
        std::vector<FoundLine> sorted = asFound;
        std::ranges::stable_sort(sorted, [&](const FoundLine& a, const FoundLine& b) {
            if (std::isnan(a.number) || std::isnan(b.number))
                return std::isnan(b.number) && !std::isnan(a.number);
            return isDown ? a.number > b.number : a.number < b.number;
        });
        const std::string query = isDown ? "sections sort time down" : "sections sort time";
        EXPECT_TRUE(std::ranges::equal(linesOf(found(query), "time"), sorted, isSameLine)) << query;
        sorted.resize(150);
        EXPECT_TRUE(
            std::ranges::equal(linesOf(found(query + " first 150"), "time"), sorted, isSameLine))
            << query;
    }
}

TEST_F(ManyRuns, AreSortedByNamesAsPeopleReadThem) {
    const QueryAnswer rows = found("runs sort place down");
    const auto column = static_cast<std::size_t>(
        std::ranges::find(rows.columns(), "place", &FoundColumn::name) - rows.columns().begin());
    for (std::size_t row = 1; row < rows.size(); ++row) {
        const std::string before = rows.text(row - 1, column);
        ASSERT_GE(before, rows.text(row, column));
        if (before == rows.text(row, column)) {
            ASSERT_LT(rows.place(row - 1).run, rows.place(row).run);
        }
    }
}

TEST_F(ManyRuns, MakeTheGroupsThatTheirRowsMake) {
    std::map<double, std::vector<double>> times; ///< by section
    const std::vector<FoundLine> all = linesOf(found("sections"), "time");
    for (const FoundLine& line : all)
        if (!std::isnan(line.number))
            times[static_cast<double>(*line.place.section)].push_back(line.number);
    const QueryAnswer groups = found("sections time>0 by section");
    ASSERT_EQ(groups.size(), times.size());
    for (std::size_t group = 0; group < groups.size(); ++group) {
        std::vector<double>& of = times.at(groups.value(group, 0).number);
        EXPECT_EQ(groups.value(group, 1).number, static_cast<double>(of.size()));
        EXPECT_EQ(groups.value(group, 2).number, std::ranges::min(of));
        EXPECT_EQ(groups.value(group, 3).number,
                  std::accumulate(of.begin(), of.end(), 0.0) / static_cast<double>(of.size()));
        const double least = std::ranges::min(of);
        const FoundPlace best = groups.place(group);
        const auto first = std::ranges::find_if(all, [&](const FoundLine& line) {
            return line.number == least && line.place.section == best.section;
        });
        ASSERT_NE(first, all.end());
        EXPECT_EQ(first->place.run, best.run) << "the first of equal ones";
        std::ranges::sort(of);
        EXPECT_EQ(groups.value(group, 4).number, (of[(of.size() - 1) / 2] + of[of.size() / 2]) / 2);
    }
}

TEST_F(ManyRuns, HaveOneLeastValue) {
    const std::vector<FoundLine> all = linesOf(found("sections"), "time");
    double least = NotKnown;
    for (const FoundLine& line : all)
        least = std::fmin(least, line.number);
    std::vector<FoundLine> expected;
    std::ranges::copy_if(all, std::back_inserter(expected),
                         [&](const FoundLine& line) { return line.number == least; });
    EXPECT_GT(expected.size(), 1U);
    EXPECT_TRUE(
        std::ranges::equal(linesOf(found("sections best time"), "time"), expected, isSameLine));
}

} // namespace

} // namespace kavela::test
