#pragma once

#include "splittaking/annotations/gate_marks.h"
#include "splittaking/annotations/lanes.h"
#include "splittaking/annotations/penalty_details.h"
#include "splittaking/annotations/time_losses.h"

/// Why a note is not taken, for the coach; nothing when it can be. A note is there once: a second
/// one that says the same is refused, and marks of one gate, roll or stretch keep their order.
/// Notes of a file that break these rules stay as they are.
namespace kavela {

[[nodiscard]] std::optional<std::string> refusalOfMicroSplit(const athletedata031& run,
                                                             const CMTime& moment);

/// Strokes of both hands may share a frame that stood still on the screen.
[[nodiscard]] std::optional<std::string> refusalOfStroke(const athletedata031& run,
                                                         const CMTime& moment, HandCode hand);

[[nodiscard]] std::optional<std::string> refusalOfTag(const athletedata031& run, std::int64_t video,
                                                      const std::string& name,
                                                      const CMTime& moment);

[[nodiscard]] std::optional<std::string> refusalOfPenalty(const athletedata031& run,
                                                          const PenaltyDetail& detail);

/// A moment that was marked on both films already, see markSync().
[[nodiscard]] std::optional<std::string> refusalOfSync(const athletedata031& run,
                                                       std::size_t camera, const CMTime& own,
                                                       const CMTime& fixed);

/// What the marks of a gate and of a roll are called within a sentence.
using GateMarkNames = std::array<const char*, 3>;
inline constexpr GateMarkNames NamesAtGate{"the entrance", "the middle", "the exit"};
inline constexpr GateMarkNames NamesOfRoll{"the start of the roll", "the boat upside down",
                                           "the boat up again"};

/// A mark of a gate or a roll, new or moved.
[[nodiscard]] std::optional<std::string>
refusalOfGateMark(std::span<const CMTime> marks, GateMark which, const CMTime& moment,
                  const GateMarkNames& names = NamesAtGate);

/// A mark of a stretch, new or moved.
[[nodiscard]] std::optional<std::string> refusalOfLossMark(const timeloss031& loss, LossMark which,
                                                           const CMTime& moment);

/// Any mark of a run that is moved to another moment of its film; see moveLaneMark().
[[nodiscard]] std::optional<std::string>
refusalOfMove(const athletedata031& run, const MarkHandle& handle, const CMTime& moment);

} // namespace kavela
