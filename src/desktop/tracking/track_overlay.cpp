#include "desktop/tracking/track_overlay.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr double LeastDrawnSide = 8; ///< pixels of the film
const QColor PathColour(0xFF, 0x8C, 0x1A);
const QColor BoxColour(0xFF, 0xE0, 0x4D);
const QColor PointColour(0x4D, 0xC3, 0xFF);

void strokeTwice(QPainter& painter, const QPainterPath& path, const QColor& colour) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 160), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.setPen(QPen(colour, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

} // namespace

TrackOverlay::TrackOverlay(QWidget* film) : QWidget(film) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setAccessibleName(tr("Box round what is followed"));
    setToolTip(tr("Draw a box round boat, head or gate. By keys: B proposes a box, arrows move it, "
                  "with Shift they size it, Enter takes it."));
    film->installEventFilter(this);
    resize(film->size());
}

bool TrackOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void TrackOverlay::setFilmSize(QSize size) {
    m_film = size;
    update();
}

void TrackOverlay::setTrack(const FilmTrack& track, std::vector<TrackPoint> found) {
    m_track = track;
    m_found = std::move(found);
    update();
}

void TrackOverlay::setFrame(FrameNumber frame) {
    m_frame = frame;
    update();
}

void TrackOverlay::setKnownPoints(std::optional<KnownPlane> plane) {
    m_plane = std::move(plane);
    update();
}

void TrackOverlay::setTakesPoints(bool takesPoints) {
    m_takesPoints = takesPoints;
    forgetBox();
}

void TrackOverlay::forgetBox() {
    m_drawn.reset();
    m_isDragging = false;
    update();
}

/// As the film view lays its picture.
QRectF TrackOverlay::pictureRect() const {
    QRect picture(QPoint(), m_film.scaled(size(), Qt::KeepAspectRatio));
    picture.moveCenter(rect().center());
    return picture;
}

QPointF TrackOverlay::shownPlace(const PicturePlace& place) const {
    const QRectF picture = pictureRect();
    return {picture.x() + place.x / m_film.width() * picture.width(),
            picture.y() + place.y / m_film.height() * picture.height()};
}

PicturePlace TrackOverlay::placeAt(const QPointF& shown) const {
    const QRectF picture = pictureRect();
    return {std::clamp((shown.x() - picture.x()) / picture.width(), 0.0, 1.0) * m_film.width(),
            std::clamp((shown.y() - picture.y()) / picture.height(), 0.0, 1.0) * m_film.height()};
}

QRectF TrackOverlay::shownBox(const TrackBox& box) const {
    return {shownPlace({box.x, box.y}), shownPlace({box.x + box.width, box.y + box.height})};
}

/// The box of the last key, as large as it was found here.
std::optional<TrackBox> TrackOverlay::boxOfFrame() const {
    const auto found = std::ranges::find(m_found, m_frame, &TrackPoint::frame);
    const TrackPoint* const point = found != m_found.end() ? &*found : m_track.pointAt(m_frame);
    const auto key = std::ranges::upper_bound(m_track.keys, m_frame, {}, &TrackKey::frame);
    if (!point || key == m_track.keys.begin())
        return std::nullopt;
    const TrackBox& drawn = std::prev(key)->box;
    const double width = drawn.width * point->size;
    const double height = drawn.height * point->size;
    return TrackBox{point->place.x - width / 2, point->place.y - height / 2, width, height};
}

void TrackOverlay::proposeBox() {
    if (m_film.isEmpty() || m_takesPoints)
        return;
    setFocus();
    if (m_drawn)
        return;
    const double side = std::max(m_film.height() / 8.0, LeastDrawnSide);
    TrackBox box{m_film.width() / 2.0 - side / 2, m_film.height() / 2.0 - side / 2, side, side};
    if (const auto known = boxOfFrame())
        box = *known;
    else if (!m_track.keys.empty())
        box = m_track.keys.back().box;
    m_drawn = box;
    update();
}

