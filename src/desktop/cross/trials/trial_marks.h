#pragma once

#include "splittaking/annotations/cross_trials.h"

#include <optional>
#include <span>
#include <vector>

class QString;

namespace kavela::desktop {

/// What the marking key marks on the film of a time trial.
enum class TrialMode { Splits, Upstreams, Roll };

/// A mark of a time trial.
struct TrialMark {
    TrialMode mode = TrialMode::Splits;
    /// A split: 0 is the start, 1 the first split. An upstream gate: its place in the trial's list.
    std::size_t place = 0;
    std::int64_t gate = 0;         ///< number of the upstream gate
    std::size_t entry = 0;         ///< place in the list of marks of a gate or roll
    std::optional<GateMark> which; ///< of a gate or roll; nothing for one that means nothing
    CMTime stamp;
};

/// Whether two are one mark, though it may have been moved.
[[nodiscard]] bool isSameMark(const TrialMark& a, const TrialMark& b);

/// All marks of a trial: splits, gates in the order of the file, roll. Marks that were not taken
/// are left out. `splits` are the marks that marksOf() gives, with a start known otherwise.
[[nodiscard]] std::vector<TrialMark> marksOfTrial(const ttdata030& trial, const RunMarks& splits);

/// The list behind a mark of an upstream gate or the roll. Throws std::out_of_range for a gate that
/// the trial does not have.
[[nodiscard]] GateMarks& listOf(ttdata030& trial, const TrialMark& mark);

/// Moves or removes a mark of an upstream gate or the roll. Throws as listOf().
void moveGateMark(ttdata030& trial, const TrialMark& mark, const CMTime& moment);
void removeGateMark(ttdata030& trial, const TrialMark& mark);

/// Gates of the cross course that are known as upstream ones, in its order: because a trial has
/// marks there, or `upGates` of the race name them.
[[nodiscard]] std::vector<std::int64_t> upstreamGates(const crossdata030& cross,
                                                      std::span<const std::int64_t> upGates);

/// "start of the roll", "boat upside down", "boat up again".
[[nodiscard]] QString rollMarkText(GateMark which);

} // namespace kavela::desktop
