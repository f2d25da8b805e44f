#include "desktop/film/time_line.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int LineHeight = 44;
constexpr int RailHeight = 6;
constexpr int FlagHeight = 18;
constexpr int Side = 12;     // room left and right, so that a mark at an end is whole
constexpr int MarkReach = 6; // pixels beside a mark that still hit it
constexpr QSize ThumbnailSize{240, 135};
constexpr std::size_t HoverCacheBytes = 64U << 20U;
constexpr double RoomBesideMarks = 0.04; // of the time between them, where there is no film

} // namespace

TimeLine::TimeLine(FilmDeck& deck, QWidget* parent)
    : QWidget(parent),
      m_deck(deck),
      m_hoverDeck(new FilmDeck(std::make_shared<FrameCache>(HoverCacheBytes), this)),
      m_thumbnail(new QLabel(this, Qt::ToolTip)) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Time line"));
    m_thumbnail->hide();
    const auto repaint = [this] { update(); };
    connect(&m_deck, &FilmDeck::frameShown, this, repaint);
    connect(&m_deck, &FilmDeck::indexChanged, this, repaint);
    connect(&m_deck, &FilmDeck::stateChanged, this, [this] {
        if (m_hoverDeck->cameras() > 0 && m_deck.films().value(0) != m_hoverDeck->films().value(0))
            m_hoverDeck->open({});
        update();
    });
    connect(m_hoverDeck, &FilmDeck::frameShown, this, &TimeLine::showThumbnail);
}

TimeLine::~TimeLine() {
    m_hoverDeck->disconnect(this); // it closes its film when it goes, after this
}

QSize TimeLine::sizeHint() const {
    return {400, grown(*this, LineHeight)};
}

int TimeLine::flagHeight() const {
    return grown(*this, FlagHeight);
}

void TimeLine::setMarks(std::vector<LineMark> marks) {
    m_marks = std::move(marks);
    update();
}

void TimeLine::setSelected(std::optional<std::size_t> place) {
    m_selected = place;
    update();
}

void TimeLine::setExpected(std::optional<double> seconds, const QString& label) {
    if (m_expected == seconds && m_expectedLabel == label)
        return;
    m_expected = seconds;
    m_expectedLabel = label;
    update();
}

TimeLine::Range TimeLine::range() const {
    if (m_deck.end() > m_deck.start() || m_marks.empty())
        return {m_deck.start(), m_deck.end()};
    const auto seconds = [](const LineMark& mark) { return mark.stamp.seconds(); };
    const auto [first, last] = std::ranges::minmax_element(m_marks, {}, seconds);
    const double room = RoomBesideMarks * (seconds(*last) - seconds(*first));
    return {seconds(*first) - room, seconds(*last) + room};
}

int TimeLine::placeOf(double seconds) const {
    const Range range = this->range();
    const double length = range.end - range.start;
    const double share = length > 0 ? (seconds - range.start) / length : 0;
    return Side + static_cast<int>(std::lround(share * (width() - 2 * Side)));
}

double TimeLine::momentAt(int place) const {
    const double share = static_cast<double>(place - Side) / std::max(1, width() - 2 * Side);
    const Range range = this->range();
    return range.start + std::clamp(share, 0.0, 1.0) * (range.end - range.start);
}

std::optional<std::size_t> TimeLine::markAt(QPoint place) const {
    if (place.y() > flagHeight())
        return std::nullopt;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        if (std::abs(placeOf(m_marks[i].stamp.seconds()) - place.x()) <= MarkReach)
            return i;
    return std::nullopt;
}

void TimeLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int flags = flagHeight();
    const int top = flags + (height() - flags - RailHeight) / 2;
    const QRect rail(Side, top, width() - 2 * Side, RailHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::hairline(palette()));
    painter.drawRoundedRect(rail, RailHeight / 2.0, RailHeight / 2.0);
    const bool hasFilm = m_deck.cameras() > 0 && m_deck.end() > m_deck.start();
    if (!hasFilm) {
        paintMarks(painter);
        return;
    }
    const int place = placeOf(m_deck.position());
    painter.setBrush(theme::Accent);
    painter.drawRoundedRect(QRect(rail.left(), top, place - rail.left(), RailHeight),
                            RailHeight / 2.0, RailHeight / 2.0);
    paintExpected(painter);
    paintMarks(painter);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(place, flags, place, height() - theme::SmallSpacing);
}

