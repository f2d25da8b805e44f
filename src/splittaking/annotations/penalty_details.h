#pragma once

#include "splitdata/penalty_entries.h"
#include "splitdata/records.h"

#include <cstdint>
#include <vector>

/// Edits of what happened at the gates, penalty by penalty, kept in step with the penalty seconds
/// of the run. An edit fills up with 0 only the lists that it writes to.
namespace kavela {

/// A penalty to be added: a gate of the course and codes of the lists of annotation_labels.h.
struct PenaltyDetail {
    std::int64_t gate = 0;
    std::int64_t gatekind = 0;
    std::int64_t penkind = 0;
    std::int64_t polekind = 0;
    std::int64_t penway = 0;
    std::int64_t moment = 0;
    std::int64_t direction = 0;
    std::int64_t style = 0;
    std::int64_t eye = 0;
};

/// Adds a penalty behind the run's other ones and gives its gate the seconds of the worst penalty
/// there. Throws std::out_of_range for a gate that is not on the course of `gates` gates.
PenaltyHandle addPenalty(athletedata031& run, const PenaltyDetail& detail, std::int64_t gates);

/// Changes one value of a penalty. A new kind or gate changes the seconds at the gates concerned;
/// nothing else does. Throws std::out_of_range for a penalty that does not exist, and for a new
/// gate that is not on the course.
void changePenalty(athletedata031& run, PenaltyHandle handle, PenaltyField field,
                   std::int64_t value, std::int64_t gates);

/// Removes a penalty, and its record with the last one in it. The seconds of the gate become those
/// of the penalties left there, none without any. Throws std::out_of_range for a penalty that does
/// not exist.
void removePenalty(athletedata031& run, PenaltyHandle handle, std::int64_t gates);

/// Sets the seconds at a gate (0, 2 or 50) and brings the details there in step: without a penalty
/// they go; of a touch that became a missed gate the last one becomes that, of a missed gate that
/// became a touch all, those that then say the same as another one going. Throws std::out_of_range
/// for a gate that is not on the course.
void setPenaltyAndDetails(athletedata031& run, std::int64_t gate, std::int64_t seconds,
                          std::int64_t gates);

/// Gates, ascending, whose seconds differ from what the details there say; a gate without details
/// is none of them.
[[nodiscard]] std::vector<std::int64_t> gatesOutOfStep(const athletedata031& run,
                                                       std::int64_t gates);

} // namespace kavela
