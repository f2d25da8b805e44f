#include "desktop/team/charts/team_chart.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <QBuffer>
#include <QEvent>
#include <QGraphicsLayout>
#include <QPainter>
#include <QSvgGenerator>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QLegend>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>

namespace kavela::desktop {

namespace {

constexpr int PixelDensity = 2; ///< sharp on paper and on dense screens
constexpr int MarkerDensity = 4;
constexpr double MarkerSize = 12;

/// A marker of the legend shows and hides its series, and stays there to bring it back.
void toggleOnClick(QLegendMarker* marker) {
    QObject::connect(marker, &QLegendMarker::clicked, marker, [marker] {
        const bool isShown = !marker->series()->isVisible();
        marker->series()->setVisible(isShown);
        marker->setVisible(true);
        QBrush text = marker->labelBrush();
        QColor colour = text.color();
        colour.setAlphaF(isShown ? 1.0F : 0.4F);
        text.setColor(colour);
        marker->setLabelBrush(text);
    });
}

/// The shape that goes with a colour.
QImage markerImage(const SeriesStyle& style, double size) {
    const int side = static_cast<int>(size) * MarkerDensity;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QCPPainter painter;
    painter.begin(&image);
    painter.setAntialiasing(true);
    const QCPScatterStyle shape = markerOf(style, side - MarkerDensity);
    shape.applyTo(&painter, QPen(style.colour, MarkerDensity));
    shape.drawShape(&painter, side / 2.0, side / 2.0);
    painter.end();
    return image;
}

QByteArray pngOf(TeamChart& chart) {
    QImage image(chart.size() * PixelDensity, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(PixelDensity);
    image.fill(chartGround(chart.palette()));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    chart.render(&painter, QRectF(QPointF(), chart.size()), chart.rect());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray svgOf(TeamChart& chart) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(chart.size());
    generator.setViewBox(chart.rect());
    generator.setTitle(chart.chart()->title());
    QPainter painter(&generator);
    chart.render(&painter, QRectF(QPointF(), chart.size()), chart.rect());
    painter.end();
    return bytes;
}

} // namespace

TeamChart::TeamChart(QWidget* parent) : QChartView(parent) {
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    chart()->setMargins({theme::SmallSpacing, 0, theme::SmallSpacing, 0});
    chart()->setBackgroundRoundness(0);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    chart()->legend()->setAlignment(Qt::AlignRight);
    chart()->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    paintInColours();
}

void TeamChart::clear(const QString& hint) {
    chart()->removeAllSeries();
    for (QAbstractAxis* axis : chart()->axes()) {
        chart()->removeAxis(axis);
        delete axis;
    }
    m_csv.clear();
    setTitle(hint);
    chart()->legend()->hide();
}

void TeamChart::setStyle(QLineSeries& line, std::size_t slot, bool isChosen) const {
    const SeriesStyle style = seriesStyle(slot % MostSeries, palette());
    QPen pen(style.colour, isChosen ? 4 : 2);
    pen.setStyle(style.line);
    line.setPen(pen);
    const double size = isChosen ? MarkerSize + 4 : MarkerSize;
    line.setMarkerSize(size);
    line.setLightMarker(markerImage(style, size));
}

void TeamChart::finish() {
    chart()->legend()->show();
    for (QLegendMarker* marker : chart()->legend()->markers())
        toggleOnClick(marker);
    paintInColours();
}

void TeamChart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintInColours();
}

void TeamChart::paintInColours() {
    const QColor text = palette().color(QPalette::WindowText);
    const QColor grid = gridColour(palette());
    setBackgroundBrush(chartGround(palette()));
    chart()->setBackgroundBrush(chartGround(palette()));
    chart()->setTitleBrush(text);
    chart()->setTitleFont(theme::captionFont(*this));
    chart()->legend()->setLabelColor(text);
    chart()->legend()->setFont(theme::captionFont(*this));
    for (QAbstractAxis* axis : chart()->axes()) {
        axis->setLabelsColor(text);
        axis->setTitleBrush(text);
        axis->setTitleFont(theme::captionFont(*this));
        axis->setLabelsFont(theme::captionFont(*this));
        axis->setGridLineColor(grid);
        axis->setLinePenColor(grid);
    }
}

void saveTeamChart(TeamChart& chart, const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().string()).toLower();
    QByteArray bytes;
    if (extension == ".png")
        bytes = pngOf(chart);
    else if (extension == ".svg")
        bytes = svgOf(chart);
    else if (extension == ".csv")
        bytes = chart.csv().toUtf8();
    else
        throw FileError(path, "a chart is saved as .png, .svg or .csv");
    writeFileSafely(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace kavela::desktop
