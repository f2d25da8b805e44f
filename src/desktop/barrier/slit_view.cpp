#include "desktop/barrier/slit_view.h"

#include "desktop/barrier/shaded_line.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int SlitRulerHeight = 22;
constexpr int SlitLabelHeight = 18;
constexpr double ClosestZoom = 48; // pixels a column
constexpr int SlitReach = 6;       // pixels beside a line that still hit it
constexpr int DragStart = 4;       // pixels
constexpr QColor SlitGround{0x10, 0x12, 0x14};
constexpr QColor SlitVeil{0, 0, 0, 170};
constexpr QColor SlitLetters{0xF2, 0xF4, 0xF6};
constexpr QColor HairColour{0xFF, 0xE0, 0x40};
constexpr QColor GuessColour{0x56, 0xB4, 0xE9};
constexpr QColor MarkColour{0x4D, 0xFF, 0xC0};

/// The level of the tiles that is neither coarser than the screen nor much finer.
std::size_t levelFor(double pixelsPerColumn) {
    std::size_t level = 0;
    while (level + 1 < SlitTile::FramesPerColumn.size() &&
           SlitTile::FramesPerColumn[level + 1] * pixelsPerColumn <= 1)
        ++level;
    return level;
}

QImage imageOf(const Picture& picture) {
    return QImage(picture.pixels.get(), picture.width, picture.height,
                  static_cast<qsizetype>(picture.bytesPerLine), QImage::Format_RGB32);
}

/// Seconds between marks of the ruler that stand so many pixels apart at least.
double rulerStep(double pixelsPerSecond) {
    constexpr double LeastPixels = 90;
    constexpr std::array<double, 14> Steps{0.02, 0.05, 0.1, 0.2, 0.5, 1,   2,
                                           5,    10,   20,  30,  60,  300, 600};
    for (const double step : Steps)
        if (step * pixelsPerSecond >= LeastPixels)
            return step;
    return 3600;
}

QString clockText(double seconds, int decimals) {
    const auto minutes = static_cast<int>(std::floor(seconds / 60));
    const QString rest = shownNumber(seconds - minutes * 60, decimals);
    return minutes == 0 ? rest
                        : QStringLiteral("%1:%2").arg(minutes).arg(
                              rest, decimals == 0 ? 2 : decimals + 3, QLatin1Char('0'));
}

void paintLabel(QPainter& painter, double x, int y, const QString& text, const QColor& colour) {
    const int height = std::max(SlitLabelHeight, painter.fontMetrics().height());
    const int width = painter.fontMetrics().horizontalAdvance(text) + 2 * theme::SmallSpacing;
    const int left = std::clamp(static_cast<int>(x) - width / 2, 0,
                                std::max(painter.device()->width() - width, 0));
    const QRect box(left, y, width, height);
    painter.fillRect(box, SlitVeil);
    painter.setPen(colour);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

SlitView::SlitView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(200, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Slit picture"));
}

QSize SlitView::sizeHint() const {
    return {600, 300};
}

void SlitView::setPicture(const SlitPicture* picture, std::shared_ptr<const VideoIndex> index) {
    const bool isOther = index != m_index;
    m_picture = picture;
    m_index = std::move(index);
    if (isOther) {
        m_hair = 0.5;
        m_isWhole = true;
    }
    keepInside();
    update();
}

void SlitView::setMessage(const QString& message) {
    m_message = message;
    update();
}

void SlitView::setMarks(std::vector<SlitMark> marks) {
    m_marks = std::move(marks);
    update();
}

void SlitView::setGuesses(std::vector<SlitGuess> guesses) {
    m_guesses = std::move(guesses);
    update();
}

double SlitView::columns() const {
    return m_index ? static_cast<double>(m_index->frameCount()) : 0;
}

QRect SlitView::area() const {
    return rect().adjusted(0, grown(*this, SlitRulerHeight), 0, 0);
}

double SlitView::columnOf(double seconds) const {
    return m_index ? slitColumnAt(*m_index, 0, seconds) : 0;
}

void SlitView::setHair(double column) {
    m_hair = std::clamp(column, 0.0, std::max(columns() - 1e-6, 0.0));
    const double place = placeOf(m_hair);
    constexpr double EdgeShare = 0.1;
    const double edge = width() * EdgeShare;
    if (!m_isWhole && (place < edge || place > width() - edge)) {
        // A step goes on at the edge, a jump lands in the middle.
        const bool isFar = place < -width() || place > 2.0 * width();
        const double to = isFar ? width() / 2.0 : place < edge ? edge : width() - edge;
        m_left = m_hair - to / m_zoom;
        keepInside();
    }
    update();
}

void SlitView::zoomBy(double factor) {
    const double place = placeOf(m_hair);
    zoomAround(factor, place >= 0 && place <= width() ? place : width() / 2.0);
}

void SlitView::zoomAround(double factor, double place) {
    const double fixed = columnAt(place);
    m_isWhole = false;
    m_zoom = std::min(m_zoom * factor, ClosestZoom);
    m_left = fixed - place / m_zoom;
    keepInside();
    update();
}

void SlitView::showWhole() {
    m_isWhole = true;
    keepInside();
    update();
}

/// Never farther away than the whole film, and never beside it.
void SlitView::keepInside() {
    if (columns() <= 0)
        return;
    const double whole = std::min(width() / columns(), ClosestZoom);
    if (m_isWhole || m_zoom <= whole) {
        m_isWhole = true;
        m_zoom = whole;
    }
    m_left = std::clamp(m_left, 0.0, std::max(columns() - width() / m_zoom, 0.0));
}

void SlitView::resizeEvent(QResizeEvent*) {
    keepInside();
}

void SlitView::wheelEvent(QWheelEvent* event) {
    constexpr double StepOfWheel = 120;
    constexpr double ZoomOfStep = 1.25;
    const QPoint way = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ShiftModifier) || std::abs(way.x()) > std::abs(way.y())) {
        m_left -= (way.x() + (way.x() == 0 ? way.y() : 0)) / m_zoom;
        keepInside();
        update();
    } else {
        zoomAround(std::pow(ZoomOfStep, way.y() / StepOfWheel), event->position().x());
    }
    event->accept();
}

