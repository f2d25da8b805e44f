#include "desktop/charts/chart_export.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_frame.h"

#include <QBuffer>
#include <QFileDialog>
#include <QSvgGenerator>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr double PixelDensity = 2; ///< sharp on paper and on dense screens

/// A chart in a narrow corner of the window makes no useful picture.
QSize pictureSize(const ChartPlot& plot) {
    return plot.size().expandedTo({960, 540});
}

QByteArray pngOf(ChartPlot& plot) {
    const QSize size = pictureSize(plot);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    plot.toPixmap(size.width(), size.height(), PixelDensity).save(&buffer, "PNG");
    return bytes;
}

QByteArray svgOf(ChartPlot& plot) {
    const QSize size = pictureSize(plot);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setTitle(plot.title());
    generator.setDescription(plot.subtitle());
    QCPPainter painter;
    painter.begin(&generator);
    painter.setModes(QCPPainter::pmVectorized | QCPPainter::pmNoCaching);
    plot.toPainter(&painter, size.width(), size.height());
    painter.end();
    return bytes;
}

} // namespace

void saveChart(ChartFrame& chart, const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().string()).toLower();
    chart.plot().replot(); // what has not been on the screen yet has no layout
    QByteArray bytes;
    if (extension == ".png")
        bytes = pngOf(chart.plot());
    else if (extension == ".svg")
        bytes = svgOf(chart.plot());
    else if (extension == ".csv")
        bytes = chart.csv().toUtf8();
    else
        throw FileError(path, "A chart is saved as .png, .svg or .csv");
    writeFileSafely(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

QString askChartPath(const QString& name, QWidget* over) {
    const QString png = ChartFrame::tr("Picture (*.png)");
    const QString svg = ChartFrame::tr("Drawing (*.svg)");
    const QString csv = ChartFrame::tr("Table (*.csv)");
    QFileDialog dialog(over, ChartFrame::tr("Save chart"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({png, svg, csv});
    dialog.setDefaultSuffix("png");
    dialog.selectFile(name + QStringLiteral(".png"));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        dialog.setDefaultSuffix(filter == svg ? "svg" : filter == csv ? "csv" : "png");
    });
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return isChosen ? dialog.selectedFiles().constFirst() : QString();
}

} // namespace kavela::desktop
