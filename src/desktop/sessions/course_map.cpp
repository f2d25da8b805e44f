#include "desktop/sessions/course_map.h"

#include "desktop/sessions/session_texts.h"
#include "desktop/shell/theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::desktop {

namespace {

constexpr double Margin = 44;      // pixels around the whole way
constexpr double MarkerReach = 11; // pixels from a marker's middle
constexpr double ClickReach = 24;  // pixels from the way
constexpr double ClickWay = 4;     // pixels that a click may move
constexpr double LeastExtent = 10; // m: a boat that lies still is not blown up
constexpr double MostZoom = 50;
constexpr double LowShare = 0.05; // of the values may lie below the scale, and as many above

/// The value below which a share of the values lies.
double shareOf(std::vector<double>& values, double share) {
    const auto place = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::ranges::nth_element(values, values.begin() + place);
    return values[static_cast<std::size_t>(place)];
}

} // namespace

CourseMap::CourseMap(QWidget* parent)
    : QWidget(parent), m_figures(std::make_shared<SessionFigures>()) {
    setMouseTracking(true);
    setAccessibleName(tr("Map of the course"));
}

void CourseMap::show(std::shared_ptr<const SessionFigures> figures) {
    m_figures = std::move(figures);
    takeGround();
    takeValues();
    invalidate();
}

void CourseMap::setColouring(Colouring colouring) {
    m_colouring = colouring;
    takeValues();
    invalidate();
}

void CourseMap::invalidate() {
    m_isStale = true;
    update();
}

void CourseMap::resizeEvent(QResizeEvent* /*event*/) {
    invalidate();
}

void CourseMap::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        invalidate();
}

void CourseMap::fit() {
    m_zoom = 1;
    m_pan = {};
    invalidate();
}

void CourseMap::takeValues() {
    m_values.clear();
    m_range.reset();
    std::vector<double> known;
    for (const TrackPlace& point : m_figures->track) {
        std::optional<double> value;
        if (m_colouring == Colouring::StrokeRate) {
            if (const auto stroke = strokeAt(*m_figures, point.time))
                value = m_figures->strokes[*stroke].rate;
        } else if (point.speed > 0) {
            value = point.speed;
        }
        m_values.push_back(value);
        if (value)
            known.push_back(*value);
    }
    if (!known.empty())
        m_range = Range{shareOf(known, LowShare), shareOf(known, 1 - LowShare)};
}

void CourseMap::showCursorAt(double moment) {
    m_cursor = moment;
    update();
}

void CourseMap::takeGround() {
    double west = HUGE_VAL;
    double east = -HUGE_VAL;
    double south = HUGE_VAL;
    double north = -HUGE_VAL;
    for (const TrackPlace& point : m_figures->track) {
        west = std::min(west, point.east);
        east = std::max(east, point.east);
        south = std::min(south, point.north);
        north = std::max(north, point.north);
    }
    m_ground =
        m_figures->track.empty() ? QRectF() : QRectF(QPointF(west, -north), QPointF(east, -south));
}

double CourseMap::scale() const {
    const double across = std::max(1.0, width() - 2 * Margin);
    const double down = std::max(1.0, height() - 2 * Margin);
    return m_zoom * std::min(across / std::max(LeastExtent, m_ground.width()),
                             down / std::max(LeastExtent, m_ground.height()));
}

QPointF CourseMap::toPixel(double east, double north) const {
    const QPointF middle = m_ground.center();
    return QRectF(rect()).center() + m_pan + (QPointF(east, -north) - middle) * scale();
}

std::optional<QPointF> CourseMap::markerAt(std::size_t turn) const {
    if (turn >= m_figures->turns.size() || !m_figures->turns[turn].marker)
        return std::nullopt;
    const TurnFigures& figures = m_figures->turns[turn];
    const auto place =
        placeAt(m_figures->track, figures.time + figures.marker->rotation.rotationTime / 2);
    return place ? std::optional(toPixel(place->east, place->north)) : std::nullopt;
}

