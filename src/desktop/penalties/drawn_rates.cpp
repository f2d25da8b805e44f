#include "desktop/penalties/drawn_rates.h"

#include "desktop/shell/theme.h"
#include "performance/penalty_charts.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace kavela::desktop {

namespace {
constexpr double GateReach = 14; ///< pixels
constexpr double GateRing = 16;
} // namespace

DrawnRates::DrawnRates(QWidget* parent) : QWidget(parent) {
    setObjectName("drawnRates");
    setFocusPolicy(Qt::StrongFocus); // first: what is told of a part without it stays
    setAccessibleName(tr("Touches on the course"));
    setMinimumSize(240, 140);
}

void DrawnRates::show(report::SharedCourse drawn, const CourseOfRates& rates) {
    m_drawn = std::move(drawn);
    m_rates.clear();
    for (const GateOnCourse& gate : rates.gates) {
        const double percent = 100 * gate.shrunk.rate;
        QString told = tr("Gate %1: %2 %").arg(gate.gate).arg(percent, 0, 'f', 0);
        if (gate.touches)
            told += tr(", %1 of %2 touched").arg(gate.touches->count).arg(gate.touches->of);
        m_rates[static_cast<std::int64_t>(gate.gate)] = {percent, gate.share, told};
    }
    if (m_current && !placeOf(*m_current))
        m_current.reset();
    update();
}

QRectF DrawnRates::picture() const {
    return m_drawn ? m_drawn->pictureIn(QRectF(rect())) : QRectF();
}

std::optional<QPointF> DrawnRates::placeOf(std::int64_t gate) const {
    if (m_drawn)
        for (const coursegate001& drawn : m_drawn->design().gates)
            if (drawn.number == gate)
                return (report::CoursePainting::placeOf(drawn.left, picture()) +
                        report::CoursePainting::placeOf(drawn.right, picture())) /
                       2;
    return {};
}

QString DrawnRates::tellOf(std::int64_t gate) const {
    const auto found = m_rates.find(gate);
    return found == m_rates.end() ? QString() : found->second.told;
}

std::optional<std::int64_t> DrawnRates::gateAt(const QPointF& place) const {
    std::optional<std::int64_t> nearest;
    double reach = GateReach;
    for (const auto& [gate, rate] : m_rates)
        if (const auto at = placeOf(gate)) {
            const double away = std::hypot(at->x() - place.x(), at->y() - place.y());
            if (away <= reach) {
                reach = away;
                nearest = gate;
            }
        }
    return nearest;
}

void DrawnRates::paintEvent(QPaintEvent* /*event*/) {
    if (!m_drawn)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    report::CourseLook look;
    look.hasLines = false;
    look.mark = [this](std::int64_t gate) -> std::optional<report::CourseGateMark> {
        const auto found = m_rates.find(gate);
        if (found == m_rates.end())
            return {};
        return report::touchedGate(found->second.share,
                                   tr("%1 %").arg(found->second.percent, 0, 'f', 0));
    };
    m_drawn->paint(painter, picture(), look);
    if (!m_current || !hasFocus())
        return;
    if (const auto place = placeOf(*m_current)) {
        painter.setPen(QPen(theme::Accent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(*place, GateRing, GateRing);
    }
}

void DrawnRates::mousePressEvent(QMouseEvent* event) {
    const auto gate = event->button() == Qt::LeftButton ? gateAt(event->position()) : std::nullopt;
    if (!gate)
        return;
    m_current = gate;
    update();
    emit gateActivated(*gate);
}

void DrawnRates::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Left)
        step(event->key() == Qt::Key_Right ? 1 : -1);
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && m_current)
        emit gateActivated(*m_current);
    else
        QWidget::keyPressEvent(event);
}

/// Along the course, over gates that were not drawn.
void DrawnRates::step(int by) {
    std::vector<std::int64_t> gates;
    for (const auto& [gate, rate] : m_rates)
        if (placeOf(gate))
            gates.push_back(gate);
    if (gates.empty())
        return;
    const auto at = m_current ? std::ranges::find(gates, *m_current) : gates.end();
    const auto last = std::ssize(gates) - 1;
    const auto next = at == gates.end()
                          ? (by > 0 ? 0 : last)
                          : std::clamp(at - gates.begin() + by, std::ptrdiff_t{0}, last);
    m_current = gates[static_cast<std::size_t>(next)];
    update();
    if (const auto place = placeOf(*m_current))
        QToolTip::showText(mapToGlobal(place->toPoint()), tellOf(*m_current), this);
}

bool DrawnRates::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    if (const auto gate = gateAt(help->pos()))
        QToolTip::showText(help->globalPos(), tellOf(*gate), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace kavela::desktop
