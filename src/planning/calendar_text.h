#pragma once

#include "planning/planning_records.h"

#include <string>

namespace kavela {

/// The sessions of an athlete's week as an iCalendar text (RFC 5545), for a telephone's calendar.
/// A session stands at its local time of day, without a zone, as it was planned; one without a time
/// of day lasts all day, one on no day is left out. It lasts an hour, since plans say how much and
/// not how long. `written` is the moment that the text is made.
[[nodiscard]] std::string weekCalendar(const athletesplanning_v6& athlete,
                                       const microsplanning_v5& week, ReferenceDate written);

} // namespace kavela
