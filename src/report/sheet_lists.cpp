#include "report/sheet_lists.h"

#include "report/list_styles.h"
#include "report/said.h"
#include "report/wrapped_text.h"

#include <QPainter>

#include <algorithm>
#include <numeric>
#include <span>

namespace kavela::report {

namespace {

constexpr qreal SheetTitleHeight = 16 * Point;
constexpr qreal SheetHeadHeight = 10 * Point;
constexpr qreal SheetLineHeight = 11.4 * Point;
constexpr qreal SheetListGap = 10 * Point;
constexpr qreal SheetCellGap = 7 * Point;
constexpr qreal SheetColumnGap = 24 * Point;
constexpr qreal NoteIndent = 8 * Point;
constexpr std::size_t SheetMostRows = 80; ///< more never fit on a page
constexpr std::size_t MostCellLines = 5;
constexpr std::size_t SheetMostNoteLines = 3;

/// One line of a row: cells, or a line of its note.
struct SheetLine {
    std::vector<QString> cells;
    QString note;
};

using Lines = std::vector<SheetLine>;

qreal restWidth(const SheetList& list, qreal width) {
    qreal rest = width + SheetCellGap;
    for (const SheetColumn& column : list.columns)
        rest -= SheetCellGap + column.points * Point;
    return std::max(rest, 20 * Point);
}

std::vector<QString> cut(std::vector<QString> lines, std::size_t most) {
    if (lines.size() > most) {
        lines.resize(most);
        lines.back() += QChar(0x2026);
    }
    return lines;
}

Lines linesOf(const SheetList& list, const SheetRow& row, qreal width, const Typeface& typeface) {
    Lines lines(row.cells.empty() ? 0 : 1);
    const auto cellAt = [&](std::size_t line, std::size_t column) -> QString& {
        if (line >= lines.size())
            lines.resize(line + 1);
        lines[line].cells.resize(list.columns.size());
        return lines[line].cells[column];
    };
    for (std::size_t i = 0; i < list.columns.size() && i < row.cells.size(); ++i) {
        if (list.columns[i].points > 0) {
            cellAt(0, i) = reportText(row.cells[i]);
            continue;
        }
        const auto texts = cut(
            wrappedLines(row.cells[i], typeface, RowStyle, restWidth(list, width)), MostCellLines);
        for (std::size_t line = 0; line < texts.size(); ++line)
            cellAt(line, i) = texts[line];
    }
    for (const QString& text :
         cut(wrappedLines(row.note, typeface, NoteStyle, width - NoteIndent), SheetMostNoteLines))
        lines.push_back({{}, text});
    return lines;
}

/// A list as it is laid out in a column of the page.
class LaidList {
public:
    LaidList(const SheetList& list, qreal width, const Typeface& typeface)
        : m_list(list), m_typeface(typeface), m_width(width) {
        for (std::size_t i = 0; i < std::min(list.rows.size(), SheetMostRows); ++i)
            m_rows.push_back(linesOf(list, list.rows[i], width, typeface));
        for (const Lines& row : m_rows)
            m_wanted += row.size();
        m_wanted += list.rows.size() > SheetMostRows;
    }

    [[nodiscard]] std::size_t wantedLines() const { return m_wanted; }
    [[nodiscard]] qreal overhead() const {
        return SheetTitleHeight + (hasHead() ? SheetHeadHeight : 0);
    }
    [[nodiscard]] qreal height(std::size_t lines) const {
        return overhead() + static_cast<qreal>(lines) * SheetLineHeight;
    }

    void put(PageBuilder& pages, const QPointF& corner, std::size_t lines) const {
        QRectF place(corner, QSizeF(m_width, SheetTitleHeight));
        write(pages, place, Qt::AlignLeft, m_list.title, ListTitleStyle);
        place = {place.left(), place.bottom(), m_width, hasHead() ? SheetHeadHeight : 0};
        if (hasHead())
            putHead(pages, place);
        place = {place.left(), place.bottom(), m_width, SheetLineHeight};
        for (const SheetLine& line : shownLines(lines)) {
            putLine(pages, place, line);
            place.translate(0, SheetLineHeight);
        }
    }

private:
    [[nodiscard]] bool hasHead() const {
        return std::ranges::any_of(m_list.columns,
                                   [](const SheetColumn& c) { return !c.title.isEmpty(); });
    }

    /// Whole rows only; the last line says how many are left out.
    [[nodiscard]] Lines shownLines(std::size_t room) const {
        if (room == 0)
            return {};
        Lines shown;
        const bool isCut = m_wanted > room || m_rows.size() < m_list.rows.size();
        const std::size_t most = isCut ? room - 1 : room;
        std::size_t row = 0;
        for (; row < m_rows.size() && shown.size() + m_rows[row].size() <= most; ++row)
            shown.insert(shown.end(), m_rows[row].begin(), m_rows[row].end());
        // A first row that is too high shows how it begins: better than a number alone.
        if (row == 0 && most > 0 && !m_rows.empty()) {
            shown.assign(m_rows[0].begin(), m_rows[0].begin() + static_cast<std::ptrdiff_t>(most));
            ++row;
        }
        if (row < m_list.rows.size())
            shown.push_back({{}, said("and %1 more").arg(m_list.rows.size() - row)});
        return shown;
    }

