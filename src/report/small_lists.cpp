#include "report/small_lists.h"

#include "report/list_flow.h"
#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>

#include <algorithm>
#include <memory>

namespace kavela::report {

namespace {

constexpr TextStyle SmallListTitleStyle{9, true, Accent};
constexpr qreal SmallListRowHeight = 12.4 * Point;
constexpr qreal SmallListTitleHeight = 17 * Point;
constexpr qreal SmallListHeadHeight = 12 * Point;
constexpr qreal SmallListGap = 12 * Point;
constexpr qreal SmallListCellGap = 6.5 * Point;
constexpr qreal SmallListColumnGap = 22 * Point;
constexpr qreal LeastColumn = 215 * Point;
constexpr qreal WidestRest = 150 * Point;
constexpr std::size_t FewestSideBySide = 2;
constexpr std::size_t MostSideBySide = 3;

/// The columns of one kind of list, fitted to what they hold.
class SmallListColumns {
public:
    SmallListColumns(const SmallLists& lists, std::size_t kind, const Typeface& typeface)
        : m_columns(lists.kinds[kind]) {
        TextStyle bold = RowStyle;
        bold.isBold = true;
        for (const ListColumn& column : m_columns)
            m_widths.push_back(typeface.width(column.title, HeadStyle));
        for (const SmallList& list : lists.lists)
            for (const ListRow& row : list.rows)
                for (std::size_t i = 0; i < m_widths.size() && list.kind == kind; ++i)
                    m_widths[i] = std::max(m_widths[i], typeface.width(row.texts[i], bold));
    }

    [[nodiscard]] std::size_t size() const { return m_columns.size(); }
    [[nodiscard]] const ListColumn& operator[](std::size_t i) const { return m_columns[i]; }

    /// How wide a list has to be to show everything, within reason.
    [[nodiscard]] qreal wantedWidth() const {
        qreal width = -SmallListCellGap;
        for (std::size_t i = 0; i < size(); ++i)
            width += SmallListCellGap +
                     (m_columns[i].takesRest ? std::min(m_widths[i], WidestRest) : m_widths[i]);
        return width;
    }

    /// The place of a column in a line: what the others leave goes to the one that takes the rest.
    [[nodiscard]] QRectF cell(const QRectF& line, std::size_t column) const {
        qreal rest = line.width() + SmallListCellGap;
        for (std::size_t i = 0; i < size(); ++i)
            rest -= SmallListCellGap + (m_columns[i].takesRest ? 0 : m_widths[i]);
        QRectF place = line;
        for (std::size_t i = 0; i <= column; ++i) {
            place.setWidth(m_columns[i].takesRest ? rest : m_widths[i]);
            if (i < column)
                place.moveLeft(place.right() + SmallListCellGap);
        }
        return place;
    }

private:
    std::vector<ListColumn> m_columns;
    std::vector<qreal> m_widths;
};

/// The lists as they are being painted. The pieces of the pages share it.
class SmallListSheet {
public:
    SmallListSheet(SmallLists lists, Typeface typeface)
        : m_lists(std::move(lists)), m_typeface(std::move(typeface)) {
        for (std::size_t kind = 0; kind < m_lists.kinds.size(); ++kind)
            m_kinds.emplace_back(m_lists, kind, m_typeface);
    }

    [[nodiscard]] qreal wantedWidth() const {
        qreal width = 0;
        for (const SmallListColumns& columns : m_kinds)
            width = std::max(width, columns.wantedWidth());
        return width;
    }

    [[nodiscard]] std::vector<std::size_t> rowCounts() const {
        std::vector<std::size_t> counts;
        for (const SmallList& list : m_lists.lists)
            counts.push_back(list.rows.size());
        return counts;
    }

