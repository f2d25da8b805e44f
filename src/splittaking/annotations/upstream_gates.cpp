#include "splittaking/annotations/upstream_gates.h"

#include "splittaking/messages.h"

#include <algorithm>

namespace kavela {

namespace {

upstreamdata025& entryAt(athletedata031& run, std::int64_t gate) {
    const auto place = upstreamAt(run, gate);
    if (!place)
        throw std::out_of_range("upstream gate " + std::to_string(gate) + " is not marked");
    return run.upstreams[*place];
}

upstreamdata025& addEntry(athletedata031& run, const infodata031& info, std::int64_t gate) {
    const std::vector<std::int64_t> gates = upstreamGates(info);
    if (!std::ranges::binary_search(gates, gate))
        throw std::out_of_range("gate " + std::to_string(gate) + " is no upstream gate");
    const auto next = std::ranges::find_if(
        run.upstreams, [&](const upstreamdata025& upstream) { return upstream.num > gate; });
    upstreamdata025 entry;
    entry.num = gate;
    return *run.upstreams.insert(next, std::move(entry));
}

GateMarks marksAt(const athletedata031& run, std::int64_t gate) {
    const auto place = upstreamAt(run, gate);
    return place ? run.upstreams[*place].cmtimes : GateMarks{};
}

} // namespace

std::vector<std::int64_t> upstreamGates(const infodata031& info) {
    std::vector<std::int64_t> gates = info.upGates;
    std::erase_if(gates, [&](std::int64_t gate) { return gate < 1 || gate > info.gates; });
    std::ranges::sort(gates);
    gates.erase(std::unique(gates.begin(), gates.end()), gates.end());
    return gates;
}

std::optional<std::size_t> upstreamAt(const athletedata031& run, std::int64_t gate) {
    const auto found = std::ranges::find(run.upstreams, gate, &upstreamdata025::num);
    if (found == run.upstreams.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - run.upstreams.begin());
}

void markUpstream(athletedata031& run, const infodata031& info, std::int64_t gate, GateMark which,
                  const CMTime& moment) {
    upstreamdata025& entry = upstreamAt(run, gate) ? entryAt(run, gate) : addEntry(run, info, gate);
    setMark(entry.cmtimes, which, moment);
    recompute(entry);
}

void clearUpstreamMark(athletedata031& run, std::int64_t gate, GateMark which) {
    upstreamdata025& entry = entryAt(run, gate);
    clearMark(entry.cmtimes, which);
    recompute(entry);
}

void removeUpstream(athletedata031& run, std::int64_t gate) {
    (void)entryAt(run, gate);
    eraseEntry(run.upstreams, *upstreamAt(run, gate));
}

void recompute(upstreamdata025& upstream) {
    const GateTimes times = timesOf(upstream.cmtimes);
    upstream.time = times.total;
    upstream.timeEntrace = times.entrance;
    upstream.timeExit = times.exit;
}

std::vector<std::int64_t> upstreamsToMark(const athletedata031& run, const infodata031& info) {
    std::vector<std::int64_t> gates = upstreamGates(info);
    std::erase_if(gates, [&](std::int64_t gate) {
        const GateMarks marks = marksAt(run, gate);
        return markOf(marks, GateMark::Entrance) && markOf(marks, GateMark::Exit);
    });
    return gates;
}

std::optional<NextUpstreamMark> nextUpstreamMark(const athletedata031& run, const infodata031& info,
                                                 bool withMiddle) {
    const std::vector<std::int64_t> gates = upstreamsToMark(run, info);
    if (gates.empty())
        return std::nullopt;
    const GateMarks marks = marksAt(run, gates.front());
    if (!markOf(marks, GateMark::Entrance))
        return NextUpstreamMark{gates.front(), GateMark::Entrance};
    const bool isMiddleNext = withMiddle && !markOf(marks, GateMark::Middle);
    return NextUpstreamMark{gates.front(), isMiddleNext ? GateMark::Middle : GateMark::Exit};
}

std::optional<Alert> upstreamModeRefusal(const infodata031& info) {
    return upstreamGates(info).empty() ? std::optional(Alert{"", messages::NoUpstreams})
                                       : std::nullopt;
}

std::optional<Alert> sectionModeRefusal(const infodata031& info) {
    return info.definedsections.empty() ? std::optional(Alert{"", messages::NoSections})
                                        : std::nullopt;
}

std::optional<Alert> tagModeRefusal(bool isAthleteSelected) {
    return isAthleteSelected ? std::nullopt : std::optional(Alert{"", messages::NoAthleteSelected});
}

} // namespace kavela
