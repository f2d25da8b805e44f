#include "desktop/charts/sensor_drawing.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double TickRoom = 92;         ///< pixels between two moments
constexpr double ValueRoom = 24;        ///< pixels between two values
constexpr double LeastMarkDistance = 5; ///< pixels; closer lines would be a wall
constexpr double Swatch = 10;
constexpr float BandOpacity = 0.65F;
constexpr double SensorHeadroom = 0.06; ///< of the values, above and below

QFont heavy(QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
}

/// The name as it stands beside a value: "Ada 12.3 m/s²" has the unit, the axis title has it once.
QString valueWithUnit(const SensorSeries& series, std::optional<double> value) {
    if (!value)
        return QStringLiteral("–");
    return series.unit.isEmpty() ? sensorText(*value)
                                 : sensorText(*value) + QChar(0x202F) + series.unit;
}

QString tickText(double value, double step) {
    const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, 9);
    const bool isLong = std::abs(value) >= 1e6;
    QString text = isLong ? QString::number(value, 'g', 4) : shownNumber(value, decimals);
    return text.replace(QLatin1Char('-'), QChar(0x2212));
}

} // namespace

double niceStep(double range, double most) {
    const double raw = range / std::max(most, 1.0);
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double step : {1.0, 2.0, 5.0})
        if (step * power >= raw * (1 - 1e-9))
            return step * power;
    return 10 * power;
}

double niceTimeStep(double range, double most) {
    static constexpr std::array Steps{1,   2,   5,   10,   15,   30,   60,    120,
                                      300, 600, 900, 1800, 3600, 7200, 14400, 43200};
    const double raw = range / std::max(most, 1.0);
    if (raw <= 0.5 || raw > Steps.back())
        return niceStep(range, most);
    return *std::ranges::find_if(Steps, [&](int step) { return step >= raw; });
}

void SensorDrawing::setSeries(const std::vector<SensorSeries>& series) {
    std::vector<DrawnSeries> drawn;
    for (const SensorSeries& one : series) {
        const auto before = std::ranges::find_if(m_series, [&](const DrawnSeries& known) {
            return known.series.values == one.values && known.series.times == one.times;
        });
        if (before != m_series.end())
            drawn.push_back({one, before->pyramid, before->gap});
        else
            drawn.push_back(
                {one, one.pyramid ? one.pyramid : std::make_shared<SamplePyramid>(one.values),
                 joinedGap(*one.times)});
    }
    m_series = std::move(drawn);
}

QColor SensorDrawing::colourOf(const SensorSeries& series) const {
    return series.isQuiet ? backgroundRuns(m_palette) : seriesStyle(series.slot, m_palette).colour;
}

std::pair<double, double> SensorDrawing::valueRange(const SensorScene& scene) const {
    if (scene.values)
        return *scene.values;
    Extent extent;
    for (const DrawnSeries& drawn : m_series)
        if (!scene.hidden.contains(drawn.series.name))
            extent.add(drawn.extent(scene.from, scene.to));
    if (extent.isEmpty())
        return {0, 1};
    double room = (extent.high - extent.low) * SensorHeadroom;
    if (!(room > 1e-9 * std::max(1.0, std::abs(extent.high))))
        room = std::max(1.0, std::abs(extent.high) * 0.1); // a flat line stands in the middle
    return {extent.low - room, extent.high + room};
}

void SensorDrawing::layOut(const SensorScene& scene, const QSizeF& size, const QWidget& style) {
    m_palette = style.palette();
    m_font = theme::captionFont(style);
    m_titleFont = heavy(m_font);
    const QFontMetricsF metrics(m_font);
    const double line = std::ceil(metrics.height());
    m_valueWidth = metrics.horizontalAdvance(QStringLiteral("−0000.00")) + theme::SmallSpacing;
    // The same in all charts, so that their moments stand below each other.
    const double left =
        std::ceil(metrics.horizontalAdvance(QStringLiteral("−00000"))) + theme::LargeSpacing;
    const double bottom = scene.hasTimeAxis ? line + theme::Spacing : theme::SmallSpacing;
    const double top = line + theme::Spacing;
    m_scale.plot = QRectF(left, top, std::max(1.0, size.width() - left - theme::LargeSpacing),
                          std::max(1.0, size.height() - top - bottom));
    m_scale.from = scene.from;
    m_scale.to = scene.to;
    std::tie(m_scale.low, m_scale.high) = valueRange(scene);
    layOutLabels(scene, size.width());
}