    void paint(QPainter& painter, const QRectF& place, const ListPart& part) const {
        const SmallList& list = m_lists.lists[part.list];
        QRectF line = place;
        line.setHeight(SmallListTitleHeight);
        const QString more = part.firstRow > 0 ? said(", continued") : QString();
        m_typeface.draw(painter, line, Qt::AlignLeft, list.title + more, SmallListTitleStyle);
        line = {line.left(), line.bottom(), line.width(), SmallListHeadHeight};
        paintHead(painter, line, m_kinds[list.kind]);
        for (std::size_t row = part.firstRow; row < part.endRow; ++row) {
            line = {line.left(), line.bottom(), line.width(), SmallListRowHeight};
            paintRow(painter, line, m_kinds[list.kind], list.rows[row]);
        }
    }

private:
    void paintHead(QPainter& painter, const QRectF& line, const SmallListColumns& columns) const {
        for (std::size_t i = 0; i < columns.size(); ++i)
            m_typeface.draw(painter, columns.cell(line, i), columns[i].alignment, columns[i].title,
                            HeadStyle);
        drawRule(painter, line, line.bottom(), Accent, 0.6);
    }

    void paintRow(QPainter& painter, const QRectF& line, const SmallListColumns& columns,
                  const ListRow& row) const {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            TextStyle style = RowStyle;
            style.isBold = row.isBold && !columns[i].isAlwaysPlain;
            style.colour = row.isQuiet ? Quiet : Ink;
            m_typeface.draw(painter, columns.cell(line, i), columns[i].alignment, row.texts[i],
                            style);
        }
        drawRule(painter, line, line.bottom(), Rule, 0.25);
    }

    SmallLists m_lists;
    Typeface m_typeface;
    std::vector<SmallListColumns> m_kinds;
};

std::size_t sideBySide(qreal paper, qreal wanted) {
    const auto most =
        static_cast<std::size_t>((paper + SmallListColumnGap) / (LeastColumn + SmallListColumnGap));
    const auto fitting =
        static_cast<std::size_t>((paper + SmallListColumnGap) / (wanted + SmallListColumnGap));
    return std::clamp(std::min(most, fitting), FewestSideBySide, MostSideBySide);
}

} // namespace

void putLists(PageBuilder& pages, SmallLists lists, const Typeface& typeface) {
    const auto sheet = std::make_shared<const SmallListSheet>(std::move(lists), typeface);
    const QRectF space = pages.space();
    const std::size_t columns = sideBySide(space.width(), sheet->wantedWidth());
    const qreal width =
        (space.width() + SmallListColumnGap) / static_cast<qreal>(columns) - SmallListColumnGap;
    const FlowSizes sizes{SmallListTitleHeight + SmallListHeadHeight, SmallListRowHeight,
                          SmallListGap, space.height(), bodyPlace(pages.orientation()).height()};
    std::size_t page = 0;
    qreal lowest = 0;
    for (const ListPart& part : flowLists(sheet->rowCounts(), columns, sizes)) {
        for (; page < part.column / columns; ++page, lowest = 0)
            pages.newPage();
        const qreal x = static_cast<qreal>(part.column % columns) * (width + SmallListColumnGap);
        const qreal height = sizes.height(part.endRow - part.firstRow);
        const QPointF corner = pages.space().topLeft() + QPointF(x, part.top);
        pages.putAt({corner, QSizeF(width, height)},
                    [sheet, part](QPainter& painter, const QRectF& place) {
                        sheet->paint(painter, place, part);
                    });
        lowest = std::max(lowest, part.top + height);
    }
    pages.skip(lowest);
}

void paintSectionHeading(QPainter& painter, const QRectF& place, const QString& text,
                         const QString& remark, const Typeface& typeface) {
    QRectF line = place;
    line.setHeight(place.height() * 0.7);
    typeface.draw(painter, line, Qt::AlignLeft, text, {12.5, true, Ink});
    typeface.draw(painter, line, Qt::AlignRight, remark, {7.5, false, Quiet});
}

} // namespace kavela::report
