#include "report/table_pages.h"

#include "report/legend.h"
#include "report/said.h"

#include <QPainter>

#include <algorithm>
#include <memory>

namespace kavela::report {

namespace {

constexpr qreal LegendGap = 6 * Point;
constexpr qreal GroundGap = 0.5 * Point; ///< of paper around a tinted cell
constexpr std::size_t FewestRowsBelowTitle = 2;

/// One line of the table: the title of a group, or one of its rows.
struct TableLine {
    std::size_t group = 0;
    std::optional<std::size_t> row;
    bool isContinued = false;
};

/// A table as it is being painted. The pieces of its pages share it.
class TableSheet {
public:
    TableSheet(ReportTable table, TableLayout layout, Typeface typeface)
        : m_table(std::move(table)), m_layout(std::move(layout)), m_typeface(std::move(typeface)) {}

    [[nodiscard]] const ReportTable& table() const { return m_table; }
    [[nodiscard]] const TableLayout& layout() const { return m_layout; }
    [[nodiscard]] const Typeface& typeface() const { return m_typeface; }
    [[nodiscard]] qreal height(const TableLine& line) const {
        return line.row ? m_layout.rowHeight() : m_layout.groupHeight();
    }

    void paint(QPainter& painter, const QRectF& place, std::size_t strip,
               const std::vector<TableLine>& lines) const {
        QRectF linePlace = place;
        linePlace.setHeight(m_layout.headHeight());
        paintHead(painter, linePlace, m_layout.strips[strip]);
        for (const TableLine& line : lines) {
            linePlace = {linePlace.left(), linePlace.bottom(), linePlace.width(), height(line)};
            const ReportGroup& group = m_table.groups[line.group];
            if (line.row)
                paintRow(painter, linePlace, m_layout.strips[strip], group.rows[*line.row]);
            else
                paintTitle(painter, linePlace, group, line.isContinued);
        }
    }

private:
    [[nodiscard]] TextStyle style(const QColor& colour = Ink, bool isBold = false) const {
        return {m_layout.points, isBold, colour};
    }
    [[nodiscard]] QRectF namePlace(const QRectF& line) const {
        return {line.left(), line.top(), m_layout.nameWidth - m_layout.points * Point / 2,
                line.height()};
    }
    /// The places of the cells of a line.
    [[nodiscard]] std::vector<QRectF> cellPlaces(const QRectF& line,
                                                 const TableStrip& strip) const {
        const std::vector<QRectF> leads = leadPlaces(line);
        const qreal left = leads.empty() ? line.left() + m_layout.nameWidth : leads.back().right();
        return placesFrom(left, line, strip.widths);
    }
    [[nodiscard]] std::vector<QRectF> leadPlaces(const QRectF& line) const {
        return placesFrom(line.left() + m_layout.nameWidth, line, m_layout.leadWidths);
    }
    [[nodiscard]] static std::vector<QRectF> placesFrom(qreal left, const QRectF& line,
                                                        const std::vector<qreal>& widths) {
        std::vector<QRectF> places;
        for (const qreal width : widths) {
            places.emplace_back(left, line.top(), width, line.height());
            left += width;
        }
        return places;
    }
    /// Where the text of a cell ends, the mark of the best not counted.
    [[nodiscard]] QRectF textPlace(const QRectF& cell) const {
        const qreal mark = m_typeface.width(BestMark, style(Ink, true));
        return cell.adjusted(0, 0, -mark - 0.3 * m_layout.points * Point, 0);
    }

    void paintHead(QPainter& painter, const QRectF& place, const TableStrip& strip) const {
        m_typeface.draw(painter, namePlace(place), Qt::AlignLeft, said("Name"), style(Quiet, true));
        const std::vector<QRectF> leads = leadPlaces(place);
        for (std::size_t i = 0; i < leads.size(); ++i)
            paintLead(painter, leads[i], i, leadTitle(m_table.leads[i]), style(Quiet, true));
        const std::vector<QRectF> cells = cellPlaces(place, strip);
        for (std::size_t i = 0; i < cells.size(); ++i)
            m_typeface.draw(painter, textPlace(cells[i]), Qt::AlignRight,
                            m_table.columns[strip.first + i], style(Quiet, true));
        drawRule(painter, place, place.bottom() - Point, Accent, 0.8);
    }

    void paintTitle(QPainter& painter, const QRectF& place, const ReportGroup& group,
                    bool isContinued) const {
        QRectF text = place;
        text.setTop(place.bottom() - 1.9 * m_layout.points * Point);
        const QString title = isContinued ? group.title + said(", continued") : group.title;
        m_typeface.draw(painter, text, Qt::AlignLeft, title, style(Accent, true));
        drawRule(painter, place, place.bottom(), Rule);
    }

