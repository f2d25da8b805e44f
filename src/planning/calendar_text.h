#pragma once

#include "planning/planning_records.h"

#include <span>
#include <string>

namespace kavela {

/// The sessions of an athlete's week as an iCalendar text (RFC 5545), for a telephone's calendar.
/// A session stands at its local time of day, without a zone, as it was planned; one without a time
/// of day lasts all day, one on no day is left out. It lasts as long as it is planned to (see
/// plannedLength), or an hour where nothing says how long. `written` is the moment that the text is
/// made.
[[nodiscard]] std::string weekCalendar(const athletesplanning_v6& athlete,
                                       const microsplanning_v5& week,
                                       std::span<const favInvervalSessions_v2> intervalSessions,
                                       ReferenceDate written);

} // namespace kavela
