#pragma once

#include "planning/planning_records.h"

#include <chrono>
#include <optional>
#include <span>

namespace kavela {

/// How long a session is planned to last, in whole minutes. The records have no field for it; a
/// coach writes it as a line of its own into the description ("90 min", "1:30 h", "1.5 h",
/// "1 h 30 min", also behind "Duration:"), or gives the session the title of one of the interval
/// sessions of the planning, whose make-up tells. Nothing where neither does, or where it comes to
/// more than a day.
[[nodiscard]] std::optional<std::chrono::minutes>
plannedLength(const sessioninmicro_v5& session,
              std::span<const favInvervalSessions_v2> intervalSessions);

} // namespace kavela
