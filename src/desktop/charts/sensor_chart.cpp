#include "desktop/charts/sensor_chart.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/sensor_drawing.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double WheelStep = 0.8; ///< of the view, for one notch
constexpr double KeyStep = 0.5;
constexpr double MoveStep = 0.1;        ///< of the view, for an arrow key with Ctrl
constexpr double LeastView = 0.05;      ///< seconds
constexpr double LeastSelection = 4;    ///< pixels
constexpr double CursorStep = 1 / 50.0; ///< seconds, or a pixel where that is more

} // namespace

SensorChart::SensorChart(QWidget* parent)
    : QWidget(parent), m_drawing(std::make_unique<SensorDrawing>()) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

SensorChart::~SensorChart() = default;

void SensorChart::setTitle(const QString& title) {
    m_title = title;
    setAccessibleName(title);
    invalidate();
}

void SensorChart::setSeries(std::vector<SensorSeries> series) {
    m_series = std::move(series);
    m_drawing->setSeries(m_series);
    if (!(m_to > m_from))
        fit();
    invalidate();
}

void SensorChart::setMarks(std::vector<SensorMark> marks) {
    m_marks = std::move(marks);
    invalidate();
}

void SensorChart::setEmptyText(const QString& text) {
    m_emptyText = text;
    invalidate();
}

void SensorChart::setTimeText(std::function<QString(double)> text) {
    m_timeText = std::move(text);
    invalidate();
}

void SensorChart::setTimeAxisVisible(bool isVisible) {
    m_hasTimeAxis = isVisible;
    invalidate();
}

void SensorChart::setView(double from, double to) {
    if (!std::isfinite(from) || !std::isfinite(to) || !(to > from) ||
        (from == m_from && to == m_to))
        return;
    m_from = from;
    m_to = to;
    invalidate();
    emit viewChanged(from, to);
}

void SensorChart::setLimits(double from, double to) {
    if (std::isfinite(from) && std::isfinite(to) && to > from)
        m_limits = {from, to};
    else
        m_limits.reset();
}

std::pair<double, double> SensorChart::limits() const {
    if (m_limits)
        return *m_limits;
    Extent extent;
    for (const SensorSeries& series : m_series)
        if (!series.times->empty()) {
            extent.add(series.times->front() + series.offset);
            extent.add(series.times->back() + series.offset);
        }
    if (extent.isEmpty())
        return {0, 0};
    return {extent.low, std::max(extent.high, extent.low + LeastView)};
}

void SensorChart::fit() {
    m_values.reset();
    invalidate();
    const auto [from, to] = limits();
    setView(from, to);
}

/// A view that the user asked for does not leave what there is to see.
void SensorChart::showInside(double from, double to) {
    const auto [first, last] = limits();
    const double width = std::clamp(to - from, std::min(LeastView, last - first), last - first);
    const double middle = (from + to) / 2;
    const double start = std::clamp(middle - width / 2, first, last - width);
    setView(start, start + width);
}

void SensorChart::zoomAt(double factor, double time) {
    const double width = m_to - m_from;
    const double narrowest = std::min(1.0, LeastView / width);
    const double kept = std::max(factor, narrowest);
    showInside(time - (time - m_from) * kept, time + (m_to - time) * kept);
}

void SensorChart::zoom(double factor) {
    const bool isSeen = m_cursor && *m_cursor > m_from && *m_cursor < m_to;
    zoomAt(factor, isSeen ? *m_cursor : (m_from + m_to) / 2);
}

void SensorChart::zoomValuesAt(double factor, double pixel) {
    prepare();
    const SensorScale& scale = m_drawing->scale();
    const double share = (scale.plot.bottom() - pixel) / scale.plot.height();
    const double at = scale.low + share * (scale.high - scale.low);
    m_values = {at - (at - scale.low) * factor, at + (scale.high - at) * factor};
    invalidate();
}

void SensorChart::hideSeries(const QString& name, bool isHidden) {
    if (isHidden)
        m_hidden.insert(name);
    else
        m_hidden.erase(name);
    invalidate();
}

