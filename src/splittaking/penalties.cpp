#include "splittaking/penalties.h"

#include "splittaking/course_setup.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

namespace kavela {

namespace {

/// The sum; absurd penalties of a damaged file stop at the limit instead of overflowing.
std::int64_t sumOf(const std::vector<std::int64_t>& pens) {
    std::int64_t sum = 0;
    for (const std::int64_t seconds : pens)
        if (__builtin_add_overflow(sum, seconds, &sum))
            return seconds > 0 ? std::numeric_limits<std::int64_t>::max()
                               : std::numeric_limits<std::int64_t>::min();
    return sum;
}

void makeTotalsTrue(athletedata031& run) {
    const std::vector<std::int64_t>& pens = run.sectioninfo.pens;
    const auto count = [&](GatePenalty penalty) {
        return std::count(pens.begin(), pens.end(), static_cast<std::int64_t>(penalty));
    };
    run.sectioninfo.totalpen = sumOf(pens);
    run.totaltouches = count(GatePenalty::Touch);
    run.totalfifties = count(GatePenalty::MissedGate);
}

} // namespace

void setPenalty(athletedata031& run, std::int64_t gate, GatePenalty penalty, std::int64_t gates) {
    if (gate < 1 || gate > std::min(gates, MostGates))
        throw std::out_of_range("gate " + std::to_string(gate) + " is not on the course");
    fitPenalties(run, gates);
    run.sectioninfo.pens[static_cast<std::size_t>(gate - 1)] = static_cast<std::int64_t>(penalty);
    makeTotalsTrue(run);
}

std::vector<std::int64_t> fitPenalties(athletedata031& run, std::int64_t gates) {
    std::vector<std::int64_t>& pens = run.sectioninfo.pens;
    const auto size = static_cast<std::size_t>(std::clamp<std::int64_t>(gates, 0, MostGates));
    std::vector<std::int64_t> beyond;
    for (std::size_t i = size; i < pens.size(); ++i)
        if (pens[i] != 0)
            beyond.push_back(static_cast<std::int64_t>(i + 1));
    pens.resize(beyond.empty() ? size : static_cast<std::size_t>(beyond.back()));
    makeTotalsTrue(run);
    return beyond;
}

} // namespace kavela
