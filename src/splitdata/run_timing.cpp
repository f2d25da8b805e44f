#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

/// The sum of two penalties; absurd ones from a damaged file stop at the limit instead of
/// overflowing.
std::int64_t addPenalties(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? (a > 0 ? std::numeric_limits<std::int64_t>::max()
                                                       : std::numeric_limits<std::int64_t>::min())
                                              : sum;
}

} // namespace

bool isFullRun(std::span<const double> times, std::int64_t totalsplits) {
    if (totalsplits < 1 || std::cmp_less(times.size(), totalsplits))
        return false;
    const auto course = times.first(static_cast<std::size_t>(totalsplits));
    return std::find(course.begin(), course.end(), 0.0) == course.end();
}

std::vector<std::int64_t> sectionPenalties(const infodata031& info,
                                           std::span<const std::int64_t> pens) {
    if (info.definedsections.empty() || !std::cmp_equal(pens.size(), info.gates))
        return {pens.begin(), pens.end()};
    std::vector<std::int64_t> bySection;
    for (const auto& gates : info.definedsections) {
        std::int64_t sum = 0;
        for (const std::int64_t gate : gates)
            if (gate >= 1 && gate <= info.gates)
                sum = addPenalties(sum, pens[static_cast<std::size_t>(gate - 1)]);
        bySection.push_back(sum);
    }
    return bySection;
}

std::string crewText(std::span<const std::string> names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : " / ") + name;
    return text;
}

} // namespace kavela
