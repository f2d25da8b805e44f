#include "desktop/compose/range_line.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int LineHeight = 46;
constexpr int BarTop = 18;
constexpr int BarHeight = 14;
constexpr int SideRoom = 10;      // pixels left and right of the line
constexpr int GripReach = 7;      // pixels
constexpr double LeastPart = 0.1; // seconds

} // namespace

RangeLine::RangeLine(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("Click to go there. Drag the ends of the coloured part to choose what the film "
                  "shows; near a split they take it."));
}

QSize RangeLine::sizeHint() const {
    return {400, grown(*this, LineHeight)};
}

QSize RangeLine::minimumSizeHint() const {
    return {120, grown(*this, LineHeight)};
}

void RangeLine::setTimes(const CommonRange& choice, const CommonRange& shown,
                         std::vector<SplitMoment> splits, const QStringList& titles) {
    m_choice = choice;
    if (m_grip != Grip::From && m_grip != Grip::To) // what is being dragged stays under the pointer
        m_shown = shown;
    m_splits = std::move(splits);
    m_titles = titles;
    update();
}

void RangeLine::setPosition(double common) {
    m_position = common;
    update();
}

void RangeLine::clear() {
    m_grip = Grip::None;
    setTimes({}, {}, {}, {});
}

int RangeLine::placeOf(double common) const {
    const double length = m_choice.to - m_choice.from;
    if (length <= 0)
        return SideRoom;
    return SideRoom + static_cast<int>(std::lround((common - m_choice.from) / length *
                                                   std::max(width() - 2 * SideRoom, 1)));
}

double RangeLine::commonAt(int place) const {
    const double share =
        static_cast<double>(place - SideRoom) / std::max(width() - 2 * SideRoom, 1);
    return m_choice.from + std::clamp(share, 0.0, 1.0) * (m_choice.to - m_choice.from);
}

RangeLine::Grip RangeLine::gripAt(int place) const {
    if (m_choice.to <= m_choice.from)
        return Grip::None;
    const int from = std::abs(place - placeOf(m_shown.from));
    const int to = std::abs(place - placeOf(m_shown.to));
    if (std::min(from, to) > GripReach)
        return Grip::Position;
    return from <= to ? Grip::From : Grip::To;
}

double RangeLine::snapped(int place) const {
    const auto near = std::ranges::min_element(m_splits, {}, [&](const SplitMoment& moment) {
        return std::abs(placeOf(moment.common) - place);
    });
    return near != m_splits.end() && std::abs(placeOf(near->common) - place) <= GripReach
               ? near->common
               : commonAt(place);
}

/// Pixels to the nearest other split: what a title may take, which stands in the middle over its
/// own.
int RangeLine::roomOf(const SplitMoment& moment) const {
    const int place = placeOf(moment.common);
    int room = width();
    for (const SplitMoment& other : m_splits)
        if (other.split != moment.split)
            room = std::min(room, std::abs(placeOf(other.common) - place));
    return room - theme::SmallSpacing;
}

void RangeLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_grip = gripAt(event->pos().x());
    m_hasMoved = false;
    if (m_grip == Grip::Position)
        drag(event->pos().x());
}

void RangeLine::mouseMoveEvent(QMouseEvent* event) {
    const Grip over = gripAt(event->pos().x());
    setCursor(over == Grip::From || over == Grip::To ? Qt::SizeHorCursor : Qt::ArrowCursor);
    if (m_grip != Grip::None)
        drag(event->pos().x());
}

void RangeLine::drag(int place) {
    m_hasMoved = true;
    if (m_grip == Grip::Position)
        emit seekRequested(std::clamp(commonAt(place), m_shown.from, m_shown.to));
    else if (m_grip == Grip::From)
        m_shown.from = std::min(snapped(place), m_shown.to - LeastPart);
    else if (m_grip == Grip::To)
        m_shown.to = std::max(snapped(place), m_shown.from + LeastPart);
    update();
}

void RangeLine::mouseReleaseEvent(QMouseEvent* /*event*/) {
    const Grip grip = std::exchange(m_grip, Grip::None);
    if (m_hasMoved && (grip == Grip::From || grip == Grip::To))
        emit rangeDragged(m_shown.from, m_shown.to);
}

void RangeLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const int top = grown(*this, BarTop); // below the titles
    const QRect bar(SideRoom, top, std::max(width() - 2 * SideRoom, 1), BarHeight);
    painter.fillRect(bar, theme::surface(palette()));
    if (m_choice.to <= m_choice.from)
        return;
    const int from = placeOf(m_shown.from);
    const int to = placeOf(m_shown.to);
    painter.fillRect(QRect(from, top, to - from, BarHeight), theme::Accent);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(theme::captionFont(*this));
    int free = 0; // where the next title may begin
    for (const SplitMoment& moment : m_splits) {
        const int place = placeOf(moment.common);
        painter.drawLine(place, top - 3, place, top + BarHeight + 3);
        QString title = m_titles.value(static_cast<int>(moment.split));
        if (moment.split > 0 && painter.fontMetrics().horizontalAdvance(title) > roomOf(moment))
            title = title.section(' ', 0, 0); // its number, which is what there is room for
        const int length = painter.fontMetrics().horizontalAdvance(title);
        const int left = std::clamp(place - length / 2, 0, std::max(width() - length, 0));
        if (left >= free) {
            painter.drawText(left, top - 5, title);
            free = left + length + theme::SmallSpacing;
        }
    }
    for (const int grip : {from, to})
        painter.fillRect(QRect(grip - 2, top - 3, 4, BarHeight + 6),
                         palette().color(QPalette::WindowText));
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    const int at = placeOf(m_position);
    painter.drawLine(at, top - 2, at, height());
}

} // namespace kavela::desktop
