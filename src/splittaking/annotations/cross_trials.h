#pragma once

#include "splitdata/cross_records.h"
#include "splittaking/annotations/gate_marks.h"
#include "splittaking/marking.h"

/// The time trials of a cross race: splits, upstream gates and the roll of one boat at a time.
namespace kavela {

/// The marks of a trial, for the edits of marking.h. The start is as long before the last mark as
/// the trial took; without a time it is not known.
[[nodiscard]] RunMarks marksOf(const ttdata030& trial);

/// Writes marks into a trial. Its time goes from the start, or without one from the start of the
/// film, to the last mark; without a mark it is 0.
void applyMarks(const RunMarks& marks, ttdata030& trial);

/// Place of a gate in the trial's upstream gates; nothing while it has no entry.
[[nodiscard]] std::optional<std::size_t> upstreamAt(const ttdata030& trial, std::int64_t gate);

/// Takes or moves a mark at an upstream gate, which gets an entry before the first greater number
/// if it has none. Throws std::out_of_range for a gate that is not of the cross course.
void markUpstream(ttdata030& trial, const crossinfodata030& course, std::int64_t gate,
                  GateMark which, const CMTime& moment);

/// Throws std::out_of_range when the gate has no entry. An entry without marks stays for its
/// direction and style.
void clearUpstreamMark(ttdata030& trial, std::int64_t gate, GateMark which);

/// Adds a trial and ranks anew. Returns its place.
std::size_t addTrial(crossdata030& cross, std::string athlete, std::string videoname);

/// Removes a trial and ranks anew. Throws std::out_of_range when there is none at `trial`, counted
/// from 0.
void removeTrial(crossdata030& cross, std::size_t trial);

/// Sets `pos` of every trial by its time: equal times share a position and leave the next ones
/// out (1, 1, 3); a trial without a time gets 0.
void rankTrials(crossdata030& cross);

/// Heats of four from the best trials, seeded by pairs: the fastest meets the slowest. With `boats`
/// the number of boats that go on, such as 8 for two heats: 1, 4, 5, 8 and 2, 3, 6, 7. The last
/// heats have fewer where the trials do not suffice; trials without a time do not go on.
[[nodiscard]] std::vector<std::vector<std::string>> seededHeats(const crossdata030& cross,
                                                                std::size_t boats);

/// Boats in a heat.
inline constexpr std::size_t BoatsInHeat = 4;

} // namespace kavela
