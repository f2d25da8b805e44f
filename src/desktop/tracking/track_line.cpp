#include "desktop/tracking/track_line.h"

#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int TrackLineRoom = 10; // pixels left and right
constexpr int TrackBarTop = 12;
constexpr int TrackBarHeight = 10;
constexpr int KeyReach = 5; // pixels within which a click means a box

} // namespace

TrackLine::TrackLine(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("Coloured where the path is known; diamonds are the boxes that were drawn. Click "
                  "to go there."));
}

void TrackLine::setFrames(qint64 frames) {
    m_frames = frames;
    update();
}

void TrackLine::setTrack(const FilmTrack& track) {
    m_track = track;
    update();
}

void TrackLine::setFrame(qint64 frame) {
    m_frame = frame;
    update();
}

int TrackLine::placeOf(FrameNumber frame) const {
    const qint64 last = std::max<qint64>(m_frames - 1, 1);
    return TrackLineRoom +
           static_cast<int>(frame * std::max(width() - 2 * TrackLineRoom, 1) / last);
}

void TrackLine::ask(const QPoint& place) {
    if (m_frames <= 0)
        return;
    for (const TrackKey& key : m_track.keys)
        if (std::abs(placeOf(key.frame) - place.x()) <= KeyReach) {
            emit frameWanted(key.frame);
            return;
        }
    const double share =
        static_cast<double>(place.x() - TrackLineRoom) / std::max(width() - 2 * TrackLineRoom, 1);
    emit frameWanted(
        static_cast<qint64>(std::clamp(share, 0.0, 1.0) * static_cast<double>(m_frames - 1)));
}

void TrackLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        ask(event->pos());
}

void TrackLine::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        ask(event->pos());
}

void TrackLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(TrackLineRoom, TrackBarTop, std::max(width() - 2 * TrackLineRoom, 1),
                     TrackBarHeight, theme::surface(palette()));
    if (m_frames <= 0)
        return;
    const auto& points = m_track.points;
    for (std::size_t i = 0; i < points.size();) {
        std::size_t end = i + 1;
        while (end < points.size() && points[end].frame == points[end - 1].frame + 1)
            ++end;
        const int left = placeOf(points[i].frame);
        painter.fillRect(left, TrackBarTop, std::max(placeOf(points[end - 1].frame) - left, 1),
                         TrackBarHeight, theme::Accent);
        i = end;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Base));
    painter.setBrush(palette().color(QPalette::WindowText));
    for (const TrackKey& key : m_track.keys) {
        const QPoint middle(placeOf(key.frame), TrackBarTop + TrackBarHeight / 2);
        painter.drawPolygon(QPolygon({middle + QPoint(-6, 0), middle + QPoint(0, -7),
                                      middle + QPoint(6, 0), middle + QPoint(0, 7)}));
    }
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    const int at = placeOf(m_frame);
    painter.drawLine(at, 2, at, height() - 2);
}

} // namespace kavela::desktop
