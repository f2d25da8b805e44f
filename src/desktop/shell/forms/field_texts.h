#pragma once

#include "common/reference_date.h"

#include <QString>
#include <QVariant>

#include <string>

/// How fields show plain values, and read them.
namespace kavela::desktop {

[[nodiscard]] QString shownText(const std::string& text);
/// Without blanks at the ends and repeated ones.
[[nodiscard]] std::string typedText(const QVariant& typed);

/// Without blanks at the ends alone.
[[nodiscard]] std::string typedRemark(const QVariant& typed);

/// The day of a moment; none for the moment 0 and for one in no calendar.
[[nodiscard]] QVariant shownDay(ReferenceDate date);
/// Another day at the time of day of `before`.
[[nodiscard]] ReferenceDate typedDayAfter(const QVariant& typed, ReferenceDate before);

/// A moment as date and time of the computer's place, and back; none for one in no calendar.
[[nodiscard]] QVariant shownMoment(ReferenceDate date);
[[nodiscard]] ReferenceDate typedMoment(const QVariant& typed);

/// Seconds with every digit; empty for 0, which is not entered.
[[nodiscard]] QString secondsOrNothing(double seconds);
[[nodiscard]] QString wholeOrNothing(std::int64_t number);

} // namespace kavela::desktop
