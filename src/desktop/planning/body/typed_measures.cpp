#include "desktop/planning/body/typed_measures.h"

#include "common/number_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "desktop/team/typed_values.h"
#include "planning/calendar_day.h"

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LongestPlain = 1e12; ///< longer numbers are written as powers

struct TypedMeasures {
    Q_DECLARE_TR_FUNCTIONS(TypedMeasures)
};

QString oddityOf(ReferenceDate date) {
    return dayOfMoment(date)
               ? QString()
               : TypedMeasures::tr("This moment is in no calendar: %1 seconds from 2001-01-01. It "
                                   "stays as it is until another date is typed.")
                     .arg(QString::fromStdString(shortestText(date.seconds)));
}

QString oddityOf(double value, double most) {
    if (value >= 0 && value <= most)
        return {};
    return (value < 0
                ? TypedMeasures::tr("A value below 0 cannot be measured.")
                : TypedMeasures::tr("More than %1 was hardly measured.").arg(measureEdited(most))) +
           ' ' + TypedMeasures::tr("It stays as it is until another one is typed.");
}

} // namespace

ReferenceDate typedDate(const QString& text, ReferenceDate before) {
    if (text.trimmed().isEmpty())
        throw RefusedEntry(
            TypedMeasures::tr("A measurement needs a day of the calendar such as 2026-03-09."));
    // The time of day of a moment in no calendar is none.
    return typedDay(text, dayOfMoment(before) ? before : ReferenceDate());
}

double typedMeasure(const QString& text, double most) {
    return typedRealOrNone(text, {0, most,
                                  TypedMeasures::tr("Expected is a number from 0 to %1, such as %2")
                                      .arg(shownNumber(most), shownNumber(72.4))});
}

std::int64_t typedCount(const QString& text, std::int64_t most) {
    return typedWholeOrNone(text, {0, static_cast<double>(most), {}});
}

QString measureShown(double value) {
    return measureEdited(std::abs(value) < LongestPlain ? roundedToHundredths(value) : value);
}

QString measureEdited(double value) {
    return value == 0 ? QString() : shownNumber(value);
}

Cell dateCell(ReferenceDate date) {
    const QString text = QString::fromStdString(dayText(date));
    return marked({.text = text, .sortValue = date.seconds, .typed = text}, oddityOf(date));
}

Cell measureCell(double value, double most) {
    return marked({.text = measureShown(value), .number = value, .typed = measureEdited(value)},
                  oddityOf(value, most));
}

Cell marked(Cell cell, const QString& oddity) {
    if (!oddity.isEmpty())
        cell.text.prepend(QStringLiteral("⚠ "));
    cell.tip = oddity;
    return cell;
}

} // namespace kavela::desktop
