#include "desktop/shell/forms/field_texts.h"

#include "desktop/shell/shown_number.h"

#include <QDateTime>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double SecondsOfDay = 86400;
constexpr double MillisecondsOfSecond = 1000;
const QDate FirstDay(2001, 1, 1);

} // namespace

QString shownText(const std::string& text) {
    return QString::fromStdString(text);
}

std::string typedText(const QVariant& typed) {
    return typed.toString().simplified().toStdString();
}

std::string typedRemark(const QVariant& typed) {
    return typed.toString().trimmed().toStdString();
}

QVariant shownDay(ReferenceDate date) {
    const QDate day = QDate::fromString(QString::fromStdString(dayText(date)), "yyyy-MM-dd");
    return date == ReferenceDate() || !day.isValid() ? QVariant() : QVariant(day);
}

ReferenceDate typedDayAfter(const QVariant& typed, ReferenceDate before) {
    const QDate day = typed.toDate();
    if (!day.isValid())
        return {};
    const bool isInCalendar = shownDay(before).isValid();
    const double timeOfDay =
        isInCalendar ? before.seconds - std::floor(before.seconds / SecondsOfDay) * SecondsOfDay
                     : 0;
    return {static_cast<double>(FirstDay.daysTo(day)) * SecondsOfDay + timeOfDay};
}

QVariant shownMoment(ReferenceDate date) {
    if (!shownDay(date).isValid() && date != ReferenceDate())
        return {};
    return QDateTime::fromMSecsSinceEpoch(
        std::llround((date.seconds + SecondsFrom1970To2001) * MillisecondsOfSecond));
}

ReferenceDate typedMoment(const QVariant& typed) {
    const auto since1970 = static_cast<double>(typed.toDateTime().toMSecsSinceEpoch());
    return {since1970 / MillisecondsOfSecond - SecondsFrom1970To2001};
}

QString secondsOrNothing(double seconds) {
    return seconds == 0 ? QString() : shownNumber(seconds);
}

QString wholeOrNothing(std::int64_t number) {
    return number == 0 ? QString() : QString::number(number);
}

} // namespace kavela::desktop
