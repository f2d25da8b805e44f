#include "statistics/shown_parts.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace kavela::test {

namespace {
using testing::ElementsAreArray;
} // namespace

TEST(ShownParts, AddUpToTheShownTotal) {
    struct Row {
        const char* name;
        std::vector<double> parts;
        double total;
        std::vector<std::int64_t> shown;
    };
    for (const Row& row :
         {Row{"whole hundredths as doubles have them",
              {11.64 - 10.62, 0.29, 0.14},
              1.45,
              {102, 29, 14}},
          Row{"the largest remainder first", {0.103, 0.108, 0.104}, 0.315, {10, 11, 11}},
          Row{"the first of equals first", {0.105, 0.105, 0.105, 0.105}, 0.42, {11, 11, 10, 10}},
          Row{"time gained", {-0.144, 0.3, -0.016}, 0.14, {-14, 30, -2}},
          Row{"all equal and below 0", {-0.005, -0.005, -0.005}, -0.015, {0, -1, -1}},
          Row{"a total of nothing", {0.333, -0.333}, 0, {33, -33}},
          Row{"a total that rounds up", {0.0625, 0.0625}, 0.125, {7, 6}},
          Row{"a total already rounded", {1.004, 1.004, 1.004}, 3.01, {101, 100, 100}},
          Row{"another total: the parts stay", {0.10, 0.20}, 5, {10, 20}},
          Row{"another, smaller total, and equals but for their last digits",
              {0.204, 0.104},
              -5,
              {21, 10}},
          Row{"one part", {0.126}, 0.126, {13}}, Row{"no part", {}, 1, {}}})
        EXPECT_THAT(shownParts(row.parts, row.total), ElementsAreArray(row.shown)) << row.name;
}

TEST(ShownParts, AreEachWithinAHundredthOfTheirOwn) {
    std::mt19937 dice(7);
    for (int turn = 0; turn < 500; ++turn) {
        std::vector<double> parts(1 + dice() % 12);
        for (double& part : parts)
            part = (static_cast<double>(dice() % 20001) - 10000) / 1537;
        const double total = std::accumulate(parts.begin(), parts.end(), 0.0);
        const std::vector<std::int64_t> shown = shownParts(parts, total);
        EXPECT_EQ(std::accumulate(shown.begin(), shown.end(), std::int64_t{0}),
                  std::llround(100 * total));
        for (std::size_t i = 0; i < parts.size(); ++i)
            EXPECT_LE(std::abs(static_cast<double>(shown[i]) - 100 * parts[i]), 1);
    }
}

TEST(ShownParts, HoldWhateverADamagedFileSays) {
    constexpr double Endless = std::numeric_limits<double>::infinity();
    const auto shown = shownParts(std::vector{Endless, -Endless, 1e300, std::nan(""), 0.25}, 1);
    ASSERT_EQ(shown.size(), 5U);
    EXPECT_EQ(shown.back(), 25);
}

} // namespace kavela::test
