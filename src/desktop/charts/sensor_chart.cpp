#include "desktop/charts/sensor_chart.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_export.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/sensor_drawing.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QMetaMethod>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LeastView = 0.05;      ///< seconds
constexpr double CursorStep = 1 / 50.0; ///< seconds, or a pixel where that is more

} // namespace

SensorChart::SensorChart(QWidget* parent)
    : QWidget(parent),
      m_interaction(std::make_unique<PlotInteraction>(*this, *this)),
      m_drawing(std::make_unique<SensorDrawing>()) {
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
    if (m_focused && static_cast<std::size_t>(*m_focused) >= m_series.size())
        m_focused.reset();
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

void SensorChart::toggleSeries(int id) {
    const QString name = m_series[static_cast<std::size_t>(id)].name;
    hideSeries(name, !m_hidden.contains(name));
}

void SensorChart::isolateSeries(int id) {
    std::set<QString> others;
    for (const SensorSeries& series : m_series)
        if (series.name != m_series[static_cast<std::size_t>(id)].name)
            others.insert(series.name);
    m_hidden = m_hidden == others ? std::set<QString>() : others;
    invalidate();
}

void SensorChart::showAllSeries() {
    m_hidden.clear();
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

QRectF SensorChart::plotArea() const {
    prepare();
    return m_drawing->scale().plot;
}

ChartSides SensorChart::sidesAt(const QPointF& position) const {
    return position.x() < plotArea().left() ? ChartSide::Left : ChartSide::Across;
}

/// The values follow what is seen: in the plot and by the keys the time alone is zoomed.
void SensorChart::zoom(double factor, const QPointF& at, ChartSides sides) {
    if (sides & ChartSide::Across)
        zoomAt(factor, timeAt(at.x()));
    else
        zoomValuesAt(factor, at.y());
}

void SensorChart::pan(const QPointF& by, ChartSides sides) {
    if (sides & ChartSide::Across) {
        const double seconds = timeAt(by.x()) - timeAt(0);
        showInside(m_from - seconds, m_to - seconds);
    }
    if (sides & ChartSide::Left && m_values) {
        const auto [low, high] = *m_values;
        const double values = by.y() / plotArea().height() * (high - low);
        m_values = {low + values, high + values};
        invalidate();
    }
}

QRectF SensorChart::selectionOf(const QPointF& from, const QPointF& to) const {
    const QRectF plot = plotArea();
    const auto inside = [&](double x) { return std::clamp(x, plot.left(), plot.right()); };
    const double left = inside(std::min(from.x(), to.x()));
    return {left, plot.top(), inside(std::max(from.x(), to.x())) - left, plot.height()};
}

QString SensorChart::selectionText(const QRectF& area) const {
    const double seconds = area.width() / plotArea().width() * (m_to - m_from);
    return tr("%1 s").arg(shownNumber(seconds, 2));
}

void SensorChart::select(const QRectF& area) {
    const double from = std::max(m_from, timeAt(area.left()));
    const double to = std::min(m_to, timeAt(area.right()));
    if (!(to > from))
        return;
    emit rangeSelected(from, to);
    if (m_dragZooms)
        showInside(from, to);
}

void SensorChart::hoverAt(const QPointF& position) {
    if (plotArea().contains(position))
        showCursorAt(timeAt(position.x()));
    else
        hideCursor();
}

void SensorChart::clickAt(const QPointF& position) {
    if (plotArea().contains(position))
        emit clickedAt(timeAt(position.x()));
}

void SensorChart::moveCursor(int steps) {
    const double pixel = timeAt(1) - timeAt(0);
    const auto [first, last] = limits();
    const double time =
        std::clamp(m_cursor.value_or((m_from + m_to) / 2) + steps * std::max(pixel, CursorStep),
                   std::min(first, last), std::max(first, last));
    if (time < m_from || time > m_to) {
        const double by = time < m_from ? time - m_from : time - m_to;
        showInside(m_from + by, m_to + by);
    }
    showCursorAt(time);
}

void SensorChart::leaveCursor() {
    hideCursor();
}

std::optional<QPointF> SensorChart::cursorPlace() const {
    if (!m_cursor || *m_cursor < m_from || *m_cursor > m_to)
        return std::nullopt;
    return QPointF(pixelAt(*m_cursor), plotArea().center().y());
}

std::optional<int> SensorChart::nameAt(const QPointF& position) const {
    prepare();
    return m_drawing->nameAt(position);
}

std::optional<int> SensorChart::focusedName() const {
    return m_focused;
}

/// A single series has no name beside the title.
void SensorChart::moveNameFocus(int steps) {
    const int last = static_cast<int>(m_series.size()) - 1;
    if (last < 1)
        return;
    m_focused = m_focused ? std::clamp(*m_focused + steps, 0, last) : steps > 0 ? 0 : last;
    invalidate();
}

bool SensorChart::takesDrag(Qt::KeyboardModifiers keys) const {
    return keys.testFlag(Qt::ShiftModifier) &&
           isSignalConnected(QMetaMethod::fromSignal(&SensorChart::shiftDragged));
}

void SensorChart::dragSeries(const QPointF& from, const QPointF& to) {
    emit shiftDragged(timeAt(to.x()) - timeAt(from.x()));
}

void SensorChart::endSeriesDrag() {
    emit shiftDragEnded();
}

void SensorChart::save(const std::filesystem::path& path) {
    saveChart(*this, path);
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
            .focused = hasFocus() ? m_focused : std::nullopt,
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
    if (size().isEmpty())
        return; // before the first layout, and there is nothing to paint on
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

} // namespace kavela::desktop
