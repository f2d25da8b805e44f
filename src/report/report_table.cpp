#include "report/report_table.h"

#include "analysis/ranking.h"
#include "report/said.h"
#include "report/table_note.h"
#include "report/typeface.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

namespace kavela::report {

namespace {

constexpr std::size_t WidestText = 16;
constexpr QColor OnTint(0, 0, 0); ///< also on the strongest red, and when that is printed in grey

/// The colours of race mode in shades that can be read as text.
struct TextColours {
    QColor best;
    QColor other;
};
constexpr TextColours GreenAndRed{QColor(0x0b, 0x75, 0x38), QColor(0xab, 0x2f, 0x2a)};
constexpr TextColours BlueAndOrange{QColor(0x1b, 0x62, 0xa5), QColor(0xa3, 0x51, 0x00)};

/// The text of a cell; a number from a damaged file, hundreds of digits long, in short.
QString bearable(const std::string& text) {
    QString whole = QString::fromStdString(text);
    if (text.size() <= WidestText)
        return whole;
    return QString::number(whole.section(' ', 0, 0).toDouble(), 'g', 3);
}

QColor inkOf(const TableCell& cell, ColourScale scale) {
    if (cell.isGreyed())
        return Quiet;
    if (cell.foreground) {
        const TextColours& colours = scale == ColourScale::BlueOrange ? BlueAndOrange : GreenAndRed;
        return *cell.foreground == NamedGreen ? colours.best : colours.other;
    }
    if (cell.background)
        return OnTint;
    return cell.value == 0 ? Quiet : Ink;
}

ReportCell reportCell(const TableCell& cell, const std::string& text, ColourScale scale) {
    ReportCell made;
    made.text = bearable(text);
    made.ink = inkOf(cell, scale);
    if (const auto tint = cell.band ? bandColour(*cell.band, scale) : std::nullopt)
        made.ground = onPaper(cell.isGreyed() ? faded(*tint) : *tint);
    made.isBest = cell.isBest;
    return made;
}

bool isSameGroup(const analyzerdata& a, const analyzerdata& b) {
    return a.phase == b.phase && a.category == b.category;
}

std::vector<std::size_t> knownOf(const std::optional<std::vector<std::size_t>>& chosen,
                                 std::size_t count) {
    std::vector<std::size_t> known;
    if (chosen) {
        std::ranges::copy_if(*chosen, std::back_inserter(known),
                             [&](std::size_t index) { return index < count; });
    } else {
        known.resize(count);
        std::iota(known.begin(), known.end(), std::size_t{0});
    }
    return known;
}

/// The rows of a chosen order, parted wherever phase or category change.
std::vector<RunGroup> partedRows(const RaceSet& set, const std::vector<std::size_t>& rows) {
    std::vector<RunGroup> groups;
    for (const std::size_t row : rows) {
        const analyzerdata& run = set.alldata[row];
        if (groups.empty() || !isSameGroup(set.alldata[groups.back().runs.front()], run))
            groups.push_back({run.phase, run.category, {}});
        groups.back().runs.push_back(row);
    }
    return groups;
}

bool isAnyTwice(const std::vector<RunGroup>& groups) {
    std::set<std::pair<std::string, std::string>> seen;
    return !std::ranges::all_of(groups, [&](const RunGroup& group) {
        return seen.emplace(group.phase, group.category).second;
    });
}

/// Makes the table on paper of the table of a race.
class TableMaker {
public:
    TableMaker(const RaceSet& set, const SplitTable& table, const TableView& view)
        : m_set(set),
          m_table(table),
          m_view(view),
          m_figures(table),
          m_columns(knownOf(view.columns, table.columns.size())) {}

