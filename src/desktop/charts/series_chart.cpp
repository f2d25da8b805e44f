#include "desktop/charts/series_chart.h"

#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_axis.h"
#include "desktop/charts/series_drawing.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double CursorReach = 3; ///< pixels: what stands there belongs to the cursor
constexpr double NoPlace = std::numeric_limits<double>::quiet_NaN();

QStringList namesIn(const ChartContent& content) {
    QStringList names;
    for (const ChartSeries& series : content.series)
        names << series.name;
    for (const ChartBand& band : content.bands)
        names << band.name;
    return names;
}

} // namespace

SeriesChart::SeriesChart(QWidget* parent)
    : ChartFrame(parent),
      m_drawing(std::make_unique<SeriesDrawing>(m_content, [](int) { return true; })) {
    new PaintedLayer(canvas(), "overlay", [this](QCPPainter& painter) { paintCursor(painter); });
}

SeriesChart::~SeriesChart() = default;

void SeriesChart::show(ChartContent content) {
    const bool isSame = namesIn(content) == namesIn(m_content) &&
                        content.across == m_content.across &&
                        content.categories == m_content.categories;
    if (!isSame) {
        showAgain([](int) { return true; });
        fit();
    }
    leaveCursor(); // before what it stands at is gone
    m_content = std::move(content);
    m_drawing = std::make_unique<SeriesDrawing>(m_content, [this](int id) { return isShown(id); });
    setAccessibleName(m_content.title);
    invalidate();
}

QString SeriesChart::emptyReason() const {
    return hasPoints(m_content) ? QString() : m_content.emptyText;
}

void SeriesChart::fill() {
    m_drawing = std::make_unique<SeriesDrawing>(m_content, [this](int id) { return isShown(id); });
    canvas().setCaptions(m_content.title, m_content.subtitle);
    showAxes(canvas(), m_content);
    m_drawing->draw(canvas());
    seriesLabels().setLabels(m_drawing->labels(palette()));
    m_drawing->setLimits(canvas());
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

QString SeriesChart::csvText() const {
    return m_drawing->csv(canvas().xAxis->range());
}

QString SeriesChart::readOutAt(double x) {
    const auto place = m_drawing->placeNear(x);
    if (!place)
        return {};
    const double width = std::max(1, canvas().axisRect()->width());
    const double reach = canvas().xAxis->range().size() / width * CursorReach;
    return readOutText(placeText(m_content, *place), m_drawing->rowsAt(*place, reach, palette()));
}

void SeriesChart::moveCursorTo(double x, const QPointF& at) {
    readOut().showAt(at, readOutAt(x));
    if (x == m_cursor)
        return;
    m_cursor = x;
    canvas().layer("overlay")->replot();
    emit hoveredAt(x);
}

void SeriesChart::showCursorAt(double x) {
    m_cursor = isDrawable(m_content.across, x) ? x : NoPlace;
    readOut().hide();
    canvas().layer("overlay")->replot();
}

void SeriesChart::hoverAt(const QPointF& position) {
    const bool isInside = canvas().axisRect()->rect().contains(position.toPoint());
    const auto place = m_drawing->placeNear(canvas().xAxis->pixelToCoord(position.x()));
    if (isInside && place && canvas().xAxis->range().contains(*place))
        moveCursorTo(*place, position);
    else
        leaveCursor();
}

void SeriesChart::moveCursor(int steps) {
    const std::vector<double>& places = m_drawing->places();
    if (places.empty())
        return;
    const auto here =
        std::isnan(m_cursor) ? places.begin() : std::ranges::lower_bound(places, m_cursor);
    const std::ptrdiff_t step = std::isnan(m_cursor) ? 0 : steps;
    const auto last = static_cast<std::ptrdiff_t>(places.size()) - 1;
    const double place = places[static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(here - places.begin() + step, 0, last))];
    canvas().bringIntoView(place);
    moveCursorTo(place, {canvas().xAxis->coordToPixel(place),
                         static_cast<double>(canvas().axisRect()->rect().bottom())});
}

std::optional<QPointF> SeriesChart::cursorPlace() const {
    if (std::isnan(m_cursor))
        return std::nullopt;
    const QPointF place(canvas().xAxis->coordToPixel(m_cursor), plotArea().center().y());
    return plotArea().contains(place) ? std::optional(place) : std::nullopt;
}

void SeriesChart::leaveCursor() {
    ChartFrame::leaveCursor();
    if (std::isnan(m_cursor))
        return;
    m_cursor = NoPlace;
    canvas().layer("overlay")->replot();
    emit hoverEnded();
}

void SeriesChart::paintCursor(QCPPainter& painter) const {
    const QRectF plot = canvas().axisRect()->rect();
    const double x = canvas().xAxis->coordToPixel(m_cursor);
    if (!(x >= plot.left() && x <= plot.right()))
        return;
    painter.setPen(QPen(theme::quietText(palette()), 1));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
}

void SeriesChart::clickAt(const QPointF& position) {
    if (!canvas().axisRect()->rect().contains(position.toPoint()))
        return;
    if (const auto point = m_drawing->pointAt(canvas(), position))
        emit pointActivated(point->series, point->index);
}

} // namespace kavela::desktop
