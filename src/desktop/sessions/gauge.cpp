#include "desktop/sessions/gauge.h"

#include "desktop/sessions/session_texts.h"
#include "desktop/shell/theme.h"

#include <QPainter>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int ScaleHeight = 5;         // pixels
constexpr double ValueSize = 1.7;      // of the font
constexpr double LargeValueSize = 3.6; // of the font

} // namespace

Gauge::Gauge(QString name, QString unit, int decimals, QWidget* parent)
    : QWidget(parent), m_name(std::move(name)), m_unit(std::move(unit)), m_decimals(decimals) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    showAccessibly();
}

void Gauge::setRange(std::optional<std::pair<double, double>> range) {
    m_range = range;
    update();
}

void Gauge::setValue(std::optional<double> value) {
    if (value == m_value)
        return;
    m_value = value;
    showAccessibly();
    update();
}

void Gauge::setNote(const QString& note) {
    if (note == m_note)
        return;
    m_note = note;
    showAccessibly();
    update();
}

void Gauge::setLarge(bool isLarge) {
    m_isLarge = isLarge;
    updateGeometry();
    update();
}

void Gauge::showAccessibly() {
    setAccessibleName(m_name + ": " + text() + (m_note.isEmpty() ? "" : ", " + m_note));
}

QString Gauge::text() const {
    return m_value ? valueText(m_value, m_decimals) + ' ' + m_unit : valueText({}, 0);
}

QString Gauge::rangeText() const {
    if (!m_range)
        return tr("not known");
    return valueText(m_range->first, m_decimals) + " … " + valueText(m_range->second, m_decimals) +
           ' ' + m_unit;
}

QFont Gauge::valueFont() const {
    QFont large = font();
    large.setPointSizeF(font().pointSizeF() * (m_isLarge ? LargeValueSize : ValueSize));
    large.setWeight(QFont::DemiBold);
    return large;
}

QSize Gauge::sizeHint() const {
    const int caption = QFontMetrics(theme::captionFont(*this)).height();
    return {fontMetrics().averageCharWidth() * 14, 2 * theme::SmallSpacing + 2 * caption +
                                                       QFontMetrics(valueFont()).height() +
                                                       ScaleHeight + theme::SmallSpacing};
}

void Gauge::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(theme::hairline(palette()));
    painter.setBrush(theme::surface(palette()));
    painter.drawRoundedRect(frame, theme::SmallSpacing, theme::SmallSpacing);
    const QRectF inside =
        frame.adjusted(theme::Spacing, theme::SmallSpacing, -theme::Spacing, -theme::SmallSpacing);
    painter.setPen(theme::quietText(palette()));
    painter.setFont(theme::captionFont(*this));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, m_name);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, rangeText());
    painter.drawText(inside, Qt::AlignRight | Qt::AlignTop, m_note);
    const double caption = painter.fontMetrics().height();
    const QRectF middle = inside.adjusted(0, caption, 0, -caption - ScaleHeight);
    paintValue(painter, middle);
    paintScale(painter, {inside.left(), middle.bottom(), inside.width(), ScaleHeight});
}

/// The unit stands smaller behind the number, on its line.
void Gauge::paintValue(QPainter& painter, const QRectF& area) const {
    painter.setFont(valueFont());
    painter.setPen(palette().color(m_value ? QPalette::WindowText : QPalette::PlaceholderText));
    const QString number = valueText(m_value, m_decimals);
    const QFontMetricsF metrics(valueFont());
    const double line = area.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    painter.drawText(QPointF(area.left(), line), number);
    if (!m_value)
        return;
    painter.setFont(font());
    painter.setPen(theme::quietText(palette()));
    painter.drawText(
        QPointF(area.left() + metrics.horizontalAdvance(number) + theme::SmallSpacing, line),
        m_unit);
}

void Gauge::paintScale(QPainter& painter, const QRectF& area) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::hairline(palette()));
    const double radius = area.height() / 2;
    painter.drawRoundedRect(area, radius, radius);
    if (!m_value || !m_range || m_range->second <= m_range->first)
        return;
    const double share =
        std::clamp((*m_value - m_range->first) / (m_range->second - m_range->first), 0.0, 1.0);
    painter.setBrush(theme::isDark(palette()) ? theme::Accent.lighter(150) : theme::Accent);
    painter.drawRoundedRect(QRectF(area.left(), area.top(),
                                   std::max(area.height(), share * area.width()), area.height()),
                            radius, radius);
}

} // namespace kavela::desktop
