#include "desktop/team/typed_values.h"

#include "results/list_lines.h"

#include <QDate>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::int64_t MostPosition = 9999;
constexpr std::int64_t MostPenalty = 999;
constexpr double MostPoints = 1e6;
constexpr double LongestTime = 3600;
constexpr std::int64_t FirstYear = 1900;
constexpr std::int64_t LastYear = 2100;
constexpr double SecondsOfDay = 86400;

QString tr(const char* text) {
    return QCoreApplication::translate("TypedValues", text);
}

[[noreturn]] void refuse(const QString& expected, const QString& typed) {
    throw RefusedEntry(tr("%1; “%2” is none.").arg(expected, typed));
}

std::int64_t wholeNumber(const QString& text, std::int64_t most, const QString& expected) {
    const QString typed = text.trimmed();
    std::int64_t number = 0;
    if (!typed.isEmpty() &&
        (!parseField(typed.toStdString(), number) || number < 0 || number > most))
        refuse(expected, typed);
    return number;
}

bool readReal(const QString& text, double& number) {
    return parseField(QString(text).replace(',', '.').toStdString(), number) &&
           std::isfinite(number) && number >= 0;
}

double secondsIn(const QString& typed, const QString& expected) {
    const qsizetype colon = typed.indexOf(':');
    double seconds = 0;
    if (!readReal(typed.mid(colon + 1), seconds))
        refuse(expected, typed);
    if (colon < 0)
        return seconds;
    std::int64_t minutes = 0;
    const bool isTime = parseField(typed.left(colon).toStdString(), minutes) && minutes >= 0 &&
                        minutes < 60 && seconds < 60;
    if (!isTime)
        refuse(expected, typed);
    return static_cast<double>(minutes) * 60 + seconds;
}

QDate dateIn(const QString& typed) {
    for (const char* format : {"yyyy-M-d", "d.M.yyyy"})
        if (const QDate date = QDate::fromString(typed, format); date.isValid())
            return date;
    return {};
}

} // namespace

double typedTime(const QString& text) {
    const QString expected = tr("A time is a number of seconds such as 92.34, or 1:32.34");
    const QString typed = text.trimmed();
    const double seconds = typed.isEmpty() ? 0 : secondsIn(typed, expected);
    if (seconds >= LongestTime)
        refuse(expected, typed);
    return seconds;
}

std::int64_t typedPenalty(const QString& text) {
    return wholeNumber(text, MostPenalty, tr("A penalty is a whole number of seconds, 0 to 999"));
}

std::int64_t typedPosition(const QString& text) {
    return wholeNumber(text, MostPosition, tr("A position is a whole number, 1 to 9999"));
}

double typedPoints(const QString& text) {
    const QString typed = text.trimmed();
    double points = 0;
    if (!typed.isEmpty() && (!readReal(typed, points) || points > MostPoints))
        refuse(tr("Ranking points are a number such as 612.5"), typed);
    return points;
}

std::int64_t typedYear(const QString& text) {
    const QString expected = tr("A year is a number from 1900 to 2100");
    const std::int64_t year = wholeNumber(text, LastYear, expected);
    if (year < FirstYear)
        refuse(expected, text.trimmed());
    return year;
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
        refuse(tr("A date is a day of the calendar such as 2025-06-14"), typed);
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
