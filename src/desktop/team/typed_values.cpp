#include "desktop/team/typed_values.h"

#include "desktop/shell/typed_number.h"

#include <QDate>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double MostPosition = 9999;
constexpr double MostPenalty = 999;
constexpr double MostPoints = 1e6;
constexpr double LongestTime = 3600;
constexpr std::int64_t FirstYear = 1900;
constexpr std::int64_t LastYear = 2100;
constexpr double SecondsOfDay = 86400;

struct TypedValues {
    Q_DECLARE_TR_FUNCTIONS(TypedValues)
};

QDate dateIn(const QString& typed) {
    for (const char* format : {"yyyy-M-d", "d.M.yyyy"})
        if (const QDate date = QDate::fromString(typed, format); date.isValid())
            return date;
    return {};
}

} // namespace

double typedTime(const QString& text) {
    return typedSecondsOrNone(
        text, {0, std::nextafter(LongestTime, 0),
               TypedValues::tr("A time is a number of seconds such as 92.34, or 1:32.34")});
}

std::int64_t typedPenalty(const QString& text) {
    return typedWholeOrNone(
        text,
        {0, MostPenalty, TypedValues::tr("A penalty is a whole number of seconds, 0 to 999")});
}

std::int64_t typedPosition(const QString& text) {
    return typedWholeOrNone(
        text, {0, MostPosition, TypedValues::tr("A position is a whole number, 1 to 9999")});
}

double typedPoints(const QString& text) {
    return typedRealOrNone(
        text, {0, MostPoints, TypedValues::tr("Ranking points are a number such as 612.5")});
}

std::int64_t typedYear(const QString& text) {
    return typedWhole(
        text, {FirstYear, LastYear, TypedValues::tr("A year is a number from 1900 to 2100")});
}

std::int64_t typedBirthYear(const QString& text) {
    return text.trimmed().isEmpty() ? 0 : typedYear(text);
}

ReferenceDate typedDay(const QString& text, ReferenceDate before) {
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return {};
    const QDate date = dateIn(typed);
    if (!date.isValid() || date.year() < FirstYear || date.year() > LastYear)
        refuseTyped(TypedValues::tr("A date is a day of the calendar such as 2025-06-14"), typed);
    const double timeOfDay =
        before.seconds - std::floor(before.seconds / SecondsOfDay) * SecondsOfDay;
    const QDate first(2001, 1, 1);
    return {static_cast<double>(first.daysTo(date)) * SecondsOfDay + timeOfDay};
}

QString dayShown(ReferenceDate date) {
    return date == ReferenceDate() ? QString() : QString::fromStdString(dayText(date));
}

QString numberShown(std::int64_t number) {
    return number == 0 ? QString() : QString::number(number);
}

} // namespace kavela::desktop
