#include "report/course_drawing.h"

#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace kavela::report {

namespace {

constexpr QColor Water(0xe6, 0xf0, 0xf5);
constexpr QColor Touched(0xf2, 0xa9, 0x1c);
constexpr QColor Missed(0xb8, 0x2a, 0x2a);
constexpr QColor White(0xff, 0xff, 0xff);
constexpr qreal CourseTitleHeight = 17 * Point;
constexpr qreal CourseKeyHeight = 13 * Point;
constexpr qreal CourseRowHeight = 74 * Point;
constexpr qreal SectionHeight = 11 * Point; ///< of the titles above the river
constexpr qreal HalfRiver = 15 * Point;
constexpr qreal Swing = 6 * Point; ///< of the river to either side
constexpr qreal PatchHeight = 9.5 * Point;
constexpr qreal PatchWidth = 12 * Point;
constexpr qreal PoleLength = 4 * Point;
constexpr qreal End = 10 * Point; ///< of the river before the first gate and after the last
constexpr std::size_t GatesInRow = 26;
constexpr qreal WidestStep = 40 * Point;
constexpr std::int64_t MissedGateSeconds = 50;

/// A triangle that points against the stream, to the left.
void paintCourseUpstreamMark(QPainter& painter, const QPointF& tip) {
    constexpr qreal Half = 2.4 * Point;
    constexpr qreal Length = 3.6 * Point;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Accent);
    painter.drawPolygon(
        QPolygonF({tip, tip + QPointF(Length, Half), tip + QPointF(Length, -Half)}));
}

/// A round-cornered patch with a text in it.
void paintPatch(QPainter& painter, const QPointF& centre, const QString& text, const QColor& fill,
                const QColor& edge, const TextStyle& style, const Typeface& typeface) {
    const QRectF patch(centre.x() - PatchWidth / 2, centre.y() - PatchHeight / 2, PatchWidth,
                       PatchHeight);
    painter.setPen(QPen(edge, 0.6 * Point));
    painter.setBrush(fill);
    painter.drawRoundedRect(patch, 3 * Point, 3 * Point);
    typeface.draw(painter, patch.adjusted(Point, 0, -Point, 0), Qt::AlignHCenter, text, style);
}

QColor penaltyColour(std::int64_t penalty) {
    return penalty >= MissedGateSeconds ? Missed : Touched;
}

QColor numberColour(std::int64_t penalty) {
    return penalty >= MissedGateSeconds ? White : Ink;
}

void paintPenalty(QPainter& painter, const QPointF& centre, std::int64_t penalty,
                  const Typeface& typeface) {
    const QColor colour = penaltyColour(penalty);
    const TextStyle style{7.5, true, numberColour(penalty)};
    paintPatch(painter, centre, QString::number(penalty), colour, colour, style, typeface);
}

/// One row of the drawing.
class CourseRow {
public:
    CourseRow(std::span<const RunGate> gates, const RunCourse& course, const QRectF& place,
              const Typeface& typeface)
        : m_gates(gates), m_course(course), m_place(place), m_typeface(typeface) {
        const auto count = static_cast<qreal>(gates.size());
        m_step = std::min(WidestStep, (place.width() - 2 * End) / count);
        m_place.setWidth(m_step * count + 2 * End);
    }

    void paint(QPainter& painter) const {
        paintWater(painter);
        for (std::size_t i = 0; i < m_gates.size(); ++i) {
            if (i == 0 || m_gates[i].section != m_gates[i - 1].section)
                paintSection(painter, i);
            paintGate(painter, i);
        }
    }

private:
    [[nodiscard]] qreal gateX(std::size_t gate) const {
        return m_place.left() + End + (static_cast<qreal>(gate) + 0.5) * m_step;
    }

    /// The middle of the river.
    [[nodiscard]] qreal middle(qreal x) const {
        const qreal turn = 2 * std::numbers::pi * (x - m_place.left()) / (170 * Point);
        return m_place.top() + SectionHeight + Swing + HalfRiver + 2 * Point +
               Swing * std::sin(turn);
    }

    void paintWater(QPainter& painter) const {
        constexpr int Pieces = 120;
        QPolygonF left;
        QPolygonF right;
        for (int i = 0; i <= Pieces; ++i) {
            const qreal x = m_place.left() + m_place.width() * i / Pieces;
            left << QPointF(x, middle(x) - HalfRiver);
            right << QPointF(x, middle(x) + HalfRiver);
        }
        QPolygonF water = left;
        for (auto point = right.rbegin(); point != right.rend(); ++point)
            water << *point;
        painter.setPen(Qt::NoPen);
        painter.setBrush(Water);
        painter.drawPolygon(water);
        painter.setPen(QPen(AccentLight, Point));
        painter.drawPolyline(left);
        painter.drawPolyline(right);
        for (const qreal x : {m_place.left() + 4 * Point, m_place.right() - 4 * Point})
            paintStream(painter, {x, middle(x)});
    }

    /// Where the water goes: an angle that points to the right.
    void paintStream(QPainter& painter, const QPointF& tip) const {
        constexpr qreal Size = 3 * Point;
        painter.setPen(QPen(AccentLight, 1.2 * Point));
        painter.drawPolyline(
            QPolygonF({tip + QPointF(-Size, -Size), tip, tip + QPointF(-Size, Size)}));
    }

