#include "desktop/barrier/line_overlay.h"

#include "desktop/barrier/shaded_line.h"
#include "desktop/shell/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr double EndReach = 10; // pixels round an end that still hit it
constexpr double LineReach = 6;
constexpr double EndRadius = 5;
constexpr double ArrowLength = 34;
constexpr QColor OverlayColour{0xFF, 0xE0, 0x40};
constexpr QColor OtherLineColour{0xF2, 0xF4, 0xF6, 190};
constexpr QColor OverlayShade{0, 0, 0, 150};
constexpr QColor BoatColour{0x56, 0xB4, 0xE9};

double distanceTo(const QLineF& line, const QPointF& place) {
    const QPointF way = line.p2() - line.p1();
    const double square = QPointF::dotProduct(way, way);
    const double along =
        square > 0 ? std::clamp(QPointF::dotProduct(place - line.p1(), way) / square, 0.0, 1.0) : 0;
    return QLineF(line.p1() + along * way, place).length();
}

} // namespace

LineOverlay::LineOverlay(QWidget& over) : QWidget(&over) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Lines over the film"));
    setToolTip(tr("Drag an end of a line, or the line. With the focus here the arrows move it, "
                  "with Shift by ten pixels; Tab goes from end to end, Esc leaves."));
    setGeometry(over.rect());
    over.installEventFilter(this);
}

bool LineOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void LineOverlay::setFilmSize(QSize size) {
    m_film = size;
    update();
}

void LineOverlay::setLines(std::vector<slitline001> lines, std::size_t current) {
    if (m_grip) // what is dragged stays under the pointer
        return;
    m_lines = std::move(lines);
    m_current = current;
    update();
}

void LineOverlay::setTool(Tool tool) {
    m_tool = tool;
    m_isDrawing = false;
    setCursor(tool == Tool::None ? Qt::ArrowCursor : Qt::CrossCursor);
    update();
}

/// As the film is painted below: as large as fits, in the middle.
QRectF LineOverlay::picture() const {
    if (m_film.isEmpty())
        return {};
    QRect picture(QPoint(), m_film.scaled(size(), Qt::KeepAspectRatio));
    picture.moveCenter(rect().center());
    return picture;
}

QPointF LineOverlay::placeOf(const QPointF& film) const {
    const QRectF picture = this->picture();
    return picture.topLeft() + QPointF(film.x() / m_film.width() * picture.width(),
                                       film.y() / m_film.height() * picture.height());
}

QPointF LineOverlay::filmPlace(const QPointF& place) const {
    const QRectF picture = this->picture();
    if (picture.isEmpty())
        return {};
    const QPointF share = place - picture.topLeft();
    return {std::clamp(share.x() / picture.width(), 0.0, 1.0) * m_film.width(),
            std::clamp(share.y() / picture.height(), 0.0, 1.0) * m_film.height()};
}

QLineF LineOverlay::shown(const slitline001& line) const {
    return {placeOf({line.x1, line.y1}), placeOf({line.x2, line.y2})};
}

/// The current line first, since others may cross it.
std::optional<LineOverlay::Grip> LineOverlay::gripAt(const QPointF& place) const {
    std::optional<Grip> found;
    for (std::size_t line = 0; line < m_lines.size(); ++line) {
        const QLineF on = shown(m_lines[line]);
        std::optional<Grip> grip;
        if (QLineF(on.p1(), place).length() <= EndReach)
            grip = Grip{line, 0};
        else if (QLineF(on.p2(), place).length() <= EndReach)
            grip = Grip{line, 1};
        else if (distanceTo(on, place) <= LineReach)
            grip = Grip{line, 2};
        if (grip && (!found || line == m_current))
            found = grip;
    }
    return found;
}

void LineOverlay::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || m_film.isEmpty())
        return;
    m_from = m_to = filmPlace(event->position());
    if (m_tool == Tool::None)
        m_grip = gripAt(event->position());
    m_isDrawing = m_tool != Tool::None;
    if (m_grip) {
        m_current = m_grip->line;
        m_keyEnd = m_grip->end;
        emit lineChosen(m_current);
    }
    update();
}

void LineOverlay::mouseMoveEvent(QMouseEvent* event) {
    if (!m_grip && !m_isDrawing) {
        if (m_tool == Tool::None)
            setCursor(gripAt(event->position()) ? Qt::SizeAllCursor : Qt::ArrowCursor);
        return;
    }
    dragTo(filmPlace(event->position()));
}

void LineOverlay::dragTo(const QPointF& to) {
    if (m_grip)
        moveEnd(to - m_to);
    m_to = to;
    update();
}

/// An end stops at the edge of the film; a whole line keeps its length there.
void LineOverlay::moveEnd(const QPointF& by) {
    const std::size_t at = m_grip ? m_grip->line : m_current;
    const int end = m_grip ? m_grip->end : m_keyEnd;
    if (at >= m_lines.size())
        return;
    slitline001& line = m_lines[at];
    QPointF way = by;
    const auto keep = [&](double x, double y) {
        way.setX(std::clamp(way.x(), -x, m_film.width() - x));
        way.setY(std::clamp(way.y(), -y, m_film.height() - y));
    };
    if (end != 1)
        keep(line.x1, line.y1);
    if (end != 0)
        keep(line.x2, line.y2);
    if (end != 1) {
        line.x1 += way.x();
        line.y1 += way.y();
    }
    if (end != 0) {
        line.x2 += way.x();
        line.y2 += way.y();
    }
    update();
}

