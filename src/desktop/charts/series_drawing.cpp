#include "desktop/charts/series_drawing.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/series_axis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace kavela::desktop {

namespace {

using Form = ChartSeries::Form;

constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();
constexpr double SeriesLineWidth = 2;
constexpr double StrongWidth = 4;
constexpr float FaintOpacity = 0.45F;
constexpr double BarShare = 0.72;       ///< of the room from one group of bars to the next
constexpr double SeriesHeadroom = 0.08; ///< of the height
constexpr double SideRoom = 0.02;       ///< of the width
constexpr double RoomOfDate = 86400;
constexpr std::size_t MostMarkers = 400; ///< more would hide their line
constexpr std::size_t FewMarkers = 80;

bool isDrawn(const QPointF& point) {
    return !std::isnan(point.y());
}

double markerSize(std::size_t points) {
    return points <= FewMarkers ? 6 : 4;
}

} // namespace

/// From the least to the greatest of what is drawn.
struct SeriesDrawing::Extent {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void add(double value) {
        if (!isDrawable(value))
            return;
        least = std::min(least, value);
        most = std::max(most, value);
    }
    [[nodiscard]] bool isEmpty() const { return least > most; }
};

bool hasPoints(const ChartContent& content) {
    const auto hasPoint = [&](const ChartSeries& series) {
        return std::ranges::any_of(series.points, [&](const QPointF& point) {
            return isDrawable(content.across, point.x()) && isDrawable(point.y());
        });
    };
    return std::ranges::any_of(content.series, hasPoint);
}

SeriesDrawing::SeriesDrawing(const ChartContent& content,
                             const std::function<bool(int id)>& isShown)
    : m_content(content) {
    for (std::size_t i = 0; i < content.series.size(); ++i)
        m_shown.push_back(isShown(static_cast<int>(content.series[i].labelOf.value_or(i))));
    for (std::size_t i = 0; i < content.bands.size(); ++i)
        m_shown.push_back(isShown(static_cast<int>(content.series.size() + i)));
    for (std::size_t i = 0; i < content.series.size(); ++i)
        if (m_shown[i])
            m_lines.push_back(lineOf(i));
    findPlaces();
}

/// A point without a place along the axis interrupts the line behind the one before it.
SeriesDrawing::Line SeriesDrawing::lineOf(std::size_t series) const {
    const std::vector<QPointF>& points = m_content.series[series].points;
    std::vector<QPointF> placed;
    double before = NoValue;
    for (const QPointF& point : points) {
        const bool hasPlace = isDrawable(m_content.across, point.x());
        const bool hasValue = hasPlace && isDrawable(point.y());
        placed.emplace_back(hasPlace ? point.x() : before, hasValue ? point.y() : NoValue);
        before = placed.back().x();
    }
    Line line{series, {}, {}};
    for (std::size_t i = 0; i < placed.size(); ++i)
        if (!std::isnan(placed[i].x()) && (isDrawn(placed[i]) || !isBars(line)))
            line.indices.push_back(i);
    std::ranges::stable_sort(line.indices, {}, [&](std::size_t i) { return placed[i].x(); });
    for (const std::size_t i : line.indices)
        line.points.push_back(placed[i]);
    return line;
}

void SeriesDrawing::findPlaces() {
    for (const Line& line : m_lines)
        for (const QPointF& point : line.points)
            if (isDrawn(point) && !series(line).isQuiet)
                m_places.push_back(point.x());
    std::ranges::sort(m_places);
    const auto repeated = std::ranges::unique(m_places);
    m_places.erase(repeated.begin(), repeated.end());
}

void SeriesDrawing::draw(ChartPlot& plot) const {
    for (std::size_t i = 0; i < m_content.bands.size(); ++i)
        if (m_shown[m_content.series.size() + i])
            drawBand(plot, m_content.bands[i]);
    drawBars(plot);
    for (const bool isQuiet : {true, false})
        for (const Line& line : m_lines)
            if (!isBars(line) && series(line).isQuiet == isQuiet)
                drawLine(plot, line);
}

void SeriesDrawing::drawBand(ChartPlot& plot, const ChartBand& band) const {
    QCPGraph* const low = plot.addGraph();
    QCPGraph* const high = plot.addGraph();
    for (std::size_t i = 0; i < band.size(); ++i) {
        if (!isDrawable(m_content.across, band.x[i]))
            continue;
        const bool isDrawn = isDrawable(band.low[i]) && isDrawable(band.high[i]);
        low->addData(band.x[i], isDrawn ? band.low[i] : NoValue);
        high->addData(band.x[i], isDrawn ? band.high[i] : NoValue);
    }
    QColor colour = seriesStyle(band.slot, plot.palette()).colour;
    colour.setAlphaF(0.18F);
    low->setPen(Qt::NoPen);
    high->setPen(Qt::NoPen);
    high->setBrush(colour);
    high->setChannelFillGraph(low);
    high->setName(band.name);
}

