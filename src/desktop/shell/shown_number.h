#pragma once

#include <QString>

#include <numbers>
#include <string>

/// Numbers as the windows show them: with the decimal sign of the system, which is a comma or
/// otherwise a point, plain digits and no groups, so that each can be typed as it is shown. Files
/// and what is exported keep the point.
namespace kavela::desktop {

/// A text of ours that holds plain numbers, with the decimal sign of the system in them.
[[nodiscard]] QString shownNumbers(QString text);

/// Every digit, as it is edited: "82.75", "12".
[[nodiscard]] QString shownNumber(double value);
/// Rounded to so many decimals.
[[nodiscard]] QString shownNumber(double value, int decimals);
/// A time in seconds: "82.75".
[[nodiscard]] QString shownHundredths(double seconds);
/// The same with a dash where there is none, which is what 0 stands for.
[[nodiscard]] QString hundredthsOrDash(double seconds);

/// Angles are recorded in radians and shown in degrees.
inline constexpr double DegreesPerRadian = 180 / std::numbers::pi;

} // namespace kavela::desktop