/// From the right, as far as there is room beside the title.
void SensorDrawing::layOutLabels(const SensorScene& scene, double width) {
    m_labels.clear();
    const QFontMetricsF metrics(m_font);
    const double title = m_scale.plot.left() +
                         QFontMetricsF(m_titleFont).horizontalAdvance(scene.title) +
                         2 * theme::LargeSpacing;
    const auto count = static_cast<double>(m_series.size());
    const double room = (width - theme::LargeSpacing - title) / std::max(count, 1.0);
    const double widest = room - Swatch - 2 * theme::Spacing;
    double right = width - theme::LargeSpacing;
    for (std::size_t i = m_series.size(); i-- > 0;) {
        const SensorSeries& series = m_series[i].series;
        const double value =
            m_valueWidth + (series.unit.isEmpty() ? 0 : metrics.horizontalAdvance(series.unit));
        const QString name = m_series.size() == 1
                                 ? QString()
                                 : metrics.elidedText(series.name, Qt::ElideMiddle, widest - value);
        const double taken = Swatch + theme::Spacing + metrics.horizontalAdvance(name) + value;
        if (right - taken < title - theme::LargeSpacing)
            break;
        m_labels.push_back(
            {i, QRectF(right - taken, theme::SmallSpacing, taken, metrics.height()), name});
        right -= taken + theme::Spacing;
    }
}

std::optional<int> SensorDrawing::nameAt(const QPointF& at) const {
    for (const Label& label : m_labels)
        if (label.rect.contains(at) && !label.text.isEmpty())
            return static_cast<int>(label.series);
    return std::nullopt;
}

void SensorDrawing::paint(QPainter& painter, const SensorScene& scene, double pixelRatio) const {
    painter.setFont(m_titleFont);
    painter.setPen(m_palette.color(QPalette::WindowText));
    painter.drawText(
        QPointF(m_scale.plot.left(), theme::SmallSpacing + QFontMetricsF(m_titleFont).ascent()),
        scene.title);
    painter.setFont(m_font);
    if (m_series.empty()) {
        painter.setPen(theme::quietText(m_palette));
        painter.drawText(m_scale.plot, Qt::AlignCenter | Qt::TextWordWrap, scene.emptyText);
        return;
    }
    if (!(scene.to > scene.from))
        return;
    painter.save();
    painter.setClipRect(m_scale.plot);
    paintMarks(painter, scene);
    painter.restore();
    paintGrid(painter, scene);
    painter.save();
    painter.setClipRect(m_scale.plot);
    for (const bool isQuiet : {true, false})
        for (const DrawnSeries& drawn : m_series)
            if (drawn.series.isQuiet == isQuiet && !scene.hidden.contains(drawn.series.name))
                paintSeries(painter, drawn, pixelRatio);
    painter.restore();
    paintLabels(painter, scene);
}

