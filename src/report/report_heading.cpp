#include "report/report_heading.h"

#include "common/reference_date.h"
#include "report/said.h"
#include "report/typeface.h"
#include "splittaking/race_day/race_day.h"

#include <QStringList>

#include <stdexcept>

namespace kavela::report {

namespace {

QString gateList(const std::vector<std::int64_t>& gates) {
    QStringList numbers;
    for (const std::int64_t gate : gates)
        numbers << QString::number(gate);
    return reportText(numbers.join(QStringLiteral(", ")).toStdString());
}

/// The texts that say something, with dots between them.
QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString gatesInWords(const infodata031& info) {
    if (info.gates < 1)
        return {};
    const QString gates = said("%1 gates").arg(info.gates);
    return info.upGates.empty() ? gates : gates + said(", %1 upstream").arg(info.upGates.size());
}

} // namespace

ReportHeading reportHeading(const infodata031& info) {
    ReportHeading heading;
    heading.title = reportText(info.title.empty() ? info.event : info.title);
    if (heading.title.isEmpty())
        heading.title = said("Race");
    QStringList subtitle{reportText(info.event), reportText(info.session),
                         reportText(info.category)};
    subtitle.removeAll(heading.title);
    heading.subtitle = joined(subtitle);

    const auto add = [&](const char* label, const QString& value) {
        if (!value.isEmpty())
            heading.facts.push_back({said(label), value});
    };
    const QString place = reportText(info.place);
    const QString day = reportText(dayText(info.date));
    const QString water = reportText(info.watertype);
    add(KAVELA_TEXT("Place"), place);
    add(KAVELA_TEXT("Date"), day);
    add(KAVELA_TEXT("Gates"), info.gates > 0 ? QString::number(info.gates) : QString());
    add(KAVELA_TEXT("Upstream gates"), gateList(info.upGates));
    add(KAVELA_TEXT("Water"), water);
    heading.line = joined({heading.subtitle, place, day, gatesInWords(info), water});
    return heading;
}

ReportHeading reportHeading(const infodata031& info, const std::filesystem::path& splitFile) {
    ReportHeading heading = reportHeading(info);
    try {
        if (const auto day = readRaceDay(raceDayPath(splitFile)))
            heading.out = linesOfThoseOut(*day);
    } catch (const std::runtime_error&) { // split taking tells of it, where it can be mended
    }
    return heading;
}

} // namespace kavela::report
