#pragma once

#include "splittaking/annotations/film_marks.h"

#include <span>

/// The marks of an upstream gate or a roll: entrance, middle (the pole line, or the boat upside
/// down) and exit in one list. Two marks are entrance and exit, a single one is the entrance. Lists
/// of more than three from elsewhere keep what stands between their second and last mark.
namespace kavela {

enum class GateMark { Entrance, Middle, Exit };

using GateMarks = std::vector<CMTime>;

/// The mark; nothing when it was not taken.
[[nodiscard]] std::optional<CMTime> markOf(std::span<const CMTime> marks, GateMark which);

/// Takes or moves a mark, leaving the others as they are.
void setMark(GateMarks& marks, GateMark which, const CMTime& moment);

/// Takes a mark out; the list becomes empty with its last mark.
void clearMark(GateMarks& marks, GateMark which);

/// Which mark stands at a place of a list of `count`; nothing between the second and the last.
[[nodiscard]] std::optional<GateMark> markAtPlace(std::size_t place, std::size_t count);

/// The mark that a gate or a roll still wants; a middle left out of a finished one is not asked for
/// again. Nothing when it is marked.
[[nodiscard]] std::optional<GateMark> nextMark(std::span<const CMTime> marks, bool withMiddle);

/// What the marks tell, in seconds; 0 where a mark is missing, below 0 where two are swapped.
struct GateTimes {
    double total = 0;    ///< from entrance to exit
    double entrance = 0; ///< from entrance to middle
    double exit = 0;     ///< from middle to exit

    friend bool operator==(const GateTimes&, const GateTimes&) = default;
};

[[nodiscard]] GateTimes timesOf(std::span<const CMTime> marks);

/// What is wrong with the order of the marks, for the coach; nothing when it is fine.
[[nodiscard]] std::optional<std::string> faultOfMarks(std::span<const CMTime> marks);

} // namespace kavela
