#pragma once

#include "splitdata/records.h"

#include <cstdint>
#include <vector>

namespace kavela {

/// What can happen at a gate; the value is the penalty seconds.
enum class GatePenalty : std::int64_t { None = 0, Touch = 2, MissedGate = 50 };

/// Writes down the penalty at a gate, counted from 1, of a course of `gates` gates, and keeps
/// `totalpen`, `totaltouches` and `totalfifties` true. The list of penalties is brought to the
/// course first, see fitPenalties(). Throws std::out_of_range for a gate that is not on the course.
void setPenalty(athletedata031& run, std::int64_t gate, GatePenalty penalty, std::int64_t gates);

/// Brings a run's penalties to a course: one entry per gate, new ones without penalty. Penalties at
/// gates that the course no longer has are not thrown away; their gates are returned, so that the
/// coach can be asked. The totals are made true.
std::vector<std::int64_t> fitPenalties(athletedata031& run, std::int64_t gates);

} // namespace kavela
