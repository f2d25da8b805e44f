#include "report/gate_chart.h"

#include "report/list_styles.h"
#include "report/said.h"
#include "report/small_lists.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace kavela::report {

namespace {

constexpr qreal TallestBar = 66 * Point;
constexpr qreal CountHeight = 11 * Point; ///< above the bars
constexpr qreal GateHeight = 22 * Point;  ///< below them
constexpr qreal WidestGate = 36 * Point;
constexpr qreal BarShare = 0.52; ///< of the width of a gate
constexpr qreal TallestCount = 11 * Point;
constexpr qreal NarrowestLabel = 9 * Point;
constexpr qreal Swatch = 6 * Point;
constexpr qreal KeyHeight = 14 * Point;

/// A small triangle that points against the stream: upwards.
void paintUpstreamMark(QPainter& painter, const QPointF& top) {
    constexpr qreal Half = 2.6 * Point;
    constexpr qreal Height = 4.4 * Point;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Accent);
    painter.drawPolygon(
        QPolygonF({top, top + QPointF(Half, Height), top + QPointF(-Half, Height)}));
}

QString counted(std::int64_t count, const char* one, const char* more) {
    return QString::fromStdString(countedWords(count, one, more));
}

QString remark(const CoursePenalties& penalties) {
    std::int64_t touches = 0;
    std::int64_t missed = 0;
    for (const GatePenalties& gate : penalties.gates) {
        touches += gate.touches;
        missed += gate.missed;
    }
    return counted(touches, "touch", "touches") + QStringLiteral(", ") +
           counted(missed, "missed gate", "missed gates") + said(" in ") +
           counted(static_cast<std::int64_t>(penalties.countedRuns), "run", "runs");
}

class GateChart {
public:
    GateChart(CoursePenalties penalties, Typeface typeface)
        : m_penalties(std::move(penalties)), m_typeface(std::move(typeface)) {
        for (const GatePenalties& gate : m_penalties.gates)
            m_most = std::max(m_most, gate.touches + gate.missed);
    }

    [[nodiscard]] qreal height() const {
        return CountHeight + oneCount() * static_cast<qreal>(m_most) + GateHeight;
    }

    void paint(QPainter& painter, const QRectF& place) const {
        const qreal width =
            std::min(WidestGate, place.width() / static_cast<qreal>(m_penalties.gates.size()));
        const qreal base = place.bottom() - GateHeight;
        QRectF slot(place.left(), place.top(), width, base - place.top());
        for (const GatePenalties& gate : m_penalties.gates) {
            paintBar(painter, slot, gate);
            if (width >= NarrowestLabel)
                paintGate(painter, {slot.left(), base, width, GateHeight}, gate);
            slot.moveLeft(slot.right());
        }
        drawRule(painter, {place.left(), base, slot.left() - place.left(), 0}, base, Quiet);
    }

    void paintKey(QPainter& painter, QRectF line) const {
        paintEntry(painter, line, AccentLight, KAVELA_TEXT("touch"));
        paintEntry(painter, line, Accent, KAVELA_TEXT("missed gate"));
        paintUpstreamMark(painter, {line.left() + Swatch / 2, line.center().y() - 2.2 * Point});
        line.setLeft(line.left() + Swatch * 1.6);
        m_typeface.draw(painter, line, Qt::AlignLeft, said("upstream gate"), Caption);
    }

private:
    /// The height of one penalty in a bar.
    [[nodiscard]] qreal oneCount() const {
        return std::min(TallestCount, TallestBar / static_cast<qreal>(m_most));
    }

    void paintEntry(QPainter& painter, QRectF& line, const QColor& colour, const char* text) const {
        const QString label = said(text);
        painter.fillRect(QRectF(line.left(), line.center().y() - Swatch / 2, Swatch, Swatch),
                         colour);
        line.setLeft(line.left() + Swatch * 1.6);
        m_typeface.draw(painter, line, Qt::AlignLeft, label, Caption);
        line.setLeft(line.left() + m_typeface.width(label, Caption) + 2 * Swatch);
    }

    void paintBar(QPainter& painter, const QRectF& slot, const GatePenalties& gate) const {
        const std::int64_t count = gate.touches + gate.missed;
        if (count == 0)
            return;
        const qreal one = oneCount();
        const qreal bar = slot.width() * BarShare;
        const qreal left = slot.center().x() - bar / 2;
        const qreal touched = one * static_cast<qreal>(gate.touches);
        const qreal top = slot.bottom() - one * static_cast<qreal>(count);
        painter.fillRect(QRectF(left, slot.bottom() - touched, bar, touched), AccentLight);
        painter.fillRect(QRectF(left, top, bar, one * static_cast<qreal>(gate.missed)), Accent);
        if (slot.width() >= NarrowestLabel)
            m_typeface.draw(painter, {slot.left(), top - CountHeight, slot.width(), CountHeight},
                            Qt::AlignHCenter, QString::number(count), Caption);
    }

    void paintGate(QPainter& painter, QRectF place, const GatePenalties& gate) const {
        place.setHeight(place.height() * 0.6);
        m_typeface.draw(painter, place, Qt::AlignHCenter, QString::number(gate.gate),
                        {7.5, gate.isUpstream, gate.isUpstream ? Accent : Ink});
        if (gate.isUpstream)
            paintUpstreamMark(painter, {place.center().x(), place.bottom()});
    }

    CoursePenalties m_penalties;
    Typeface m_typeface;
    std::int64_t m_most = 1;
};

} // namespace

void putGateChart(PageBuilder& pages, const CoursePenalties& penalties, const Typeface& typeface) {
    if (penalties.gates.empty())
        return;
    const GateChart chart(penalties, typeface);
    if (pages.space().height() < SectionHeadingHeight + KeyHeight + chart.height())
        pages.newPage();
    pages.put(SectionHeadingHeight,
              [text = remark(penalties), typeface](QPainter& painter, const QRectF& place) {
                  paintSectionHeading(painter, place, said("Penalties by gate"), text, typeface);
              });
    pages.put(KeyHeight,
              [chart](QPainter& painter, const QRectF& place) { chart.paintKey(painter, place); });
    pages.put(chart.height(),
              [chart](QPainter& painter, const QRectF& place) { chart.paint(painter, place); });
}

} // namespace kavela::report
