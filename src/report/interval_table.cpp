#include "report/interval_table.h"

#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace kavela::report {

namespace {

constexpr qreal IntervalRowHeight = 11.4 * Point;
constexpr qreal IntervalHeadHeight = 12 * Point;
constexpr qreal IntervalCellGap = 7 * Point;
constexpr qreal IntervalDot = 2.1 * Point;
constexpr qreal IntervalRoom = 6 * Point; ///< at both ends of the scale

class IntervalSheet {
public:
    IntervalSheet(IntervalTable table, Typeface typeface)
        : m_table(std::move(table)), m_typeface(std::move(typeface)) {
        for (const IntervalRow& row : m_table.rows) {
            if (row.value)
                reach(*row.value);
            if (row.interval) {
                reach(row.interval->low);
                reach(row.interval->high);
            }
        }
        if (m_to - m_from < std::numeric_limits<float>::min())
            m_to = m_from + 1;
    }

    void paint(QPainter& painter, const QRectF& place) const {
        QRectF line(place.left(), place.top(), place.width(), IntervalHeadHeight);
        paintHead(painter, line);
        const QRectF drawing = cell(line, m_table.drawn);
        QRectF rows = drawing;
        rows.setTop(line.bottom());
        rows.setBottom(place.bottom());
        paintZero(painter, rows);
        for (const IntervalRow& row : m_table.rows) {
            line = {line.left(), line.bottom(), line.width(), IntervalRowHeight};
            paintRow(painter, line, row);
        }
    }

private:
    /// The scale holds 0 and all that is drawn.
    void reach(double value) {
        if (!std::isfinite(value))
            return;
        m_from = std::min(m_from, value);
        m_to = std::max(m_to, value);
    }

    [[nodiscard]] qreal at(const QRectF& place, double value) const {
        const double bounded = std::isfinite(value) ? std::clamp(value, m_from, m_to) : 0;
        return place.left() + IntervalRoom +
               (place.width() - 2 * IntervalRoom) * (bounded - m_from) / (m_to - m_from);
    }

    [[nodiscard]] QRectF cell(const QRectF& line, std::size_t column) const {
        qreal rest = line.width() + IntervalCellGap;
        for (std::size_t i = 0; i < m_table.columns.size(); ++i)
            rest -= IntervalCellGap + (i == m_table.drawn ? 0 : m_table.columns[i].width * Point);
        QRectF place = line;
        for (std::size_t i = 0; i <= column; ++i) {
            place.setWidth(i == m_table.drawn ? rest : m_table.columns[i].width * Point);
            if (i < column)
                place.moveLeft(place.right() + IntervalCellGap);
        }
        return place;
    }

    void paintHead(QPainter& painter, const QRectF& line) const {
        for (std::size_t i = 0; i < m_table.columns.size(); ++i)
            if (i != m_table.drawn)
                m_typeface.draw(painter, cell(line, i), m_table.columns[i].alignment,
                                m_table.columns[i].title, HeadStyle);
        const QRectF scale = cell(line, m_table.drawn);
        const auto write = [&](double value) {
            constexpr qreal Half = 20 * Point;
            m_typeface.draw(painter, {at(scale, value) - Half, line.top(), 2 * Half, line.height()},
                            Qt::AlignHCenter,
                            saidNumbers(QString::number(value, 'f', std::abs(value) < 10 ? 1 : 0)) +
                                m_table.unit,
                            HeadStyle);
        };
        // An end close to 0 has no room for a number of its own.
        const double least = (m_to - m_from) / 4;
        for (const double end : {m_from, m_to})
            if (std::abs(end) > least)
                write(end);
        m_typeface.draw(painter, {at(scale, 0) - 10 * Point, line.top(), 20 * Point, line.height()},
                        Qt::AlignHCenter, QStringLiteral("0"), HeadStyle);
        drawRule(painter, line, line.bottom(), Accent, 0.6);
    }

    void paintZero(QPainter& painter, const QRectF& rows) const {
        painter.setPen(QPen(Quiet, 0.5 * Point));
        painter.drawLine(QPointF(at(rows, 0), rows.top()), QPointF(at(rows, 0), rows.bottom()));
    }

    void paintRow(QPainter& painter, const QRectF& line, const IntervalRow& row) const {
        if (row.isFirst)
            drawRule(painter, line, line.top(), Quiet, 0.4);
        for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
            if (i == m_table.drawn)
                continue;
            TextStyle style = RowStyle;
            style.isBold = row.standsOut;
            m_typeface.draw(painter, cell(line, i), m_table.columns[i].alignment, row.texts[i],
                            style);
        }
        drawRule(painter, line, line.bottom(), Rule, 0.25);
        paintMark(painter, cell(line, m_table.drawn), row);
    }

    void paintMark(QPainter& painter, const QRectF& place, const IntervalRow& row) const {
        const qreal y = place.center().y();
        if (row.interval) {
            painter.setPen(QPen(Accent, (row.standsOut ? 1.6 : 0.8) * Point));
            painter.drawLine(QPointF(at(place, row.interval->low), y),
                             QPointF(at(place, row.interval->high), y));
        }
        if (!row.value)
            return;
        painter.setPen(QPen(Accent, 0.8 * Point));
        painter.setBrush(row.standsOut ? Accent : QColor(Qt::white));
        painter.drawEllipse(QPointF(at(place, *row.value), y), IntervalDot, IntervalDot);
    }

    IntervalTable m_table;
    Typeface m_typeface;
    double m_from = 0;
    double m_to = 0;
};

} // namespace

qreal heightOf(const IntervalTable& table) {
    return IntervalHeadHeight + static_cast<qreal>(table.rows.size()) * IntervalRowHeight;
}

void putIntervalTable(PageBuilder& pages, IntervalTable table, const Typeface& typeface) {
    const qreal height = heightOf(table);
    const auto sheet = std::make_shared<const IntervalSheet>(std::move(table), typeface);
    pages.put(height,
              [sheet](QPainter& painter, const QRectF& place) { sheet->paint(painter, place); });
}

} // namespace kavela::report
