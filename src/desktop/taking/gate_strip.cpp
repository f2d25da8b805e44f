#include "desktop/taking/gate_strip.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int GateHeight = 44;
constexpr int GateRowHeight = 30; ///< of each row, where the gates stand in several
constexpr qreal WidestGate = 48;
constexpr int NarrowestGate = 26; ///< that its number, and the arrow before it, fit
constexpr QColor Upstream{0xC9, 0x2A, 0x2A};
constexpr QColor Downstream{0x0B, 0x84, 0x3A};
constexpr QColor Touch{0xF2, 0xB1, 0x34};
constexpr QColor Missed{0xD6, 0x33, 0x33};

} // namespace

GateStrip::GateStrip(QWidget* parent) : QWidget(parent), m_rows(WidestGate, NarrowestGate) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Penalties at the gates"));
}

QSize GateStrip::sizeHint() const {
    return {400, grown(*this, m_rows.count() == 1 ? GateHeight : m_rows.count() * GateRowHeight)};
}

QSize GateStrip::minimumSizeHint() const {
    return {grown(*this, NarrowestGate), sizeHint().height()};
}

void GateStrip::fitRows() {
    if (m_rows.fit(m_gates, width(), growthOf(*this)))
        updateGeometry();
}

void GateStrip::resizeEvent(QResizeEvent*) {
    fitRows();
}

void GateStrip::setCourse(int gates, const std::vector<std::int64_t>& upGates) {
    m_gates = std::max(gates, 0);
    m_upGates = upGates;
    fitRows();
    setCurrent(m_current);
}

void GateStrip::setPenalties(const std::vector<std::int64_t>& penalties) {
    m_penalties = penalties;
    update();
}

void GateStrip::setCurrent(int gate) {
    const int before = m_current;
    m_current = std::clamp(gate, 1, std::max(m_gates, 1));
    update();
    if (m_current != before)
        emit currentChanged(m_current);
}

bool GateStrip::isUpstream(int gate) const {
    return std::ranges::find(m_upGates, gate) != m_upGates.end();
}

std::int64_t GateStrip::penaltyAt(int gate) const {
    const auto index = static_cast<std::size_t>(gate - 1);
    return index < m_penalties.size() ? m_penalties[index] : 0;
}

QRectF GateStrip::placeOf(int gate) const {
    return m_rows.placeOf(gate - 1, size());
}

int GateStrip::gateAt(QPointF place) const {
    for (int gate = 1; gate <= m_gates; ++gate)
        if (placeOf(gate).contains(place))
            return gate;
    return 0;
}

void GateStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_gates == 0) {
        painter.setPen(theme::quietText(palette()));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                         tr("No gates yet: set up the course with Ctrl+G to note penalties."));
        return;
    }
    for (int gate = 1; gate <= m_gates; ++gate)
        paintGate(painter, gate);
}

/// Number above, penalty below; two bars, as the poles of a gate, tell its direction by colour, and
/// an arrow tells an upstream gate to those who do not see that.
void GateStrip::paintGate(QPainter& painter, int gate) const {
    const QRectF place = placeOf(gate);
    const std::int64_t penalty = penaltyAt(gate);
    const QColor ground = penalty == 0 ? theme::surface(palette()) : penalty < 50 ? Touch : Missed;
    painter.setPen(gate == m_current ? QPen(theme::Accent, 2) : QPen(theme::hairline(palette())));
    painter.setBrush(ground);
    painter.drawRoundedRect(place, 4, 4);
    const QColor poles = isUpstream(gate) ? Upstream : Downstream;
    for (const qreal x : {place.left() + 3, place.right() - 5})
        painter.fillRect(QRectF(x, place.top() + 5, 2, place.height() / 2 - 6), poles);
    painter.setFont(theme::captionFont(*this));
    const QColor text = penalty == 0   ? palette().color(QPalette::WindowText)
                        : penalty < 50 ? QColor(Qt::black)
                                       : QColor(Qt::white);
    painter.setPen(text);
    const QRectF upper(place.left(), place.top(), place.width(), place.height() / 2);
    painter.drawText(upper, Qt::AlignCenter,
                     (isUpstream(gate) ? QStringLiteral("↑") : QString()) + QString::number(gate));
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(upper.translated(0, place.height() / 2), Qt::AlignCenter,
                     penalty == 0 ? QStringLiteral("·") : QString::number(penalty));
}

void GateStrip::mousePressEvent(QMouseEvent* event) {
    if (const int gate = gateAt(event->position()); gate > 0)
        emit gateClicked(gate);
}

bool GateStrip::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int gate = gateAt(help->pos());
    if (gate > 0)
        QToolTip::showText(help->globalPos(),
                           (isUpstream(gate) ? tr("Gate %1, upstream") : tr("Gate %1")).arg(gate) +
                               tr("\nT touch, F missed, 0 clean; N and P next and previous gate"));
    return true;
}

} // namespace kavela::desktop
