#pragma once

#include "planning/planning_records.h"

#include <QFontMetrics>
#include <QString>

/// Weeks and sessions in words, as they stand on the strip of the year and in the week.
namespace kavela::desktop {

/// A letter for each kind of test planned in a week or done in it: W on the water, E endurance,
/// B blood.
[[nodiscard]] QString testLetters(const microsplanning_v5& week);
/// All of a week that the strip has no room for.
[[nodiscard]] QString weekTip(const microsplanning_v5& week);
/// What is odd in a week as it came from a file; empty where nothing is.
[[nodiscard]] QString weekFaults(const microsplanning_v5& week);

[[nodiscard]] QString titleOf(const sessioninmicro_v5& session);
[[nodiscard]] QString descriptionOf(const sessioninmicro_v5& session);
/// "09:30"; empty for a session at any time.
[[nodiscard]] QString timeTextOf(const sessioninmicro_v5& session);
/// The values of the session with their categories, the greatest first: "Aerobic capacity 40".
[[nodiscard]] QString valuesTextOf(const sessioninmicro_v5& session);
/// What is odd in a session as it came from a file; empty where nothing is.
[[nodiscard]] QString sessionFaults(const sessioninmicro_v5& session);

/// "Mon 9 Mar"
[[nodiscard]] QString dayTitle(std::chrono::sys_days day);
/// As much of it as fits so many pixels: "Mon 9 Mar", "Mon 9" or "9".
[[nodiscard]] QString dayTitle(std::chrono::sys_days day, int width, const QFontMetrics& metrics);

} // namespace kavela::desktop
