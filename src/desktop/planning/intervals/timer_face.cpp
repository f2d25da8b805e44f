#include "desktop/planning/intervals/timer_face.h"

#include "desktop/planning/intervals/interval_texts.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

/// Far enough apart for those who see no red or green, all dark enough for white letters.
QColor groundOf(IntervalPhase phase) {
    switch (phase) {
    case IntervalPhase::Prepare:
        return {0x8A, 0x5A, 0x00};
    case IntervalPhase::Work:
        return {0xB0, 0x2A, 0x1E};
    case IntervalPhase::Rest:
        return {0x0F, 0x5C, 0x8C};
    case IntervalPhase::SetRest:
        return {0x1E, 0x3A, 0x6E};
    case IntervalPhase::End:
        break;
    }
    return {0x2E, 0x33, 0x37};
}

/// The largest letters of a height that let a text into a place.
QFont fontFor(const QWidget& widget, const QString& text, const QSizeF& room, bool isBold) {
    QFont font = widget.font();
    font.setBold(isBold);
    font.setPixelSize(std::max(8, static_cast<int>(room.height())));
    const double wide = QFontMetricsF(font).horizontalAdvance(text);
    if (wide > room.width())
        font.setPixelSize(std::max(8, static_cast<int>(font.pixelSize() * room.width() / wide)));
    return font;
}

} // namespace

TimerFace::TimerFace(QString title, IntervalPlan plan, QWidget* parent)
    : QWidget(parent), m_title(std::move(title)), m_plan(plan) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TimerFace::showMoment(double elapsed, bool isRunning) {
    m_elapsed = elapsed;
    m_isRunning = isRunning;
    update();
}

QString TimerFace::phaseText() const {
    const QString name = tr(phaseName(step().phase));
    return m_isRunning || step().phase == IntervalPhase::End ? name : tr("%1 – paused").arg(name);
}

/// The last second of a phase is its 1, so that 0 is never seen.
QString TimerFace::timeText() const {
    const IntervalStep now = step();
    return durationText(std::ceil(std::max(now.begin + now.length - m_elapsed, 0.0)));
}

QString TimerFace::placeText() const {
    const IntervalStep now = step();
    return tr("Set %1 of %2   ·   Repetition %3 of %4")
        .arg(std::max<std::int64_t>(now.set, 1))
        .arg(m_plan.sets())
        .arg(std::max<std::int64_t>(now.repetition, 1))
        .arg(m_plan.repetitions());
}

QString TimerFace::nextText() const {
    if (step().phase == IntervalPhase::End)
        return tr("Well done.");
    const IntervalStep next = m_plan.step(m_plan.stepAt(m_elapsed) + 1);
    const QString name = tr(phaseName(next.phase));
    return next.phase == IntervalPhase::End
               ? tr("Next: the end")
               : tr("Next: %1 %2").arg(name, durationText(next.length));
}

void TimerFace::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), groundOf(step().phase));
    const double unit = height() / 20.0;
    const double side = unit;
    QRectF line(side, 0, width() - 2 * side, 0);
    const auto write = [&](double gap, double lines, const QString& text, bool isBold,
                           Qt::Alignment alignment, double strength) {
        line.setTop(line.bottom() + gap * unit);
        line.setHeight(lines * unit);
        painter.setFont(fontFor(*this, text, {line.width(), lines * unit * 0.82}, isBold));
        painter.setPen(QColor::fromRgbF(1, 1, 1, static_cast<float>(strength)));
        painter.drawText(line, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                         text);
    };
    write(0.6, 1.2, m_title, false, Qt::AlignHCenter, 0.85);
    write(0.2, 2.8, phaseText(), true, Qt::AlignHCenter, 1);
    write(0, 8.6, timeText(), true, Qt::AlignHCenter, 1);
    write(0, 1.9, placeText(), true, Qt::AlignHCenter, 1);
    write(0.1, 1.5, nextText(), false, Qt::AlignHCenter, 0.9);
    paintBar(painter, {side, height() - 2.5 * unit, width() - 2 * side, 0.9 * unit});
    line = QRectF(side, height() - 1.5 * unit, width() - 2 * side, 0);
    write(0, 1, durationText(std::floor(m_elapsed)), false, Qt::AlignLeft, 0.9);
    line.setBottom(line.top());
    write(0, 1, durationText(m_plan.total()), false, Qt::AlignRight, 0.9);
}

/// Column by column: a session may have more stretches than the window has pixels.
void TimerFace::paintBar(QPainter& painter, const QRectF& place) const {
    painter.fillRect(place.adjusted(-2, -2, 2, 2), QColor(255, 255, 255, 230));
    const int columns = std::max(static_cast<int>(place.width()), 1);
    const double each = m_plan.total() / columns;
    int begin = 0;
    IntervalPhase phase = m_plan.step(m_plan.stepAt(0)).phase;
    for (int column = 1; column <= columns; ++column) {
        const IntervalPhase next = column < columns
                                       ? m_plan.step(m_plan.stepAt((column + 0.5) * each)).phase
                                       : IntervalPhase::End;
        if (next == phase)
            continue;
        painter.fillRect(QRectF(place.left() + begin, place.top(), column - begin, place.height()),
                         groundOf(phase));
        begin = column;
        phase = next;
    }
    const double x = place.left() + place.width() * m_elapsed / std::max(m_plan.total(), 1e-9);
    painter.fillRect(QRectF(place.left(), place.top(), x - place.left(), place.height()),
                     QColor(255, 255, 255, 110));
    painter.fillRect(QRectF(x - 2, place.top() - 6, 4, place.height() + 12), Qt::white);
}

} // namespace kavela::desktop