    void write(PageBuilder& pages, const QRectF& place, Qt::Alignment alignment,
               const QString& text, const TextStyle& style) const {
        if (!text.isEmpty())
            pages.putAt(place, [=, typeface = m_typeface](QPainter& painter, const QRectF& at) {
                typeface.draw(painter, at, alignment, text, style);
            });
    }

    template <class Write>
    void forCells(const QRectF& line, const Write& writeCell) const {
        QRectF cell = line;
        for (std::size_t i = 0; i < m_list.columns.size(); ++i) {
            const qreal points = m_list.columns[i].points;
            cell.setWidth(points > 0 ? points * Point : restWidth(m_list, m_width));
            writeCell(cell, i);
            cell.moveLeft(cell.right() + SheetCellGap);
        }
    }

    void putHead(PageBuilder& pages, const QRectF& place) const {
        forCells(place, [&](const QRectF& cell, std::size_t i) {
            write(pages, cell, m_list.columns[i].alignment, m_list.columns[i].title, HeadStyle);
        });
        pages.putAt(place, [](QPainter& painter, const QRectF& at) {
            drawRule(painter, at, at.bottom(), Accent, 0.6);
        });
    }

    void putLine(PageBuilder& pages, const QRectF& place, const SheetLine& line) const {
        forCells(place, [&](const QRectF& cell, std::size_t i) {
            if (i < line.cells.size())
                write(pages, cell, m_list.columns[i].alignment, line.cells[i], RowStyle);
        });
        write(pages, place.adjusted(NoteIndent, 0, 0, 0), Qt::AlignLeft, line.note, NoteStyle);
    }

    const SheetList& m_list;
    const Typeface& m_typeface;
    qreal m_width;
    std::vector<Lines> m_rows;
    std::size_t m_wanted = 0;
};

qreal wantedHeight(std::span<const LaidList> lists) {
    qreal height = 0;
    for (const LaidList& list : lists)
        height += list.height(list.wantedLines()) + SheetListGap;
    return height;
}

/// How many of the lists stand in the left column: so that the higher one is as low as can be.
std::size_t leftCount(const std::vector<LaidList>& lists) {
    std::size_t best = 1;
    qreal lowest = 0;
    for (std::size_t count = 1; count < lists.size(); ++count) {
        const std::span<const LaidList> all(lists);
        const qreal height =
            std::max(wantedHeight(all.first(count)), wantedHeight(all.subspan(count)));
        if (count == 1 || height < lowest) {
            best = count;
            lowest = height;
        }
    }
    return best;
}

/// Puts lists below each other.
void putColumn(PageBuilder& pages, std::span<const LaidList> lists, QPointF corner, qreal height) {
    std::vector<std::size_t> wanted;
    qreal left = height + SheetListGap;
    for (const LaidList& list : lists) {
        wanted.push_back(list.wantedLines());
        left -= list.overhead() + SheetListGap;
    }
    const std::vector<std::size_t> lines =
        sharedLines(wanted, static_cast<std::size_t>(std::max(0.0, left / SheetLineHeight)));
    for (std::size_t i = 0; i < lists.size(); ++i) {
        lists[i].put(pages, corner, lines[i]);
        corner.ry() += lists[i].height(lines[i]) + SheetListGap;
    }
}

} // namespace

std::vector<std::size_t> sharedLines(const std::vector<std::size_t>& wanted, std::size_t room) {
    std::vector<std::size_t> order(wanted.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return wanted[i]; });
    std::vector<std::size_t> lines(wanted.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::size_t share = room / (order.size() - i);
        lines[order[i]] = std::min(wanted[order[i]], share);
        room -= lines[order[i]];
    }
    return lines;
}

void putSheetLists(PageBuilder& pages, const std::vector<SheetList>& lists,
                   const Typeface& typeface) {
    if (lists.empty())
        return;
    const QRectF space = pages.space();
    const bool isSingle = lists.size() == 1;
    const qreal width = isSingle ? space.width() : (space.width() - SheetColumnGap) / 2;
    std::vector<LaidList> laid;
    laid.reserve(lists.size());
    for (const SheetList& list : lists)
        laid.emplace_back(list, width, typeface);
    const std::span<const LaidList> all(laid);
    const std::size_t left = leftCount(laid);
    putColumn(pages, all.first(left), space.topLeft(), space.height());
    putColumn(pages, all.subspan(left), space.topLeft() + QPointF(width + SheetColumnGap, 0),
              space.height());
}

} // namespace kavela::report