/// Fainter than any mark: nothing was taken there yet.
void TimeLine::paintExpected(QPainter& painter) const {
    if (!m_expected || *m_expected < m_deck.start() || *m_expected > m_deck.end())
        return;
    const int place = placeOf(*m_expected);
    const int flags = flagHeight();
    painter.setPen(QPen(theme::quietText(palette()), 1, Qt::DashLine));
    painter.drawLine(place, flags - 2, place, height() - theme::Spacing);
    painter.setFont(theme::captionFont(*this));
    painter.drawText(QRect(place - flags, 0, 2 * flags, flags - 2), Qt::AlignCenter,
                     m_expectedLabel);
}

void TimeLine::paintMarks(QPainter& painter) const {
    painter.setFont(theme::captionFont(*this));
    const int flags = flagHeight();
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        const int place = placeOf(m_marks[i].stamp.seconds());
        const bool isSelected = m_selected == i;
        const QColor colour = isSelected ? theme::Accent : palette().color(QPalette::WindowText);
        const int width = painter.fontMetrics().horizontalAdvance(m_marks[i].label) + 8;
        const QRect flag(place - width / 2, 0, width, flags - 2);
        painter.setPen(QPen(colour, isSelected ? 2 : 1));
        painter.drawLine(place, flags - 2, place, height() - theme::Spacing);
        painter.setBrush(isSelected ? colour : palette().color(QPalette::Base));
        painter.drawRoundedRect(flag, 3, 3);
        painter.setPen(isSelected ? QColor(Qt::white) : colour);
        painter.drawText(flag, Qt::AlignCenter, m_marks[i].label);
    }
}

void TimeLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed.reset();
    m_isDragging = false;
    m_pressedPlace = event->pos().x();
    if (const auto mark = markAt(event->pos())) {
        m_pressed = m_marks[*mark].number;
        emit markClicked(*m_pressed);
    } else {
        m_deck.seek(momentAt(event->pos().x()));
    }
}

void TimeLine::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (pressed && std::exchange(m_isDragging, false))
        emit markDropped(*pressed, momentAt(event->pos().x()));
}

void TimeLine::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        hideThumbnail();
        const int way = std::abs(event->pos().x() - m_pressedPlace);
        m_isDragging = m_isDragging || way >= QApplication::startDragDistance();
        if (!m_pressed || m_isDragging)
            m_deck.seek(momentAt(event->pos().x()));
    } else {
        hoverAt(event->pos().x());
    }
}

void TimeLine::hoverAt(int place) {
    if (m_deck.cameras() == 0)
        return;
    m_hoverPlace = place;
    if (m_hoverDeck->cameras() == 0) {
        m_hoverDeck->open({m_deck.films().front()});
        m_hoverDeck->setBox(0, ThumbnailSize);
    }
    m_hoverDeck->seek(momentAt(place));
}

void TimeLine::showThumbnail() {
    const FilmPicture* const picture = m_hoverDeck->shown(0);
    if (!picture || picture->image.isNull() || !underMouse())
        return;
    const QPixmap shown = QPixmap::fromImage(picture->image);
    m_thumbnail->setPixmap(shown);
    m_thumbnail->resize(shown.size());
    m_thumbnail->move(
        mapToGlobal(QPoint(m_hoverPlace - shown.width() / 2, -shown.height() - theme::Spacing)));
    m_thumbnail->show();
}

void TimeLine::hideThumbnail() {
    m_thumbnail->hide();
}

void TimeLine::leaveEvent(QEvent*) {
    hideThumbnail();
}

} // namespace kavela::desktop
