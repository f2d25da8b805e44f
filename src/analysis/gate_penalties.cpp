#include "analysis/gate_penalties.h"

#include <set>

namespace kavela {

namespace {

constexpr std::int64_t TouchSeconds = 2;
constexpr std::int64_t MissedSeconds = 50;

std::vector<GatePenalties> emptyGates(const RaceSet& set) {
    const std::set<std::int64_t> upGates(set.upGates.begin(), set.upGates.end());
    std::vector<GatePenalties> gates;
    for (std::int64_t gate = 1; gate <= set.gates; ++gate)
        gates.push_back({gate, upGates.contains(gate), 0, 0});
    return gates;
}

} // namespace

CoursePenalties coursePenalties(const RaceSet& set) {
    CoursePenalties course;
    for (const analyzerdata& run : set.alldata) {
        if (run.gatePenalties.empty() || !std::cmp_equal(run.gatePenalties.size(), set.gates))
            continue;
        if (course.countedRuns++ == 0)
            course.gates = emptyGates(set);
        for (std::size_t i = 0; i < course.gates.size(); ++i) {
            course.gates[i].touches += run.gatePenalties[i] == TouchSeconds;
            course.gates[i].missed += run.gatePenalties[i] == MissedSeconds;
        }
    }
    return course;
}

} // namespace kavela
