#pragma once

#include "common/alerts.h"
#include "splittaking/annotations/gate_marks.h"

/// The upstream gates of a run: marks at entrance, pole line and exit, and the times they give.
namespace kavela {

/// The upstream gates of a course, ascending, each once; numbers that no gate can have are left
/// out.
[[nodiscard]] std::vector<std::int64_t> upstreamGates(const infodata031& info);

/// Place of a gate in the run's list; nothing while it has no entry.
[[nodiscard]] std::optional<std::size_t> upstreamAt(const athletedata031& run, std::int64_t gate);

/// Takes or moves a mark at a gate and computes its times anew. A gate without an entry gets one
/// before the first gate with a greater number. Throws std::out_of_range for a gate that is no
/// upstream gate of the course and has no entry either.
void markUpstream(athletedata031& run, const infodata031& info, std::int64_t gate, GateMark which,
                  const CMTime& moment);

/// Takes a mark out and computes the times anew. An entry without marks stays for its direction and
/// style. Throws std::out_of_range when the gate has no entry.
void clearUpstreamMark(athletedata031& run, std::int64_t gate, GateMark which);

/// Removes the entry of a gate. Throws std::out_of_range when it has none.
void removeUpstream(athletedata031& run, std::int64_t gate);

/// Sets `time`, `timeEntrace` and `timeExit` to what the marks tell; 0 where a mark is missing.
void recompute(upstreamdata025& upstream);

/// The next mark to be taken.
struct NextUpstreamMark {
    std::int64_t gate = 0;
    GateMark which = GateMark::Entrance;

    friend bool operator==(const NextUpstreamMark&, const NextUpstreamMark&) = default;
};

/// Upstream gates of the course whose entrance or exit is not marked, ascending.
[[nodiscard]] std::vector<std::int64_t> upstreamsToMark(const athletedata031& run,
                                                        const infodata031& info);

/// What one key would mark next, in the order in which the boat passes: entrance, middle where it
/// is wanted, exit. A middle left out of a finished gate is not asked for again.
[[nodiscard]] std::optional<NextUpstreamMark>
nextUpstreamMark(const athletedata031& run, const infodata031& info, bool withMiddle);

/// Why a mode cannot be entered; nothing when it can.
[[nodiscard]] std::optional<Alert> upstreamModeRefusal(const infodata031& info);
[[nodiscard]] std::optional<Alert> sectionModeRefusal(const infodata031& info);
[[nodiscard]] std::optional<Alert> tagModeRefusal(bool isAthleteSelected);

} // namespace kavela