void TrackOverlay::takeDrawnBox() {
    if (!m_drawn)
        return;
    const TrackBox box = *m_drawn;
    forgetBox();
    if (box.width >= LeastDrawnSide && box.height >= LeastDrawnSide)
        emit boxDrawn(box);
}

void TrackOverlay::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || m_film.isEmpty())
        return;
    if (m_takesPoints) {
        emit pointClicked(placeAt(event->position()));
        return;
    }
    m_from = event->position();
    m_isDragging = true;
    m_drawn.reset();
}

void TrackOverlay::mouseMoveEvent(QMouseEvent* event) {
    if (!m_isDragging)
        return;
    const PicturePlace a = placeAt(m_from);
    const PicturePlace b = placeAt(event->position());
    m_drawn =
        TrackBox{std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x), std::abs(b.y - a.y)};
    update();
}

void TrackOverlay::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && std::exchange(m_isDragging, false))
        takeDrawnBox();
}

void TrackOverlay::keyPressEvent(QKeyEvent* event) {
    if (!m_drawn)
        return QWidget::keyPressEvent(event);
    constexpr double Step = 4; // pixels of the film
    TrackBox& box = *m_drawn;
    const bool isSizing = event->modifiers().testFlag(Qt::ShiftModifier);
    double& across = isSizing ? box.width : box.x;
    double& down = isSizing ? box.height : box.y;
    switch (event->key()) {
    case Qt::Key_Left:
        across -= Step;
        break;
    case Qt::Key_Right:
        across += Step;
        break;
    case Qt::Key_Up:
        down -= Step;
        break;
    case Qt::Key_Down:
        down += Step;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        takeDrawnBox();
        return;
    default:
        return QWidget::keyPressEvent(event);
    }
    box.width = std::clamp(box.width, LeastDrawnSide, double(m_film.width()));
    box.height = std::clamp(box.height, LeastDrawnSide, double(m_film.height()));
    box.x = std::clamp(box.x, 0.0, m_film.width() - box.width);
    box.y = std::clamp(box.y, 0.0, m_film.height() - box.height);
    update();
}

void TrackOverlay::paintPath(QPainter& painter) const {
    QPainterPath path;
    FrameNumber before = -1;
    const auto add = [&](const TrackPoint& point, const PicturePlace& place) {
        const QPointF at = shownPlace(place);
        if (point.frame == before + 1 && before >= 0)
            path.lineTo(at);
        else
            path.moveTo(at);
        before = point.frame;
    };
    for (const TrackPoint& point : m_track.points)
        if (const auto place =
                point.frame <= m_frame ? m_track.seenFrom(point, m_frame) : std::nullopt)
            add(point, *place);
    for (const TrackPoint& point : m_found)
        add(point, point.place);
    strokeTwice(painter, path, PathColour);
}

void TrackOverlay::paintKnownPoints(QPainter& painter) const {
    if (!m_plane || m_plane->frame != m_frame)
        return;
    int number = 0;
    for (const PlanePoint& point : m_plane->points) {
        const QPointF at = shownPlace(point.place);
        QPainterPath cross;
        cross.moveTo(at - QPointF(7, 0));
        cross.lineTo(at + QPointF(7, 0));
        cross.moveTo(at - QPointF(0, 7));
        cross.lineTo(at + QPointF(0, 7));
        strokeTwice(painter, cross, PointColour);
        painter.drawText(at + QPointF(9, -5), QString::number(++number));
    }
}

void TrackOverlay::paintEvent(QPaintEvent*) {
    if (m_film.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintPath(painter);
    paintKnownPoints(painter);
    const std::optional<TrackBox> box = m_drawn ? m_drawn : boxOfFrame();
    if (!box)
        return;
    QPainterPath frame;
    frame.addRect(shownBox(*box));
    strokeTwice(painter, frame, BoxColour);
}

} // namespace kavela::desktop
