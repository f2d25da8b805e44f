#pragma once

#include "desktop/shell/tables/row_model.h"
#include "planning/planning_records.h"

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

/// The cells of a date and of a value. What is odd in a file is marked, says why, and stays.
[[nodiscard]] Cell dateCell(ReferenceDate date);
[[nodiscard]] Cell measureCell(double value, double most);
/// The same cell, marked as odd for a reason; unchanged for none.
[[nodiscard]] Cell marked(Cell cell, const QString& oddity);

} // namespace kavela::desktop
