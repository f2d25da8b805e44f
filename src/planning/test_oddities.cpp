#include "planning/test_oddities.h"

#include "common/number_text.h"
#include "planning/test_entry.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double Tolerance = 0.05; // seconds between a total and the sum of its splits

struct Named {
    const char* name;
    const std::vector<double>& values;
};

/// Series that are there, but not as long as the moments they belong to.
void tellLengths(std::initializer_list<Named> series, std::size_t length, const char* what,
                 std::vector<std::string>& oddities) {
    std::string names;
    for (const auto& [name, values] : series)
        if (!values.empty() && values.size() != length)
            names += (names.empty() ? "" : ", ") + std::string(name);
    if (!names.empty())
        oddities.push_back("There are " + std::to_string(length) + ' ' + what +
                           ", but another number of values in: " + names + '.');
}

template <class Splits>
void tellUntimed(const Splits& splits, std::vector<std::string>& oddities) {
    const auto isUntimed = [](double split) { return !(split > 0); };
    const auto untimed = std::ranges::count_if(splits, isUntimed);
    if (untimed == std::ssize(splits))
        oddities.emplace_back("No section is timed.");
    else if (untimed > 0)
        oddities.push_back(std::to_string(untimed) + " of " + std::to_string(splits.size()) +
                           " sections are not timed.");
}

} // namespace

std::vector<std::string> odditiesOf(const testStruct& test) {
    std::vector<std::string> oddities;
    if (!test.splits.empty() || !test.strokeDate.empty()) // nothing is odd about a new test
        tellUntimed(test.splits, oddities);
    double sum = 0;
    for (const double split : test.splits)
        sum += split;
    if (!test.splits.empty() && !(std::abs(sum - test.totalTime) <= Tolerance))
        oddities.push_back("The total of " + hundredthsText(test.totalTime) +
                           " s is not the sum of the splits, " + hundredthsText(sum) + " s.");
    if (!std::ranges::is_sorted(test.strokeDate))
        oddities.emplace_back(
            "The strokes are not in the order of their times: they belong to no section.");
    tellLengths({{"stroke rate", test.strokeRate},
                 {"stroke efficiency", test.strokeEfficiency},
                 {"maximum acceleration", test.maxAcce},
                 {"average acceleration", test.aveAcce},
                 {"average deceleration", test.avedeacce},
                 {"force", test.maxForce},
                 {"impulse", test.impulses},
                 {"negative acceleration", test.maxAcceNeg},
                 {"power", test.pow},
                 {"water phase", test.waterPhase},
                 {"aerial phase", test.airPhase},
                 {"roll", test.roll}},
                test.strokeDate.size(), "strokes", oddities);
    tellLengths({{"speed", test.speed}}, test.speedDate.size(), "moments of speed", oddities);
    return oddities;
}

std::vector<std::string> odditiesOf(const datafor8& eight) {
    std::vector<std::string> oddities;
    if (eight.totalsplit > 0 || !eight.date.empty())
        tellUntimed(splitsOf(eight), oddities);
    tellLengths({{"rotation about the vertical axis", eight.zrotation}}, eight.date.size(),
                "motion samples", oddities);
    return oddities;
}

} // namespace kavela