void SensorChart::toggleName(const QString& name) {
    hideSeries(name, !m_hidden.contains(name));
}

void SensorChart::isolateName(const QString& name) {
    std::set<QString> others;
    for (const SensorSeries& series : m_series)
        if (series.name != name)
            others.insert(series.name);
    m_hidden = m_hidden == others ? std::set<QString>() : others;
    invalidate();
}

double SensorChart::pixelAt(double time) const {
    prepare();
    return m_drawing->scale().x(time);
}

double SensorChart::timeAt(double pixel) const {
    prepare();
    return m_drawing->scale().time(pixel);
}

QString SensorChart::timeText(double time) const {
    return m_timeText ? m_timeText(time) : momentText(time);
}

void SensorChart::moveCursorTo(double time) {
    showCursorAt(time);
}

void SensorChart::showCursorAt(double time) {
    if (!std::isfinite(time)) {
        hideCursor();
        return;
    }
    if (m_cursor == time)
        return;
    m_cursor = time;
    update();
    emit hoveredAt(time);
}

void SensorChart::hideCursor() {
    if (!m_cursor)
        return;
    m_cursor.reset();
    update();
    emit hoverEnded();
}

void SensorChart::moveBy(double share, bool movesView) {
    const double width = m_to - m_from;
    if (movesView) {
        showInside(m_from + share * MoveStep * width, m_to + share * MoveStep * width);
        return;
    }
    const double pixel = timeAt(1) - timeAt(0);
    moveCursorTo(
        std::clamp(m_cursor.value_or((m_from + m_to) / 2) + share * std::max(pixel, CursorStep),
                   m_from, m_to));
}

void SensorChart::mousePressEvent(QMouseEvent* event) {
    m_press = m_last = event->position();
    if (event->button() == Qt::MiddleButton) {
        m_drag = Drag::Pan;
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton) {
        m_drag = event->modifiers().testFlag(Qt::ShiftModifier) ? Drag::Shift : Drag::Press;
    }
}

void SensorChart::mouseMoveEvent(QMouseEvent* event) {
    const double before = timeAt(m_last.x());
    const double now = timeAt(event->position().x());
    m_last = event->position();
    switch (m_drag) {
    case Drag::Pan:
        showInside(m_from - (now - before), m_to - (now - before));
        return;
    case Drag::Shift:
        emit shiftDragged(now - before);
        return;
    case Drag::Press:
        if (std::abs(m_last.x() - m_press.x()) >= QApplication::startDragDistance())
            m_drag = Drag::Select;
        break;
    case Drag::Select:
        break;
    case Drag::None:
        if (m_drawing->scale().plot.contains(m_last))
            moveCursorTo(now);
        else
            hideCursor();
        return;
    }
    update();
}

void SensorChart::mouseReleaseEvent(QMouseEvent* event) {
    endDrag(event->position());
}

void SensorChart::endDrag(const QPointF& at) {
    const Drag drag = std::exchange(m_drag, Drag::None);
    unsetCursor();
    update();
    if (drag == Drag::Shift)
        emit shiftDragEnded();
    if (drag == Drag::Press) {
        if (const auto name = m_drawing->nameAt(at))
            toggleName(*name);
        else if (m_drawing->scale().plot.contains(at))
            emit clickedAt(timeAt(at.x()));
    }
    if (drag != Drag::Select || std::abs(at.x() - m_press.x()) < LeastSelection)
        return;
    const double from = std::max(m_from, timeAt(std::min(at.x(), m_press.x())));
    const double to = std::min(m_to, timeAt(std::max(at.x(), m_press.x())));
    if (!(to > from))
        return;
    emit rangeSelected(from, to);
    if (m_dragZooms)
        showInside(from, to);
}

void SensorChart::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (const auto name = m_drawing->nameAt(event->position())) {
        toggleName(*name); // takes back what the first click of the two did
        isolateName(*name);
        return;
    }
    fit();
}

void SensorChart::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (turned == 0 || m_series.empty() || event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore(); // whatever is around may scroll
        return;
    }
    const double factor = std::pow(WheelStep, turned / 120.0);
    prepare();
    if (event->position().x() < m_drawing->scale().plot.left())
        zoomValuesAt(factor, event->position().y());
    else
        zoomAt(factor, timeAt(event->position().x()));
    event->accept();
}

