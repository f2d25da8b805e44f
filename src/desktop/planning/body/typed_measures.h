#pragma once

#include "common/reference_date.h"

#include <QString>

#include <cstdint>

/// What a coach types into the tables of measurements and gym sessions, and how it is shown there.
/// What cannot be read throws RefusedEntry with what is expected.
namespace kavela::desktop {

/// The day moves, the time of day of `before` stays: "2026-03-09".
[[nodiscard]] ReferenceDate typedDate(const QString& text, ReferenceDate before);
/// A number from 0 to `most`, with a decimal point or comma; 0 for an empty text.
[[nodiscard]] double typedMeasure(const QString& text, double most);
/// A whole number from 0 to `most`; 0 for an empty text.
[[nodiscard]] std::int64_t typedCount(const QString& text, std::int64_t most);

/// A value with two decimals at most; empty for 0, which is not measured.
[[nodiscard]] QString measureShown(double value);
/// The same with every digit, as it is edited.
[[nodiscard]] QString measureEdited(double value);

/// What is odd about a date or a value from a file; empty for nothing.
[[nodiscard]] QString oddityOf(ReferenceDate date);
[[nodiscard]] QString oddityOf(double value, double most);
/// A text with the warning glyph in front of it.
[[nodiscard]] QString marked(const QString& text);

} // namespace kavela::desktop
