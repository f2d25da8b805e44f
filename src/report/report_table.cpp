#include "report/report_table.h"

#include "analysis/ranking.h"
#include "report/typeface.h"

#include <fmt/format.h>

#include <QStringList>

#include <cmath>

namespace kavela::report {

namespace {

constexpr std::size_t WidestTime = 16;
// The named green and red of the table in shades that can be read as text.
constexpr QColor TextGreen(0x0b, 0x75, 0x38);
constexpr QColor TextRed(0xab, 0x2f, 0x2a);
constexpr QColor OnTint(0, 0, 0); ///< also on the strongest red, and when that is printed in grey

/// A time as the table has it; one from a damaged file, hundreds of digits long, in short.
QString cellText(const TableCell& cell) {
    return QString::fromStdString(cell.text.size() > WidestTime ? fmt::format("{:.3g}", cell.value)
                                                                : cell.text);
}

QColor inkOf(const TableCell& cell) {
    if (cell.foreground)
        return *cell.foreground == NamedGreen ? TextGreen : TextRed;
    if (cell.background)
        return OnTint;
    return cell.value == 0 ? Quiet : Ink;
}

ReportCell reportCell(const TableCell& cell) {
    ReportCell made;
    made.text = cellText(cell);
    made.ink = inkOf(cell);
    if (cell.background)
        made.ground = onPaper(*cell.background);
    made.isBest = cell.band == Band::Fastest || cell.foreground == NamedGreen;
    return made;
}

ReportRow reportRow(const TableRow& row) {
    ReportRow made;
    made.name = reportText(row.run->name);
    for (const TableCell& cell : row.cells)
        made.cells.push_back(reportCell(cell));
    return made;
}

QString noteOn(const TableSettings& settings) {
    QStringList sentences;
    if (settings.kind == ValueKind::Accumulated)
        sentences << QStringLiteral("Times from the start, without penalties.");
    else if (settings.penaltiesIncluded)
        sentences << QStringLiteral("Penalties are included in sections and total.");
    else
        sentences << QStringLiteral("Penalties are not included.");
    if (settings.penaltiesVisible)
        sentences << QStringLiteral("Penalty seconds in brackets.");
    return sentences.join(' ');
}

} // namespace

std::size_t ReportTable::rowCount() const {
    std::size_t count = 0;
    for (const ReportGroup& group : groups)
        count += group.rows.size();
    return count;
}

QString groupTitle(const std::string& phase, const std::string& category) {
    QStringList parts{reportText(phase), reportText(category)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QColor onPaper(const Colour& colour) {
    const auto channel = [&](double value) {
        constexpr int Most = 255;
        return static_cast<int>(std::lround((value * colour.alpha + (1 - colour.alpha)) * Most));
    };
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

ReportTable reportTable(const RaceSet& set, const TableSettings& settings) {
    const SplitTable table = makeSplitTable(set, settings);
    ReportTable report;
    for (const TableColumn& column : table.columns)
        report.columns.push_back(reportText(column.title));
    for (const RunGroup& group : runGroups(set)) {
        ReportGroup& made = report.groups.emplace_back();
        made.title = groupTitle(group.phase, group.category);
        for (const std::size_t run : group.runs)
            made.rows.push_back(reportRow(table.rows[run]));
    }
    report.isTinted = settings.isTinted();
    report.note = noteOn(settings);
    return report;
}

} // namespace kavela::report
