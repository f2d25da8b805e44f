#include "desktop/taking/notes/lane_strip.h"

#include "desktop/film/time_line.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <map>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int RowHeight = 14;
constexpr int Reach = 6;  // pixels beside a mark that still hit it
constexpr int Beside = 4; // pixels between a mark and a title

bool isOnTimeLine(const LaneMark& mark) {
    return mark.kind == MarkKind::Start || mark.kind == MarkKind::Split;
}

} // namespace

LaneStrip::LaneStrip(const TimeLine& line, QWidget* parent) : QWidget(parent), m_line(line) {
    setObjectName("lanes");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Notes of the run"));
    setToolTip(tr("A click shows the frame of a mark, dragging moves the mark"));
}

void LaneStrip::setLanes(const AnnotationLanes& lanes, const MarkFilter& kinds) {
    m_titles.clear();
    m_marks.clear();
    std::map<int, int> rows;
    for (const LaneMark& mark : marksOn(lanes.marks, {}, kinds)) {
        if (isOnTimeLine(mark))
            continue;
        const auto [row, isNew] =
            rows.try_emplace(mark.lane, std::min(MostRows - 1, static_cast<int>(rows.size())));
        if (isNew && std::cmp_equal(m_titles.size(), row->second))
            m_titles.push_back(
                QString::fromStdString(lanes.titles.at(static_cast<std::size_t>(mark.lane))));
        else if (isNew)
            m_titles.back() = tr("Others");
        m_marks.push_back(mark);
        m_marks.back().lane = row->second;
    }
    setVisible(!m_titles.empty());
    updateGeometry();
    update();
}

void LaneStrip::setSelected(const std::optional<MarkHandle>& handle) {
    m_selected = handle;
    update();
}

QSize LaneStrip::sizeHint() const {
    return {400, rowHeight() * rows()};
}

int LaneStrip::rowHeight() const {
    return grown(*this, RowHeight);
}

QPoint LaneStrip::placeOf(const LaneMark& mark) const {
    return {m_line.placeOf(mark.seconds), mark.lane * rowHeight() + rowHeight() / 2};
}

QRect LaneStrip::titlePlace(int row) const {
    const QFontMetrics metrics(theme::captionFont(*this));
    // A name may be as long as a file's; it must not push the title out of every room.
    const int wanted = std::min(
        metrics.horizontalAdvance(m_titles.at(static_cast<std::size_t>(row))) + theme::SmallSpacing,
        width() / 4);
    std::vector<int> walls;
    for (const LaneMark& mark : m_marks)
        if (mark.lane == row)
            walls.push_back(placeOf(mark).x());
    walls.push_back(width());
    std::ranges::sort(walls);
    int left = 0;
    QRect widest;
    for (const int wall : walls) {
        const QRect room(left, row * rowHeight(), wall - Beside - left, rowHeight() - 1);
        if (room.width() > widest.width())
            widest = room;
        if (widest.width() >= wanted)
            break;
        left = wall + Beside;
    }
    widest.setWidth(std::min(widest.width(), wanted));
    return widest;
}

void LaneStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(theme::captionFont(*this));
    for (int row = 0; row < rows(); ++row) {
        const QRect place(0, row * rowHeight(), width(), rowHeight());
        painter.setPen(theme::hairline(palette()));
        painter.drawLine(place.bottomLeft(), place.bottomRight());
    }
    for (int row = 0; row < rows(); ++row) {
        const QRect place = titlePlace(row);
        painter.setPen(theme::quietText(palette()));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(m_titles[static_cast<std::size_t>(row)],
                                                          Qt::ElideRight, place.width()));
    }
    for (const LaneMark& mark : m_marks) {
        const bool isSelected = mark.handle == m_selected;
        const QPoint place = placeOf(mark);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSelected ? theme::Accent : theme::quietText(palette()));
        const int half = isSelected ? 3 : 1;
        painter.drawRect(place.x() - half, place.y() - rowHeight() / 2 + 2, 2 * half,
                         rowHeight() - 4);
    }
}

const LaneMark* LaneStrip::markAt(QPoint place) const {
    const LaneMark* nearest = nullptr;
    int least = Reach + 1;
    for (const LaneMark& mark : m_marks) {
        const QPoint drawn = placeOf(mark);
        const int distance = std::abs(drawn.x() - place.x());
        if (std::abs(drawn.y() - place.y()) <= rowHeight() / 2 && distance < least) {
            least = distance;
            nearest = &mark;
        }
    }
    return nearest;
}

void LaneStrip::mousePressEvent(QMouseEvent* event) {
    m_drag.reset();
    const LaneMark* const mark = markAt(event->pos());
    if (event->button() != Qt::LeftButton || !mark)
        return;
    const MarkHandle handle = mark->handle; // the marks may change when it is chosen
    m_drag = Drag{handle, event->pos()};
    emit chosen(handle);
}

void LaneStrip::mouseMoveEvent(QMouseEvent* event) {
    if (!m_drag || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const int way = std::abs(event->pos().x() - m_drag->from.x());
    m_drag->isMoving = m_drag->isMoving || way >= QApplication::startDragDistance();
    if (!m_drag->isMoving)
        return;
    const double seconds = m_line.momentAt(event->pos().x());
    for (LaneMark& mark : m_marks)
        if (mark.handle == m_drag->handle)
            mark.seconds = seconds;
    update();
    emit dragged(seconds);
}

void LaneStrip::mouseReleaseEvent(QMouseEvent* event) {
    const auto drag = std::exchange(m_drag, std::nullopt);
    if (drag && drag->isMoving)
        emit dropped(drag->handle, m_line.momentAt(event->pos().x()));
}

} // namespace kavela::desktop