void SensorDrawing::paintGrid(QPainter& painter, const SensorScene& scene) const {
    const QRectF& plot = m_scale.plot;
    const double height = painter.fontMetrics().height();
    const QPen grid(gridColour(m_palette), 1);
    const QPen text(theme::quietText(m_palette));
    const double step = niceStep(m_scale.high - m_scale.low, plot.height() / ValueRoom);
    for (double value = std::ceil(m_scale.low / step) * step; value <= m_scale.high;
         value += step) {
        const double y = std::round(m_scale.y(value)) + 0.5;
        const bool isZero = std::abs(value) < step / 2;
        painter.setPen(isZero ? QPen(backgroundRuns(m_palette), 1) : grid);
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(text);
        painter.drawText(QRectF(0, y - height / 2, plot.left() - theme::Spacing, height),
                         Qt::AlignRight | Qt::AlignVCenter, tickText(isZero ? 0 : value, step));
    }
    const double seconds = niceTimeStep(scene.to - scene.from, plot.width() / TickRoom);
    for (double time = std::ceil(scene.from / seconds) * seconds; time <= scene.to;
         time += seconds) {
        const double x = std::round(m_scale.x(time)) + 0.5;
        painter.setPen(grid);
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        if (!scene.hasTimeAxis)
            continue;
        painter.setPen(text);
        const double rounded = std::abs(time) < seconds / 2 ? 0 : time;
        const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(seconds))), 0, 3);
        painter.drawText(
            QRectF(x - TickRoom / 2, plot.bottom() + theme::SmallSpacing, TickRoom, height),
            Qt::AlignHCenter | Qt::AlignTop,
            scene.timeText ? scene.timeText(rounded) : momentText(rounded, decimals));
    }
}

void SensorDrawing::paintMarks(QPainter& painter, const SensorScene& scene) const {
    std::vector<const SensorMark*> lines;
    for (const SensorMark& mark : scene.marks) {
        if (mark.end < scene.from || mark.time > scene.to)
            continue;
        if (mark.end > mark.time)
            paintMark(painter, mark, m_scale.x(mark.end) - m_scale.x(mark.time));
        else if (mark.isStrong)
            paintMark(painter, mark, m_scale.plot.width());
        else
            lines.push_back(&mark);
    }
    const double distance = m_scale.plot.width() / static_cast<double>(lines.size() + 1);
    if (distance < LeastMarkDistance)
        return;
    for (const SensorMark* mark : lines)
        paintMark(painter, *mark, distance);
}

void SensorDrawing::paintMark(QPainter& painter, const SensorMark& mark, double room) const {
    const QRectF& plot = m_scale.plot;
    QColor colour = seriesStyle(mark.slot, m_palette).colour;
    const double x = m_scale.x(mark.time);
    const bool isSpan = mark.end > mark.time;
    if (isSpan) {
        colour.setAlphaF(theme::isDark(m_palette) ? 0.18F : 0.11F);
        painter.fillRect(QRectF(x, plot.top(), std::max(room, 1.0), plot.height()), colour);
    } else {
        // A faint line that leaves the curves alone, with a tick that is found at once.
        colour.setAlphaF(mark.isStrong ? 1.0F : 0.22F);
        painter.setPen(QPen(colour, 1));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        colour.setAlphaF(1);
        painter.setPen(QPen(colour, 1));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.top() + theme::SmallSpacing));
    }
    if (painter.fontMetrics().horizontalAdvance(mark.text) + 3 > room)
        return;
    painter.setPen(theme::quietText(m_palette));
    // Lines are named above, the others below, so that they do not meet.
    const bool isBelow = isSpan || mark.isStrong;
    painter.drawText(QPointF(x + 3, isBelow ? plot.bottom() - painter.fontMetrics().descent()
                                            : plot.top() + painter.fontMetrics().ascent()),
                     mark.text);
}