std::optional<std::size_t> CourseMap::turnNear(const QPointF& position) const {
    std::optional<std::size_t> nearest;
    double least = MarkerReach;
    for (std::size_t i = 0; i < m_figures->turns.size(); ++i) {
        const auto marker = markerAt(i);
        const double distance =
            marker ? std::hypot(marker->x() - position.x(), marker->y() - position.y()) : HUGE_VAL;
        if (distance > least)
            continue;
        least = distance;
        nearest = i;
    }
    return nearest;
}

QString CourseMap::turnText(const rotData& marker) {
    constexpr double Degrees = 180 / std::numbers::pi;
    const smartRotation& turn = marker.rotation;
    return tr("Turn %1\nDuration %2 s, angle %3°\nRotation: peak %4 °/s, mean %5 °/s\n"
              "Push out: peak %6 m/s², mean %7 m/s²\nRoll %8° (+ inside), pitch %9° (+ bow up)")
        .arg(QString::number(marker.button), valueText(turn.rotationTime, 2),
             valueText(turn.rotationTime * turn.aveRotSpeed * Degrees, 0),
             valueText(turn.rotSpeedPeak * Degrees, 0), valueText(turn.aveRotSpeed * Degrees, 0),
             valueText(turn.pushOutPeak, 2), valueText(turn.pushOutAve, 2),
             valueText(turn.aveRoll * Degrees, 1), valueText(turn.avePitch * Degrees, 1));
}

bool CourseMap::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    if (const auto turn = turnNear(help->pos()))
        QToolTip::showText(help->globalPos(), turnText(*m_figures->turns[*turn].marker), this);
    else
        QToolTip::hideText();
    return true;
}

void CourseMap::mousePressEvent(QMouseEvent* event) {
    m_press = event->position();
    m_isPanning = false;
}

void CourseMap::mouseMoveEvent(QMouseEvent* event) {
    if (!m_press) {
        const auto turn = turnNear(event->position());
        setCursor(turn ? Qt::PointingHandCursor : Qt::ArrowCursor);
        return;
    }
    const QPointF way = event->position() - *m_press;
    m_isPanning = m_isPanning || way.manhattanLength() > ClickWay;
    if (!m_isPanning)
        return;
    m_pan += way;
    m_press = event->position();
    invalidate();
}

void CourseMap::mouseReleaseEvent(QMouseEvent* event) {
    const bool isClick = m_press && !m_isPanning;
    m_press.reset();
    if (!isClick || m_figures->track.empty())
        return;
    if (const auto turn = turnNear(event->position())) {
        emit momentChosen(m_figures->turns[*turn].time);
        QToolTip::showText(event->globalPosition().toPoint(),
                           turnText(*m_figures->turns[*turn].marker), this);
        return;
    }
    const QPointF middle = m_ground.center();
    const QPointF metres = (event->position() - QRectF(rect()).center() - m_pan) / scale() + middle;
    const TrackPlace& point =
        m_figures->track[nearestPoint(m_figures->track, metres.x(), -metres.y())];
    const QPointF at = toPixel(point.east, point.north);
    if (QLineF(at, event->position()).length() <= ClickReach)
        emit momentChosen(point.time);
}

void CourseMap::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    m_press.reset();
    fit();
}

void CourseMap::wheelEvent(QWheelEvent* event) {
    const double factor = std::pow(1.0015, event->angleDelta().y());
    const double zoom = std::clamp(m_zoom * factor, 1.0, MostZoom);
    const QPointF fromMiddle = event->position() - QRectF(rect()).center() - m_pan;
    m_pan -= fromMiddle * (zoom / m_zoom - 1);
    m_zoom = zoom;
    if (m_zoom == 1)
        m_pan = {};
    invalidate();
    event->accept();
}

} // namespace kavela::desktop