    void paintRow(QPainter& painter, const QRectF& place, const TableStrip& strip,
                  const ReportRow& row) const {
        m_typeface.draw(painter, namePlace(place), Qt::AlignLeft, row.name, style());
        const std::vector<QRectF> leads = leadPlaces(place);
        for (std::size_t i = 0; i < leads.size(); ++i)
            paintLead(painter, leads[i], i, row.leads[i], style());
        const std::vector<QRectF> cells = cellPlaces(place, strip);
        for (std::size_t i = 0; i < cells.size(); ++i)
            paintCell(painter, cells[i], row.cells[strip.first + i]);
        drawRule(painter, place, place.bottom(), Rule, 0.25);
    }

    void paintLead(QPainter& painter, const QRectF& place, std::size_t lead, const QString& text,
                   const TextStyle& textStyle) const {
        const bool isNumber = m_table.leads[lead] == RunColumn::Place;
        m_typeface.draw(painter,
                        place.adjusted(0, 0, isNumber ? -LeadGap * m_layout.points * Point : 0, 0),
                        isNumber ? Qt::AlignRight : Qt::AlignLeft, text, textStyle);
    }

    void paintCell(QPainter& painter, const QRectF& place, const ReportCell& cell) const {
        if (cell.ground)
            painter.fillRect(place.adjusted(GroundGap, GroundGap, -GroundGap, -GroundGap),
                             *cell.ground);
        QRectF text = textPlace(place);
        if (cell.isBest)
            text.setRight(text.right() + m_typeface.width(BestMark, style(Ink, true)));
        m_typeface.draw(painter, text, Qt::AlignRight,
                        cell.isBest ? cell.text + BestMark : cell.text,
                        style(cell.ink, cell.isBest));
    }

    ReportTable m_table;
    TableLayout m_layout;
    Typeface m_typeface;
};

/// Deals the lines of a table out to pages.
class Dealer {
public:
    Dealer(PageBuilder& pages, std::shared_ptr<const TableSheet> sheet)
        : m_pages(pages), m_sheet(std::move(sheet)) {}

    void dealStrip(std::size_t strip) {
        m_strip = strip;
        if (roomOnPage() < m_sheet->layout().groupHeight() + rowsHeight(FewestRowsBelowTitle))
            m_pages.newPage();
        startPage();
        for (std::size_t group = 0; group < m_sheet->table().groups.size(); ++group)
            dealGroup(group);
        finishPage();
    }

private:
    [[nodiscard]] qreal rowsHeight(std::size_t rows) const {
        return static_cast<qreal>(rows) * m_sheet->layout().rowHeight();
    }
    /// What the page has for lines, below the head of the columns and above the legend.
    [[nodiscard]] qreal roomOnPage() const {
        return m_pages.space().height() - m_sheet->layout().headHeight() - LegendGap -
               legendHeight();
    }

    [[nodiscard]] qreal legendHeight() const {
        return report::legendHeight(m_sheet->table(), m_sheet->typeface(), m_pages.space().width());
    }

    void dealGroup(std::size_t group) {
        const ReportGroup& dealt = m_sheet->table().groups[group];
        const std::size_t together = std::min(FewestRowsBelowTitle, dealt.rows.size());
        if (!dealt.title.isEmpty()) {
            if (m_sheet->layout().groupHeight() + rowsHeight(together) > m_room)
                turnPage();
            add({group, {}, false});
        }
        for (std::size_t row = 0; row < dealt.rows.size(); ++row) {
            if (m_sheet->layout().rowHeight() > m_room) {
                turnPage();
                if (!dealt.title.isEmpty())
                    add({group, {}, true});
            }
            add({group, row, false});
        }
    }

    void add(const TableLine& line) {
        m_room -= m_sheet->height(line);
        m_lines.push_back(line);
    }

    void startPage() { m_room = roomOnPage(); }

    void finishPage() {
        qreal height = m_sheet->layout().headHeight();
        for (const TableLine& line : m_lines)
            height += m_sheet->height(line);
        QRectF legend = m_pages.space();
        legend.setTop(legend.bottom() - legendHeight());
        m_pages.put(height, [sheet = m_sheet, strip = m_strip,
                             lines = std::move(m_lines)](QPainter& painter, const QRectF& place) {
            sheet->paint(painter, place, strip, lines);
        });
        m_pages.putAt(legend, [sheet = m_sheet](QPainter& painter, const QRectF& place) {
            paintLegend(painter, place, sheet->table(), sheet->typeface());
        });
        m_lines.clear();
    }

    void turnPage() {
        finishPage();
        m_pages.newPage();
        startPage();
    }

    PageBuilder& m_pages;
    std::shared_ptr<const TableSheet> m_sheet;
    std::size_t m_strip = 0;
    std::vector<TableLine> m_lines;
    qreal m_room = 0;
};

} // namespace

void putTable(PageBuilder& pages, const ReportTable& table, const TableLayout& layout,
              const Typeface& typeface) {
    Dealer dealer(pages, std::make_shared<const TableSheet>(table, layout, typeface));
    for (std::size_t strip = 0; strip < layout.strips.size(); ++strip) {
        if (strip > 0)
            pages.newPage();
        dealer.dealStrip(strip);
    }
}

} // namespace kavela::report