    void paintSection(QPainter& painter, std::size_t first) const {
        if (m_course.sectionTitles.empty())
            return;
        std::size_t end = first + 1;
        while (end < m_gates.size() && m_gates[end].section == m_gates[first].section)
            ++end;
        const qreal left = first == 0 ? m_place.left() : gateX(first) - m_step / 2;
        const qreal right = gateX(end - 1) + m_step / 2;
        if (first > 0) {
            painter.setPen(QPen(Quiet, 0.6 * Point, Qt::DashLine));
            painter.drawLine(QPointF(left, m_place.top()),
                             QPointF(left, m_place.bottom() - 3 * Point));
        }
        if (m_gates[first].section < m_course.sectionTitles.size())
            m_typeface.draw(painter,
                            {left + 3 * Point, m_place.top(), right - left - 5 * Point,
                             SectionHeight - 2 * Point},
                            Qt::AlignLeft, m_course.sectionTitles[m_gates[first].section], Caption);
    }

    void paintGate(QPainter& painter, std::size_t index) const {
        const RunGate& gate = m_gates[index];
        // An upstream gate hangs in the eddy near a bank, the others now left, now right.
        const qreal side = gate.number % 2 == 0 ? -1 : 1;
        const qreal offset = side * (gate.isUpstream ? 5 : 2.5) * Point;
        const QPointF centre(gateX(index), middle(gateX(index)) + offset);
        painter.setPen(QPen(gate.isUpstream ? Accent : Quiet, 1.3 * Point));
        for (const qreal way : {-1.0, 1.0}) {
            const QPointF pole = centre + QPointF(0, way * PatchHeight / 2);
            painter.drawLine(pole, pole + QPointF(0, way * PoleLength));
        }
        const bool isPenalised = gate.penalty > 0;
        const QColor plain = gate.isUpstream ? Accent : AccentLight;
        const TextStyle number{7.5, gate.isUpstream || isPenalised,
                               isPenalised       ? numberColour(gate.penalty)
                               : gate.isUpstream ? Accent
                                                 : Ink};
        paintPatch(painter, centre, QString::number(gate.number),
                   isPenalised ? penaltyColour(gate.penalty) : White,
                   isPenalised ? penaltyColour(gate.penalty) : plain, number, m_typeface);
        if (gate.isUpstream)
            paintCourseUpstreamMark(painter, centre - QPointF(PatchWidth / 2 + 3 * Point, 0));
        if (isPenalised)
            paintPenalty(painter,
                         {centre.x(), m_place.top() + SectionHeight + 2 * Swing + 2 * HalfRiver +
                                          PatchHeight / 2 + 5 * Point},
                         gate.penalty, m_typeface);
    }

    std::span<const RunGate> m_gates;
    const RunCourse& m_course;
    QRectF m_place;
    const Typeface& m_typeface;
    qreal m_step = 0;
};

/// A label behind what it explains; returns where the next one begins.
qreal paintEntry(QPainter& painter, QRectF line, qreal left, const char* text,
                 const Typeface& typeface) {
    const QString label = said(text);
    line.setLeft(left);
    typeface.draw(painter, line, Qt::AlignLeft, label, Caption);
    return left + typeface.width(label, Caption) + 14 * Point;
}

void paintKey(QPainter& painter, const QRectF& line, const Typeface& typeface) {
    const qreal y = line.center().y();
    const qreal gap = 4 * Point;
    paintCourseUpstreamMark(painter, {line.left(), y});
    qreal left = paintEntry(painter, line, line.left() + 3.6 * Point + gap,
                            KAVELA_TEXT("upstream gate"), typeface);
    for (const std::int64_t penalty : {std::int64_t{2}, MissedGateSeconds}) {
        paintPenalty(painter, {left + PatchWidth / 2, y}, penalty, typeface);
        left = paintEntry(painter, line, left + PatchWidth + gap,
                          penalty == MissedGateSeconds ? KAVELA_TEXT("missed gate")
                                                       : KAVELA_TEXT("touch"),
                          typeface);
    }
}

} // namespace

void putCourse(PageBuilder& pages, const RunCourse& course, const Typeface& typeface) {
    if (course.gates.empty())
        return;
    pages.put(CourseTitleHeight, [=](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, said("Penalties by gate"), ListTitleStyle);
        typeface.draw(painter, place.adjusted(place.width() * 0.4, 0, 0, 0), Qt::AlignRight,
                      course.remark, Caption);
    });
    pages.put(CourseKeyHeight, [=](QPainter& painter, const QRectF& place) {
        paintKey(painter, place, typeface);
        if (course.leftOut > 0)
            typeface.draw(painter, place, Qt::AlignRight,
                          said("and %1 more gates").arg(course.leftOut), Caption);
    });
    pages.skip(5 * Point);
    const std::size_t shown = std::min(course.gates.size(), MostDrawnGates);
    const std::size_t rows = (shown + GatesInRow - 1) / GatesInRow;
    const std::size_t inRow = (shown + rows - 1) / rows;
    for (std::size_t first = 0; first < shown; first += inRow)
        pages.put(CourseRowHeight, [=](QPainter& painter, const QRectF& place) {
            const std::span<const RunGate> gates(course.gates);
            CourseRow(gates.subspan(first, std::min(inRow, shown - first)), course, place, typeface)
                .paint(painter);
        });
}

} // namespace kavela::report
