#include "desktop/planning/intervals/interval_texts.h"

#include "common/number_text.h"
#include "desktop/team/typed_values.h"
#include "planning/interval_timer.h"
#include "results/list_lines.h"

#include <QStringList>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LongestDuration = 86400;
constexpr double LongestShown = 1e6; ///< seconds; a longer one only comes from a damaged file
constexpr std::int64_t MostCount = 9999;
constexpr double MostAmount = 1e6;

QString tr(const char* text) {
    return QCoreApplication::translate("IntervalTexts", text);
}

[[noreturn]] void refuse(const QString& expected, const QString& typed) {
    throw RefusedEntry(tr("%1; “%2” is none.").arg(expected, typed));
}

bool readReal(const QString& text, double& number) {
    return parseField(QString(text).replace(',', '.').trimmed().toStdString(), number) &&
           std::isfinite(number) && number >= 0;
}

} // namespace

QString durationText(double seconds) {
    if (!(seconds >= 0 && seconds < LongestShown))
        return QString::fromStdString(shortestText(seconds));
    const auto tenths = static_cast<std::int64_t>(std::llround(seconds * 10));
    const std::int64_t whole = tenths / 10;
    const QString minutes =
        whole >= 3600 ? QString("%1:%2").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, QChar('0'))
                      : QString::number(whole / 60);
    QString text = QString("%1:%2").arg(minutes).arg(whole % 60, 2, 10, QChar('0'));
    if (tenths % 10 != 0)
        text += QString(".%1").arg(tenths % 10);
    return text;
}

double typedDuration(const QString& text) {
    const QString expected = tr("A duration is written as seconds or as 1:30, up to a day");
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return 0;
    const QStringList parts = typed.split(':');
    double seconds = 0;
    if (parts.size() > 3)
        refuse(expected, typed);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        double part = 0;
        const bool isLast = i + 1 == parts.size();
        const bool isGood = readReal(parts[i], part) && (isLast || part == std::floor(part)) &&
                            (i == 0 || part < 60);
        if (!isGood)
            refuse(expected, typed);
        seconds = seconds * 60 + part;
    }
    if (seconds > LongestDuration)
        refuse(expected, typed);
    return seconds;
}

std::int64_t typedCount(const QString& text) {
    const QString typed = text.trimmed();
    std::int64_t count = 0;
    if (!typed.isEmpty() &&
        (!parseField(typed.toStdString(), count) || count < 0 || count > MostCount))
        refuse(tr("Sets and repetitions are whole numbers from 0 to 9999"), typed);
    return count;
}

double typedAmount(const QString& text) {
    const QString typed = text.trimmed();
    double amount = 0;
    if (!typed.isEmpty() && (!readReal(typed, amount) || amount > MostAmount))
        refuse(tr("Volume and intensity are numbers such as 4.5"), typed);
    return amount;
}

QString makeUpText(const favInvervalSessions_v2& session) {
    QString text;
    if (session.sets != 1)
        text = QString("%1 × ").arg(session.sets);
    if (session.reps != 1)
        text += QString("%1 × ").arg(session.reps);
    text += durationText(session.worktime);
    if (session.workrest > 0)
        text += tr(", rest %1").arg(durationText(session.workrest));
    return text;
}

QString durationSummary(const favInvervalSessions_v2& session) {
    const auto plan = IntervalPlan::of(session);
    if (!plan)
        return QString::fromStdString(whyNotTimed(session));
    return tr("%1 in all, %2 of it work; repetitions: %3")
        .arg(durationText(plan->sessionTime()), durationText(plan->workTime()))
        .arg(plan->sets() * plan->repetitions());
}

} // namespace kavela::desktop