void SensorDrawing::paintSeries(QPainter& painter, const DrawnSeries& drawn,
                                double pixelRatio) const {
    const SensorLines made =
        linesOf(drawn, m_scale, static_cast<int>(std::ceil(m_scale.plot.width() * pixelRatio)));
    const QColor colour = colourOf(drawn.series);
    // A line one pixel wide is many times as quick as any other.
    QPen pen(colour, 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    // Bands of several series cover each other: each lets those below shine through.
    QColor band = colour;
    if (m_series.size() > 1)
        band.setAlphaF(BandOpacity);
    if (painter.paintEngine()->type() == QPaintEngine::Raster)
        paintBand(painter, made.columns, band, pixelRatio);
    else
        for (const QRectF& column : made.columns)
            painter.fillRect(column, band);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QPolygonF& line : made.lines)
        painter.drawPolyline(line);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (const QPointF& dot : made.dots)
        painter.drawEllipse(dot, 2, 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// Pixel by pixel, and then at once: thousands of rectangles that shine through would take the
/// painter many times as long.
void SensorDrawing::paintBand(QPainter& painter, const std::vector<QRectF>& columns,
                              const QColor& colour, double pixelRatio) const {
    if (columns.empty())
        return;
    const QRectF& plot = m_scale.plot;
    QImage image((plot.size() * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    const QRgb pixel = qPremultiply(colour.rgba());
    const auto stride = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
    const auto row = [&](double y) { return std::clamp(static_cast<int>(y), 0, image.height()); };
    for (const QRectF& column : columns) {
        const auto x = std::lround((column.left() - plot.left()) * pixelRatio);
        if (x < 0 || x >= image.width())
            continue;
        const int end = row(std::ceil((column.bottom() - plot.top()) * pixelRatio));
        for (int y = row(std::floor((column.top() - plot.top()) * pixelRatio)); y < end; ++y)
            pixels[y * stride + x] = pixel;
    }
    painter.drawImage(plot.topLeft(), image);
}

void SensorDrawing::paintLabels(QPainter& painter, const SensorScene& scene) const {
    for (const Label& label : m_labels) {
        if (label.text.isEmpty())
            continue;
        const SensorSeries& series = m_series[label.series].series;
        const bool isHidden = scene.hidden.contains(series.name);
        const double middle = label.rect.center().y();
        painter.setPen(QPen(isHidden ? theme::hairline(m_palette) : colourOf(series), 3));
        painter.drawLine(QPointF(label.rect.left(), middle),
                         QPointF(label.rect.left() + Swatch, middle));
        painter.setPen(isHidden ? theme::quietText(m_palette)
                                : m_palette.color(QPalette::WindowText));
        QFont font = m_font;
        font.setStrikeOut(isHidden);
        font.setUnderline(scene.focused == static_cast<int>(label.series));
        painter.setFont(font);
        painter.drawText(label.rect.adjusted(Swatch + theme::SmallSpacing, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, label.text);
    }
    painter.setFont(m_font);
}

void SensorDrawing::paintCursor(QPainter& painter, const SensorScene& scene, double time) const {
    if (m_series.empty() || !(scene.to > scene.from))
        return;
    const QRectF& plot = m_scale.plot;
    const double x = m_scale.x(time);
    if (x >= plot.left() && x <= plot.right()) {
        painter.setPen(QPen(m_palette.color(QPalette::WindowText), 1));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    }
    painter.setFont(m_font);
    for (const Label& label : m_labels) {
        const SensorSeries& series = m_series[label.series].series;
        if (scene.hidden.contains(series.name))
            continue;
        const auto sample = sampleAt(series, time);
        const auto value = sample ? std::optional((*series.values)[*sample]) : std::nullopt;
        // The dot sits on the sample itself, which may stand beside the cursor.
        const QPointF place =
            sample ? QPointF(m_scale.x((*series.times)[*sample] + series.offset), m_scale.y(*value))
                   : QPointF(-1, -1);
        if (plot.contains(place)) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(chartGround(m_palette), 1));
            painter.setBrush(colourOf(series));
            painter.drawEllipse(place, 3.5, 3.5);
            painter.setRenderHint(QPainter::Antialiasing, false);
        }
        painter.setPen(m_palette.color(QPalette::WindowText));
        // Beside its name, or alone at the right.
        const double name = label.text.isEmpty()
                                ? 0
                                : Swatch + 2 * theme::SmallSpacing +
                                      painter.fontMetrics().horizontalAdvance(label.text);
        painter.drawText(label.rect.adjusted(name, 0, 0, 0),
                         (label.text.isEmpty() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter,
                         valueWithUnit(series, value));
    }
}

} // namespace kavela::desktop
