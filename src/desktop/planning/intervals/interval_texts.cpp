#include "desktop/planning/intervals/interval_texts.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "planning/interval_timer.h"

#include <QCoreApplication>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LongestDuration = 86400;
constexpr double LongestShown = 1e6; ///< seconds; a longer one only comes from a damaged file
constexpr double MostCount = 9999;
constexpr double MostAmount = 1e6;

struct IntervalTexts {
    Q_DECLARE_TR_FUNCTIONS(IntervalTexts)
};

} // namespace

QString durationText(double seconds) {
    if (!(seconds >= 0 && seconds < LongestShown))
        return shownNumber(seconds);
    const auto tenths = static_cast<std::int64_t>(std::llround(seconds * 10));
    const std::int64_t whole = tenths / 10;
    const QString minutes =
        whole >= 3600 ? QString("%1:%2").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, QChar('0'))
                      : QString::number(whole / 60);
    QString text = QString("%1:%2").arg(minutes).arg(whole % 60, 2, 10, QChar('0'));
    if (tenths % 10 != 0)
        text += QString(".%1").arg(tenths % 10);
    return shownNumbers(text);
}

double typedDuration(const QString& text) {
    return typedSecondsOrNone(
        text, {0, LongestDuration,
               IntervalTexts::tr("A duration is written as seconds or as 1:30, up to a day")});
}

std::int64_t typedRepeats(const QString& text) {
    return typedWholeOrNone(
        text,
        {0, MostCount, IntervalTexts::tr("Sets and repetitions are whole numbers from 0 to 9999")});
}

double typedAmount(const QString& text) {
    return typedRealOrNone(
        text, {0, MostAmount, IntervalTexts::tr("Volume and intensity are numbers such as 4.5")});
}

QString makeUpText(const favInvervalSessions_v2& session) {
    QString text;
    if (session.sets != 1)
        text = QString("%1 × ").arg(session.sets);
    if (session.reps != 1)
        text += QString("%1 × ").arg(session.reps);
    text += durationText(session.worktime);
    if (session.workrest > 0)
        text += IntervalTexts::tr(", rest %1").arg(durationText(session.workrest));
    return text;
}

QString durationSummary(const favInvervalSessions_v2& session) {
    const auto plan = IntervalPlan::of(session);
    if (!plan)
        return QString::fromStdString(whyNotTimed(session));
    return IntervalTexts::tr("%1 in all, %2 of it work; repetitions: %3")
        .arg(durationText(plan->sessionTime()), durationText(plan->workTime()))
        .arg(plan->sets() * plan->repetitions());
}

} // namespace kavela::desktop
