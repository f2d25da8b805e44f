#include "desktop/planning/plan/week_texts.h"

#include "desktop/shell/shown_number.h"
#include "planning/calendar_day.h"
#include "planning/day_parts.h"
#include "planning/training_categories.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>

namespace kavela::desktop {

namespace {

struct WeekTexts {
    Q_DECLARE_TR_FUNCTIONS(WeekTexts)
};

QString amountText(double number) {
    return shownNumbers(QString::number(number, 'g', 6));
}

QString entry(const std::vector<std::string>& list, std::size_t index) {
    return index < list.size() ? QString::fromStdString(list[index]) : QString();
}

void addLine(QString& text, const QString& title, const std::string& value) {
    if (!value.empty())
        text += '\n' + title + ": " + QString::fromStdString(value);
}

} // namespace

QString testLetters(const microsplanning_v5& week) {
    QString letters;
    if (!week.watertest.empty() || !week.testdata.water.empty())
        letters += 'W';
    if (!week.endurancetest.empty() || !week.testdata.endurance.empty())
        letters += 'E';
    if (!week.bloodtest.empty() || !week.testdata.blood.empty())
        letters += 'B';
    return letters;
}

QString weekTip(const microsplanning_v5& week) {
    QString text = WeekTexts::tr("Week %1, from %2")
                       .arg(week.number)
                       .arg(QString::fromStdString(startText(week)));
    text += '\n' + WeekTexts::tr("Load %1 %").arg(amountText(week.percentaje));
    addLine(text, WeekTexts::tr("Macrocycle"), week.macrocycle);
    addLine(text, WeekTexts::tr("Mesocycle"), week.mesocycle);
    addLine(text, WeekTexts::tr("Event"), week.event);
    addLine(text, WeekTexts::tr("Place"), week.place);
    addLine(text, WeekTexts::tr("On-water test"), week.watertest);
    addLine(text, WeekTexts::tr("Endurance test"), week.endurancetest);
    addLine(text, WeekTexts::tr("Blood test"), week.bloodtest);
    addLine(text, WeekTexts::tr("Injured"), week.injurypart);
    text +=
        '\n' + WeekTexts::tr("%n session(s)").replace("%n", QString::number(week.sessions.size()));
    if (const QString faults = weekFaults(week); !faults.isEmpty())
        text += '\n' + faults;
    return text;
}

QString weekFaults(const microsplanning_v5& week) {
    QStringList faults;
    if (!dayOfMidnight(week.monday))
        faults.append(WeekTexts::tr("The week's date is in no calendar."));
    else if (!mondayOf(week))
        faults.append(WeekTexts::tr("The week does not start on a Monday."));
    if (week.percentaje < 0)
        faults.append(WeekTexts::tr("The load is negative."));
    if (week.total.size() != week.totalq.size())
        faults.append(WeekTexts::tr("The two lists of planned totals are of different lengths."));
    if (const std::size_t count = sessionsByDay(week).elsewhere.size())
        faults.append(WeekTexts::tr("%1 of its sessions are on no day of the week.").arg(count));
    return faults.join('\n');
}

QString titleOf(const sessioninmicro_v5& session) {
    return entry(session.titleanddes, 0);
}

QString descriptionOf(const sessioninmicro_v5& session) {
    return entry(session.titleanddes, 1);
}

QString timeTextOf(const sessioninmicro_v5& session) {
    const auto time = timeOf(session);
    if (!time)
        return {};
    const std::chrono::hh_mm_ss parts(*time);
    return QString("%1:%2")
        .arg(parts.hours().count(), 2, 10, QChar('0'))
        .arg(parts.minutes().count(), 2, 10, QChar('0'));
}

QString valuesTextOf(const sessioninmicro_v5& session) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < session.data.size(); ++i)
        if (session.data[i] != 0)
            order.push_back(i);
    std::ranges::stable_sort(order, std::greater{}, [&](std::size_t i) { return session.data[i]; });
    QStringList texts;
    for (const std::size_t i : order)
        texts.append(QString::fromStdString(trainingCategory(i)) + ' ' +
                     amountText(session.data[i]));
    return texts.join(", ");
}

QString sessionFaults(const sessioninmicro_v5& session) {
    QStringList faults;
    if (!dayOf(session))
        faults.append(WeekTexts::tr("The session's date is in no calendar."));
    if (!session.trainingtimeInt.empty() && !timeOf(session))
        faults.append(WeekTexts::tr("The time of day is none."));
    if (!session.trainingtimezones.empty() &&
        !QTimeZone(QByteArray::fromStdString(session.trainingtimezones)).isValid())
        faults.append(WeekTexts::tr("The time zone “%1” is unknown.")
                          .arg(QString::fromStdString(session.trainingtimezones)));
    if (std::ranges::any_of(session.data, [](double value) { return value < 0; }))
        faults.append(WeekTexts::tr("A value is negative."));
    return faults.join('\n');
}

QString dayTitle(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    const QDate shown(static_cast<int>(date.year()), static_cast<int>(unsigned(date.month())),
                      static_cast<int>(unsigned(date.day())));
    return QLocale::c().toString(shown, "ddd d MMM");
}

QString dayTitle(std::chrono::sys_days day, int width, const QFontMetrics& metrics) {
    const QString whole = dayTitle(day); // "Mon 25 May"
    const QString withoutMonth = whole.section(' ', 0, 1);
    for (const QString& title : {whole, withoutMonth})
        if (metrics.horizontalAdvance(title) <= width)
            return title;
    return withoutMonth.section(' ', 1);
}

} // namespace kavela::desktop