const SlitMark* SlitView::markAt(double place) const {
    const SlitMark* found = nullptr;
    double least = SlitReach + 1;
    for (const SlitMark& mark : m_marks)
        if (const double distance = std::abs(placeOf(columnOf(mark.seconds)) - place);
            distance < least) {
            least = distance;
            found = &mark;
        }
    return found;
}

void SlitView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || columns() <= 0)
        return;
    m_pressed = event->position().x();
    m_pressedLeft = m_left;
    m_drag = Drag::Press;
    if (std::abs(placeOf(m_hair) - m_pressed) <= SlitReach) {
        m_drag = Drag::Hair;
    } else if (const SlitMark* const mark = markAt(m_pressed)) {
        m_drag = Drag::Mark;
        m_dragged = mark->run;
        m_draggedTo = columnOf(mark->seconds);
    }
}

void SlitView::mouseMoveEvent(QMouseEvent* event) {
    const double place = event->position().x();
    if (m_drag == Drag::None) {
        const bool isGrip = std::abs(placeOf(m_hair) - place) <= SlitReach || markAt(place);
        setCursor(isGrip ? Qt::SizeHorCursor : Qt::CrossCursor);
        return;
    }
    if (m_drag == Drag::Press && std::abs(place - m_pressed) >= DragStart)
        m_drag = Drag::Pan;
    if (m_drag == Drag::Pan) {
        m_left = m_pressedLeft - (place - m_pressed) / m_zoom;
        keepInside();
    } else if (m_drag == Drag::Mark && std::abs(place - m_pressed) >= DragStart) {
        m_draggedTo = std::clamp(columnAt(place), 0.0, columns());
    } else if (m_drag == Drag::Hair) {
        m_hair = std::clamp(columnAt(place), 0.0, columns() - 1e-6);
        emit hairMoved(m_hair);
    }
    update();
}

/// A click brings the hair line; on a mark to the mark.
void SlitView::mouseReleaseEvent(QMouseEvent* event) {
    const Drag drag = std::exchange(m_drag, Drag::None);
    const double place = event->position().x();
    const bool isClick = std::abs(place - m_pressed) < DragStart;
    if (drag == Drag::Mark && !isClick) {
        m_draggedTo = std::clamp(columnAt(place), 0.0, columns() - 1e-6);
        emit markDropped(m_dragged, m_draggedTo);
    } else if (drag == Drag::Press || (drag == Drag::Mark && isClick)) {
        m_hair =
            std::clamp(drag == Drag::Mark ? m_draggedTo : columnAt(place), 0.0, columns() - 1e-6);
        emit hairMoved(m_hair);
    }
    update();
}

