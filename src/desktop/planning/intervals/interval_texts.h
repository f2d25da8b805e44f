#pragma once

#include "planning/planning_records.h"

#include <QString>

/// How interval sessions are written and typed.
namespace kavela::desktop {

/// "0:45", "12:30", "1:00:00"; with a tenth where there is one. What is no duration is told as the
/// number that it is.
[[nodiscard]] QString durationText(double seconds);

/// Seconds up to a day: "90", "1:30", "1:00:00", "0:12.5". An empty text is 0. Throws RefusedEntry.
[[nodiscard]] double typedDuration(const QString& text);
/// How often, 0 to 9999; an empty text is 0. Throws RefusedEntry.
[[nodiscard]] std::int64_t typedRepeats(const QString& text);
/// A volume or intensity: a number from 0. Throws RefusedEntry.
[[nodiscard]] double typedAmount(const QString& text);

/// The make-up of a session in a few characters: "3 × 6 × 0:15, rest 0:45".
[[nodiscard]] QString makeUpText(const favInvervalSessions_v2& session);

/// "23:30 in all, 4:30 of it work, 18 repetitions"; why not, where it cannot be timed.
[[nodiscard]] QString durationSummary(const favInvervalSessions_v2& session);

} // namespace kavela::desktop