void LineOverlay::mouseReleaseEvent(QMouseEvent* event) {
    if (m_grip || m_isDrawing)
        dragTo(filmPlace(event->position()));
    const auto grip = std::exchange(m_grip, std::nullopt);
    const bool isDrawing = std::exchange(m_isDrawing, false);
    if (grip && grip->line < m_lines.size()) {
        const slitline001 line = m_lines[grip->line];
        emit lineDrawn(grip->line, {line.x1, line.y1}, {line.x2, line.y2});
    } else if (isDrawing && m_tool == Tool::Boat) {
        emit boatDrawn(QRectF(m_from, m_to).normalized());
    } else if (isDrawing) {
        emit lineDrawn(m_lines.size(), m_from, m_to);
    }
    update();
}

/// The arrows are this widget's while it has the focus, and else the hair line's.
bool LineOverlay::event(QEvent* event) {
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey)
        return QWidget::event(event);
    auto* const key = static_cast<QKeyEvent*>(event);
    const bool isOwn = key->key() == Qt::Key_Left || key->key() == Qt::Key_Right ||
                       key->key() == Qt::Key_Up || key->key() == Qt::Key_Down ||
                       key->key() == Qt::Key_Escape || key->key() == Qt::Key_Tab;
    if (isOwn && !(key->modifiers() & (Qt::AltModifier | Qt::ControlModifier))) {
        if (event->type() == QEvent::KeyPress)
            keyPressEvent(key);
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void LineOverlay::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    QPointF way;
    switch (event->key()) {
    case Qt::Key_Left:
        way = {-step, 0};
        break;
    case Qt::Key_Right:
        way = {step, 0};
        break;
    case Qt::Key_Up:
        way = {0, -step};
        break;
    case Qt::Key_Down:
        way = {0, step};
        break;
    case Qt::Key_Tab:
        m_keyEnd = (m_keyEnd + 1) % 3;
        update();
        return;
    case Qt::Key_Escape:
        setTool(Tool::None);
        emit left();
        return;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    moveEnd(way);
    if (m_current < m_lines.size()) {
        const slitline001 line = m_lines[m_current];
        emit lineNudged(m_current, {line.x1, line.y1}, {line.x2, line.y2});
    }
}

void LineOverlay::paintLine(QPainter& painter, std::size_t at) const {
    const slitline001& line = m_lines[at];
    const bool isCurrent = at == m_current;
    const QColor colour = isCurrent ? OverlayColour : OtherLineColour;
    const QLineF on = shown(line);
    drawShaded(painter, on, colour, isCurrent ? 2 : 1);
    // Where boats go: away from the side that they come from, at right angles.
    QLineF arrow = on.normalVector(); // to the left of the line on a screen
    arrow.setLength(line.fromLeft ? -ArrowLength : ArrowLength);
    arrow.translate(on.pointAt(0.5) - arrow.p1());
    drawShaded(painter, arrow, colour, isCurrent ? 2 : 1);
    for (const double turn : {150.0, -150.0}) {
        QLineF head = arrow;
        head.translate(arrow.p2() - arrow.p1());
        head.setAngle(arrow.angle() + turn);
        head.setLength(ArrowLength / 3);
        drawShaded(painter, head, colour, isCurrent ? 2 : 1);
    }
    if (isCurrent) {
        for (int end = 0; end < 2; ++end) {
            const bool isOfKeys = hasFocus() && (m_keyEnd == end || m_keyEnd == 2);
            painter.setBrush(isOfKeys ? colour : OverlayShade);
            painter.setPen(QPen(colour, 2));
            painter.drawEllipse(end == 0 ? on.p1() : on.p2(), EndRadius, EndRadius);
        }
        if (line.boatWidth > 0) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(BoatColour, 2, Qt::DashLine));
            painter.drawRect(
                QRectF(placeOf({line.boatX, line.boatY}),
                       placeOf({line.boatX + line.boatWidth, line.boatY + line.boatHeight})));
        }
    }
    painter.setPen(colour);
    painter.drawText(on.p1() + QPointF(EndReach, -EndRadius),
                     line.split == 0 ? tr("Start") : QString::number(line.split));
}

void LineOverlay::paintEvent(QPaintEvent*) {
    if (m_film.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t line = 0; line < m_lines.size(); ++line)
        paintLine(painter, line);
    if (!m_isDrawing)
        return;
    if (m_tool == Tool::Boat) {
        painter.setPen(QPen(BoatColour, 2));
        painter.drawRect(QRectF(placeOf(m_from), placeOf(m_to)).normalized());
    } else {
        drawShaded(painter, {placeOf(m_from), placeOf(m_to)}, OverlayColour, 2);
    }
}

} // namespace kavela::desktop