    [[nodiscard]] ReportTable make() {
        const std::vector<RunGroup> groups = shownGroups();
        ReportTable report;
        report.leads = m_leads;
        for (const std::size_t column : m_columns)
            report.columns.push_back(reportText(m_table.columns[column].title));
        if (!m_view.comparisons.empty())
            report.groups.push_back(comparisonGroup());
        for (const RunGroup& group : groups) {
            ReportGroup& made = report.groups.emplace_back();
            made.title = groupTitle(group.phase, group.category);
            if (made.title.isEmpty() && !m_view.comparisons.empty())
                made.title = said("Runs");
            for (const std::size_t run : group.runs)
                made.rows.push_back(reportRow(run));
        }
        report.scale = m_view.scale;
        return report;
    }

private:
    /// The runs in their order, and with that which leading columns have something to tell.
    [[nodiscard]] std::vector<RunGroup> shownGroups() {
        m_leads = m_view.runColumns;
        if (m_view.rows) {
            const std::vector<std::size_t> rows = knownOf(m_view.rows, m_set.alldata.size());
            std::vector<RunGroup> groups = partedRows(m_set, rows);
            if (isAnyTwice(groups))
                return {{{}, {}, rows}};
            dropToldLeads();
            return groups;
        }
        dropToldLeads();
        return runGroups(m_set);
    }

    void dropToldLeads() {
        std::erase_if(m_leads, [](RunColumn column) { return column != RunColumn::Place; });
    }

    [[nodiscard]] ReportRow reportRow(std::size_t run) const {
        const TableRow& row = m_table.rows[run];
        ReportRow made;
        made.name = reportText(row.run->name);
        for (const RunColumn lead : m_leads)
            made.leads.push_back(leadText(*row.run, lead));
        for (const std::size_t column : m_columns)
            made.cells.push_back(reportCell(
                row.cells[column],
                cellText(m_table, m_figures, run, column, m_view.content, m_view.reference),
                m_view.scale));
        return made;
    }

    [[nodiscard]] static QString leadText(const analyzerdata& run, RunColumn column) {
        switch (column) {
        case RunColumn::Phase:
            return reportText(run.phase);
        case RunColumn::Category:
            return reportText(run.category);
        case RunColumn::Place:
            return run.pos == "0" ? QString() : reportText(run.pos);
        }
        return {};
    }

    [[nodiscard]] ReportGroup comparisonGroup() const {
        ReportGroup group{said("For comparison"), {}};
        for (const ComparisonRow& row : m_view.comparisons) {
            ReportRow& made = group.rows.emplace_back();
            made.name = comparisonName(row);
            for (const RunColumn lead : m_leads)
                made.leads.push_back(lead == RunColumn::Phase      ? reportText(row.phase)
                                     : lead == RunColumn::Category ? reportText(row.category)
                                                                   : QString());
            for (const std::size_t column : m_columns)
                made.cells.push_back(comparisonCell(row, column));
        }
        return group;
    }

    [[nodiscard]] ReportCell comparisonCell(const ComparisonRow& row, std::size_t column) const {
        if (column >= row.values.size())
            return {{}, Quiet, {}, false};
        const std::string text =
            comparisonText(row, m_figures, column, m_view.content, m_view.reference);
        return {bearable(text), row.values[column] == 0 ? Quiet : Ink, {}, false};
    }

    const RaceSet& m_set;
    const SplitTable& m_table;
    const TableView& m_view;
    TableFigures m_figures;
    std::vector<std::size_t> m_columns;
    std::vector<RunColumn> m_leads;
};

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

QString leadTitle(RunColumn column) {
    switch (column) {
    case RunColumn::Phase:
        return said("Phase");
    case RunColumn::Category:
        return said("Cat");
    case RunColumn::Place:
        return said("Place");
    }
    return {};
}

QColor onPaper(const Colour& colour) {
    const auto channel = [&](double value) {
        constexpr int Most = 255;
        return static_cast<int>(std::lround((value * colour.alpha + (1 - colour.alpha)) * Most));
    };
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

std::vector<QString> columnTitles(const SplitTable& table) {
    std::vector<QString> titles;
    for (const TableColumn& column : table.columns)
        titles.push_back(reportText(column.title));
    return titles;
}

ReportTable reportTable(const RaceSet& set, const SplitTable& table, const TableSettings& settings,
                        const TableView& view) {
    ReportTable report = TableMaker(set, table, view).make();
    report.isTinted = settings.isTinted();
    report.note = tableNote(set, settings, view, report.rowCount() - view.comparisons.size());
    if (view.content == CellContent::Time && hasGreyed(table))
        report.note += said(" Grey: not timed as a whole, never a best.");
    return report;
}

} // namespace kavela::report