void SensorChart::keyPressEvent(QKeyEvent* event) {
    const bool movesView = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(KeyStep);
        break;
    case Qt::Key_Minus:
        zoom(1 / KeyStep);
        break;
    case Qt::Key_0:
        fit();
        break;
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const double side = event->key() == Qt::Key_Left ? -1 : 1;
        moveBy(event->modifiers().testFlag(Qt::ShiftModifier) ? 10 * side : side, movesView);
        break;
    }
    case Qt::Key_Escape:
        if (m_drag != Drag::Select) {
            QWidget::keyPressEvent(event);
            return;
        }
        m_drag = Drag::None;
        update();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void SensorChart::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    hideCursor();
}

void SensorChart::contextMenuEvent(QContextMenuEvent* event) {
    emit menuRequested(event->globalPos());
}

void SensorChart::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    invalidate();
}

void SensorChart::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        invalidate();
}

void SensorChart::invalidate() {
    m_isStale = m_needsLayout = true;
    update();
}

SensorScene SensorChart::scene() const {
    return {.title = m_title,
            .emptyText = m_emptyText,
            .marks = m_marks,
            .hidden = m_hidden,
            .from = m_from,
            .to = m_to,
            .values = m_values,
            .timeText = m_timeText,
            .hasTimeAxis = m_hasTimeAxis};
}

void SensorChart::prepare() const {
    if (!std::exchange(m_needsLayout, false))
        return;
    m_drawing->layOut(scene(), size(), *this);
}

void SensorChart::paintEvent(QPaintEvent*) {
    prepare();
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (m_picture.size() != pixels || m_isStale) {
        if (m_picture.size() != pixels)
            m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(ratio);
        m_picture.fill(chartGround(palette()));
        QPainter painter(&m_picture);
        m_drawing->paint(painter, scene(), ratio);
        m_isStale = false;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    if (m_cursor)
        paintCursor(painter);
    if (m_drag == Drag::Select)
        paintSelection(painter);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush); // that of the cursor's dots would fill the frame
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void SensorChart::paintCursor(QPainter& painter) const {
    m_drawing->paintCursor(painter, scene(), *m_cursor);
    const QRectF& plot = m_drawing->scale().plot;
    const double x = m_drawing->scale().x(*m_cursor);
    if (!m_hasTimeAxis || m_series.empty() || x < plot.left() || x > plot.right())
        return;
    const QString text = timeText(*m_cursor);
    const QFontMetricsF metrics(painter.font());
    QRectF box(0, plot.bottom() + 2, metrics.horizontalAdvance(text) + theme::Spacing,
               metrics.height() + 4);
    box.moveLeft(std::clamp(x - box.width() / 2, 0.0, std::max(0.0, width() - box.width())));
    painter.fillRect(box, palette().color(QPalette::WindowText));
    painter.setPen(palette().color(QPalette::Window));
    painter.drawText(box, Qt::AlignCenter, text);
}

void SensorChart::paintSelection(QPainter& painter) const {
    const QRectF& plot = m_drawing->scale().plot;
    const double left = std::clamp(std::min(m_press.x(), m_last.x()), plot.left(), plot.right());
    const double right = std::clamp(std::max(m_press.x(), m_last.x()), plot.left(), plot.right());
    QColor colour = palette().color(QPalette::Highlight);
    painter.setPen(QPen(colour, 1));
    colour.setAlphaF(0.2F);
    painter.setBrush(colour);
    painter.drawRect(QRectF(left, plot.top(), right - left, plot.height()));
    painter.setPen(palette().color(QPalette::WindowText));
    const double seconds = (right - left) / plot.width() * (m_to - m_from);
    painter.setFont(theme::captionFont(*this));
    painter.drawText(QPointF(left + theme::SmallSpacing, plot.bottom() - theme::SmallSpacing),
                     tr("%1 s").arg(shownNumber(seconds, 2)));
}

} // namespace kavela::desktop