void SeriesDrawing::drawLine(ChartPlot& plot, const Line& line) const {
    const ChartSeries& shown = series(line);
    const SeriesStyle style = seriesStyle(shown.slot, plot.palette());
    const QColor colour = shown.isQuiet ? backgroundRuns(plot.palette()) : style.colour;
    QCPGraph* const graph = plot.addGraph(plot.xAxis, shown.onRight ? plot.yAxis2 : plot.yAxis);
    graph->setName(shown.name);
    const double width = shown.isQuiet ? 1 : shown.isStrong ? StrongWidth : SeriesLineWidth;
    graph->setPen(QPen(colour, width, style.line, Qt::RoundCap, Qt::RoundJoin));
    const auto count = static_cast<std::size_t>(std::ranges::count_if(line.points, isDrawn));
    const bool hasMarkers = shown.form == Form::Points || count == 1 ||
                            (shown.form == Form::LineAndPoints && count <= MostMarkers);
    if (hasMarkers && shown.isQuiet)
        graph->setScatterStyle(backgroundDot(plot.palette(), markerSize(count)));
    else if (hasMarkers)
        graph->setScatterStyle(markerOf(style, markerSize(count) * (shown.isStrong ? 1.4 : 1)));
    if (shown.form == Form::Points)
        graph->setLineStyle(QCPGraph::lsNone);
    else if (shown.form == Form::Steps)
        graph->setLineStyle(QCPGraph::lsStepLeft);
    for (const QPointF& point : line.points)
        graph->addData(point.x(), point.y());
}

bool SeriesDrawing::isBars(const Line& line) const {
    return series(line).form == Form::Bars || isStacked(line);
}

bool SeriesDrawing::isStacked(const Line& line) const {
    return series(line).form == Form::StackedBars;
}

std::size_t SeriesDrawing::barCount() const {
    const auto isBeside = [this](const Line& line) { return isBars(line) && !isStacked(line); };
    const bool hasStack =
        std::ranges::any_of(m_lines, [this](const Line& line) { return isStacked(line); });
    return static_cast<std::size_t>(std::ranges::count_if(m_lines, isBeside)) + (hasStack ? 1 : 0);
}

/// The least distance between bars, which all of them share.
double SeriesDrawing::barUnit() const {
    const bool isDate = m_content.across == ChartContent::Across::Date;
    std::vector<double> places;
    for (const Line& line : m_lines)
        if (isBars(line))
            for (const QPointF& point : line.points)
                places.push_back(point.x());
    std::ranges::sort(places);
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < places.size(); ++i)
        if (places[i] > places[i - 1])
            least = std::min(least, places[i] - places[i - 1]);
    if (m_content.across == ChartContent::Across::Category || std::isinf(least))
        return isDate ? RoomOfDate : 1;
    return least;
}

void SeriesDrawing::drawBars(ChartPlot& plot) const {
    const std::size_t count = barCount();
    if (count == 0)
        return;
    auto* const group = new QCPBarsGroup(&plot);
    group->setSpacingType(QCPBarsGroup::stAbsolute);
    group->setSpacing(1);
    const double width = barUnit() * BarShare / static_cast<double>(count);
    QCPBars* below = nullptr;
    for (const Line& line : m_lines) {
        if (!isBars(line))
            continue;
        const ChartSeries& shown = series(line);
        const SeriesStyle style = seriesStyle(shown.slot, plot.palette());
        auto* const bars = new QCPBars(plot.xAxis, shown.onRight ? plot.yAxis2 : plot.yAxis);
        bars->setName(shown.name);
        bars->setPen(Qt::NoPen);
        QColor colour = shown.isQuiet ? backgroundRuns(plot.palette()) : style.colour;
        if (shown.isFaint)
            colour.setAlphaF(FaintOpacity);
        bars->setBrush(colour);
        bars->setWidth(width);
        bars->setBarsGroup(group);
        if (isStacked(line)) {
            if (below)
                bars->moveAbove(below);
            below = bars;
        }
        for (const QPointF& point : line.points)
            bars->addData(point.x(), point.y());
    }
}

