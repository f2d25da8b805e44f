#pragma once

#include "common/reference_date.h"
#include "desktop/shell/typed_number.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

/// What a coach types into the cells of a team. Numbers are plain ones, with a decimal point or
/// comma; an empty text is 0, which stands for "not entered". Each throws RefusedEntry.
namespace kavela::desktop {

/// Seconds below an hour: "92.34" or "1:32.34".
[[nodiscard]] double typedTime(const QString& text);
[[nodiscard]] std::int64_t typedPenalty(const QString& text);
[[nodiscard]] std::int64_t typedPosition(const QString& text);
[[nodiscard]] double typedPoints(const QString& text);
[[nodiscard]] std::int64_t typedYear(const QString& text);
/// A year, or nothing for one that is not known.
[[nodiscard]] std::int64_t typedBirthYear(const QString& text);
/// The day moves, the time of day of `before` stays: "2025-06-14" or "14.6.2025".
[[nodiscard]] ReferenceDate typedDay(const QString& text, ReferenceDate before);

/// A date as it is shown; empty for one that was not entered.
[[nodiscard]] QString dayShown(ReferenceDate date);
/// A number as it is shown; empty for 0.
[[nodiscard]] QString numberShown(std::int64_t number);

} // namespace kavela::desktop