void SlitView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), SlitGround);
    if (!m_picture || !m_index || m_picture->tiles.empty()) {
        painter.setPen(SlitLetters);
        painter.drawText(rect().adjusted(theme::PageMargin, 0, -theme::PageMargin, 0),
                         Qt::AlignCenter | Qt::TextWordWrap, m_message);
        return;
    }
    paintTiles(painter);
    painter.setFont(theme::captionFont(*this));
    paintRuler(painter);
    paintGuesses(painter);
    paintMarks(painter);
    paintHair(painter);
}

void SlitView::paintTiles(QPainter& painter) const {
    const QRect area = this->area();
    const std::size_t level = levelFor(m_zoom);
    const auto first = static_cast<FrameNumber>(std::floor(m_left)) / SlitTileColumns;
    for (auto at = static_cast<std::size_t>(std::max<FrameNumber>(first, 0));
         at < m_picture->tiles.size(); ++at) {
        const SlitTile& tile = *m_picture->tiles[at];
        const double from = placeOf(static_cast<double>(tile.first));
        if (from > width())
            return;
        // Whole pixels, so that tiles meet.
        const int left = static_cast<int>(std::floor(from));
        const int right =
            static_cast<int>(std::floor(placeOf(static_cast<double>(tile.first + tile.columns))));
        painter.drawImage(QRect(left, area.top(), std::max(right - left, 1), area.height()),
                          imageOf(tile.levels[level]));
    }
}

void SlitView::paintRuler(QPainter& painter) const {
    const double from = slitSecondsAt(*m_index, 0, columnAt(0));
    const double to = slitSecondsAt(*m_index, 0, columnAt(width()));
    if (to <= from)
        return;
    const double step = rulerStep(width() / (to - from) / growthOf(*this));
    const int ruler = grown(*this, SlitRulerHeight);
    const int half = grown(*this, 45);
    painter.setPen(SlitLetters);
    for (double number = std::ceil(from / step); number * step <= to; ++number) {
        const double seconds = number * step;
        const double x = placeOf(columnOf(seconds));
        painter.drawLine(QPointF(x, ruler - 5), QPointF(x, ruler));
        painter.drawText(QRectF(x - half, 0, 2 * half, ruler - 5), Qt::AlignCenter,
                         clockText(seconds, step < 0.1 ? 2
                                            : step < 1 ? 1
                                                       : 0));
    }
}

void SlitView::paintGuesses(QPainter& painter) const {
    const QRect area = this->area();
    for (const SlitGuess& guess : m_guesses) {
        const double x = placeOf(columnOf(guess.seconds));
        if (x < -50 || x > width() + 50)
            continue;
        drawShadedUpright(painter, x, area, GuessColour, 1, Qt::DashLine);
        paintLabel(painter, x, area.bottom() - grown(*this, SlitLabelHeight),
                   tr("%1 %").arg(std::lround(guess.confidence * 100)), GuessColour);
    }
}

void SlitView::paintMarks(QPainter& painter) const {
    const QRect area = this->area();
    for (const SlitMark& mark : m_marks) {
        const bool isDragged = m_drag == Drag::Mark && mark.run == m_dragged;
        const double x = placeOf(isDragged ? m_draggedTo : columnOf(mark.seconds));
        if (x < -150 || x > width() + 150)
            continue;
        drawShadedUpright(painter, x, area, MarkColour, mark.isCurrent ? 3 : 1);
        paintLabel(painter, x, area.top() + grown(*this, SlitLabelHeight) + 2, mark.label,
                   MarkColour);
    }
}

void SlitView::paintHair(QPainter& painter) const {
    const QRect area = this->area();
    const double x = placeOf(m_hair);
    drawShadedUpright(painter, x, area, HairColour, 1);
    const FrameNumber frame = slitFrameAt(*m_index, 0, m_hair);
    const double beside = m_hair - static_cast<double>(frame) - 0.5;
    QString text =
        tr("frame %1   %2 s").arg(frame).arg(shownNumber(slitSecondsAt(*m_index, 0, m_hair), 3));
    if (std::abs(beside) > 0.005)
        text += tr("  (%1%2 of a frame)")
                    .arg(beside < 0 ? QStringLiteral("−") : QStringLiteral("+"))
                    .arg(shownNumber(std::abs(beside), 2));
    paintLabel(painter, x, area.top(), text, HairColour);
}

} // namespace kavela::desktop
