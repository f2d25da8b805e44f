#include "report/table_layout.h"

#include "report/page_builder.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace kavela::report {

namespace {

constexpr qreal FullPoints = 8.5;
constexpr qreal LeastPoints = 6.5;
constexpr qreal StepPoints = 0.25;
// Widths in letters of one point.
constexpr qreal CellPadding = 1.1;
constexpr qreal PlacePadding = CellPadding + LeadGap;
constexpr qreal NamePadding = 1.2;
constexpr qreal WidestTitle = 6;
constexpr qreal WidestName = 21;
constexpr qreal LeastName = 11;
constexpr qreal WidestLead = 10;
constexpr qreal RoomiestCell = 7;

qreal sum(const std::vector<qreal>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// The widths that a table asks for, for letters of one point: they grow with the letters.
struct Widths {
    qreal name = 0;
    std::vector<qreal> leads;
    std::vector<qreal> columns;

    [[nodiscard]] qreal besideName() const { return sum(leads) + sum(columns); }
};

class Measure {
public:
    explicit Measure(const Typeface& typeface) : m_typeface(typeface) {}

    [[nodiscard]] qreal of(const QString& text, bool isBold) const {
        return m_typeface.width(text, {FullPoints, isBold, Ink}) / FullPoints;
    }

private:
    const Typeface& m_typeface;
};

/// The longest text of a column. Figures are of one width, so that counting them is enough.
QString longestCell(const ReportTable& table, std::size_t column) {
    QString longest;
    for (const ReportGroup& group : table.groups)
        for (const ReportRow& row : group.rows)
            if (row.cells[column].text.size() > longest.size())
                longest = row.cells[column].text;
    return longest;
}

qreal leadWidth(const ReportTable& table, std::size_t lead, const Measure& measure) {
    qreal width = measure.of(leadTitle(table.leads[lead]), true);
    for (const ReportGroup& group : table.groups)
        for (const ReportRow& row : group.rows)
            width = std::max(width, measure.of(row.leads[lead], false));
    const bool isNumber = table.leads[lead] == RunColumn::Place;
    return std::min(width + (isNumber ? PlacePadding : CellPadding) * Point, WidestLead * Point);
}

Widths widthsOf(const ReportTable& table, const Typeface& typeface) {
    const Measure measure(typeface);
    Widths widths;
    for (const ReportGroup& group : table.groups)
        for (const ReportRow& row : group.rows)
            widths.name = std::max(widths.name, measure.of(row.name, false));
    widths.name =
        std::clamp(widths.name + NamePadding * Point, LeastName * Point, WidestName * Point);
    for (std::size_t i = 0; i < table.leads.size(); ++i)
        widths.leads.push_back(leadWidth(table, i, measure));
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const qreal title = std::min(measure.of(table.columns[i], true), WidestTitle * Point);
        const qreal cell = measure.of(longestCell(table, i) + BestMark, true);
        widths.columns.push_back(std::max(title, cell) + CellPadding * Point);
    }
    return widths;
}

qreal paperWidth(QPageLayout::Orientation orientation) {
    return bodyPlace(orientation).width();
}

/// The largest letters with which a width for one point fits the paper; none when it is too wide
/// even for the least.
std::optional<qreal> fittingPoints(qreal widthOfOnePoint, QPageLayout::Orientation orientation) {
    const qreal largest = paperWidth(orientation) / widthOfOnePoint;
    if (largest < LeastPoints)
        return {};
    return std::min(FullPoints, std::floor(largest / StepPoints) * StepPoints);
}

/// Spreads what is left of the paper: the columns breathe a little, the names take the rest.
void fillPaper(TableLayout& layout, TableStrip& strip) {
    qreal& name = layout.nameWidth;
    const qreal paper = paperWidth(layout.orientation) - sum(layout.leadWidths);
    const qreal spare = paper - name - sum(strip.widths);
    const qreal each = spare / static_cast<qreal>(strip.widths.size() + 1);
    for (qreal& width : strip.widths)
        width = std::max(width, std::min(width + each, RoomiestCell * layout.points * Point));
    name = paper - sum(strip.widths);
}

TableLayout oneStrip(const Widths& widths, QPageLayout::Orientation orientation, qreal points,
                     qreal nameOfOnePoint) {
    TableLayout layout{orientation, points, nameOfOnePoint * points, {}, {{}}};
    for (const qreal width : widths.leads)
        layout.leadWidths.push_back(width * points);
    for (const qreal width : widths.columns)
        layout.strips.front().widths.push_back(width * points);
    fillPaper(layout, layout.strips.front());
    return layout;
}

TableLayout manyStrips(const Widths& widths) {
    TableLayout layout{QPageLayout::Landscape, FullPoints - 1, 0, {}, {}};
    layout.nameWidth = LeastName * Point * layout.points;
    for (const qreal width : widths.leads)
        layout.leadWidths.push_back(width * layout.points);
    qreal left = 0;
    for (std::size_t i = 0; i < widths.columns.size(); ++i) {
        const qreal width = widths.columns[i] * layout.points;
        if (layout.strips.empty() || width > left) {
            layout.strips.push_back({i, {}});
            left = paperWidth(layout.orientation) - layout.nameWidth - sum(layout.leadWidths);
        }
        layout.strips.back().widths.push_back(width);
        left -= width;
    }
    return layout;
}

} // namespace

TableLayout layOutTable(const ReportTable& table, const Typeface& typeface) {
    const Widths widths = widthsOf(table, typeface);
    if ((widths.name + widths.besideName()) * FullPoints <= paperWidth(QPageLayout::Portrait))
        return oneStrip(widths, QPageLayout::Portrait, FullPoints, widths.name);
    for (const qreal name : {widths.name, LeastName * Point})
        if (const auto points = fittingPoints(name + widths.besideName(), QPageLayout::Landscape))
            return oneStrip(widths, QPageLayout::Landscape, *points, name);
    return manyStrips(widths);
}

} // namespace kavela::report