SeriesDrawing::Extent SeriesDrawing::across() const {
    Extent extent;
    if (m_content.across == ChartContent::Across::Category) {
        extent.add(-0.5);
        extent.add(static_cast<double>(m_content.categories.size()) - 0.5);
        return extent;
    }
    const double barRoom = barCount() > 0 ? barUnit() / 2 : 0;
    for (const Line& line : m_lines)
        for (const QPointF& point : line.points) {
            extent.add(point.x() - barRoom);
            extent.add(point.x() + barRoom);
        }
    if (extent.isEmpty())
        return {0, 1};
    const bool isDate = m_content.across == ChartContent::Across::Date;
    const double span = extent.most - extent.least;
    const double room = span > 0 ? span * SideRoom : isDate ? RoomOfDate : 1;
    return {extent.least - room, extent.most + room};
}

/// The sums, above 0 and below it, of the bars that stand on each other.
SeriesDrawing::Extent SeriesDrawing::stackHeight(bool onRight) const {
    std::map<std::pair<double, bool>, double> heights;
    for (const Line& line : m_lines)
        if (isStacked(line) && series(line).onRight == onRight)
            for (const QPointF& point : line.points)
                heights[{point.x(), point.y() < 0}] += point.y();
    Extent extent;
    for (const auto& [place, height] : heights)
        extent.add(height);
    return extent;
}

SeriesDrawing::Extent SeriesDrawing::height(bool onRight) const {
    Extent extent = stackHeight(onRight);
    for (const Line& line : m_lines) {
        if (series(line).onRight != onRight)
            continue;
        for (const QPointF& point : line.points)
            extent.add(point.y());
        if (isBars(line))
            extent.add(0);
    }
    for (std::size_t i = 0; i < m_content.bands.size() && !onRight; ++i)
        if (const ChartBand& band = m_content.bands[i]; m_shown[m_content.series.size() + i])
            for (std::size_t at = 0; at < band.size(); ++at) {
                extent.add(band.low[at]);
                extent.add(band.high[at]);
            }
    if (m_content.yFromZero && !onRight)
        extent.add(0);
    if (extent.isEmpty())
        return {0, 1};
    if (onRight && m_content.rightHeights > 1)
        return {0, std::max(extent.most, 1.0) * m_content.rightHeights};
    const double span = extent.most - extent.least;
    double room =
        span > 0 ? span * SeriesHeadroom : std::max(std::abs(extent.most) * SeriesHeadroom, 0.5);
    if (m_content.yWhole && !onRight)
        room = std::clamp(room, 0.25, 0.5); // no tick where nobody can stand, such as place 0
    const bool standsOnZero = extent.least == 0;
    const bool hangsFromZero = extent.most == 0 && extent.least < 0;
    return {standsOnZero ? 0 : extent.least - room, hangsFromZero ? 0 : extent.most + room};
}

void SeriesDrawing::setLimits(ChartPlot& plot) const {
    const auto range = [](const Extent& extent) { return QCPRange(extent.least, extent.most); };
    const bool hasRight =
        std::ranges::any_of(m_lines, [this](const Line& line) { return series(line).onRight; });
    if (hasRight)
        plot.setLimits(range(across()), range(height(false)), range(height(true)));
    else
        plot.setLimits(range(across()), range(height(false)));
}

SeriesLabel SeriesDrawing::labelOf(std::size_t place, const QPalette& palette) const {
    const ChartSeries& shown = m_content.series[place];
    SeriesLabel label;
    label.id = static_cast<int>(place);
    label.name = shown.name;
    label.style = seriesStyle(shown.slot, palette);
    label.onRight = shown.onRight;
    label.isHidden = !m_shown[place];
    label.isBar = shown.form == Form::Bars || shown.form == Form::StackedBars;
    const std::vector<QPointF> points = lineOf(place).points;
    const auto last = std::find_if(points.rbegin(), points.rend(), isDrawn);
    if (last != points.rend()) {
        label.end = *last;
        label.value = valueText(last->y());
    }
    return label;
}

std::vector<SeriesLabel> SeriesDrawing::labels(const QPalette& palette) const {
    std::vector<SeriesLabel> labels;
    for (std::size_t i = 0; i < m_content.series.size(); ++i)
        if (!m_content.series[i].isQuiet && !m_content.series[i].labelOf)
            labels.push_back(labelOf(i, palette));
    for (std::size_t i = 0; i < m_content.bands.size(); ++i) {
        const std::size_t id = m_content.series.size() + i;
        SeriesLabel label;
        label.id = static_cast<int>(id);
        label.name = m_content.bands[i].name;
        label.style = seriesStyle(m_content.bands[i].slot, palette);
        label.style.colour.setAlphaF(0.4F);
        label.isBar = true;
        label.isHidden = !m_shown[id];
        labels.push_back(label);
    }
    return labels;
}

} // namespace kavela::desktop
