#include "desktop/charts/chart_export.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/charts/interactive_chart.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QMimeData>
#include <QSvgGenerator>

namespace kavela::desktop {

namespace {

constexpr double PixelDensity = 2; ///< sharp on paper and on dense screens

struct ChartExport {
    Q_DECLARE_TR_FUNCTIONS(ChartExport)
};

QImage imageOf(SavedChart& chart) {
    const QSize size = chart.pictureSize();
    QImage image(size * PixelDensity, QImage::Format_RGB32);
    image.setDevicePixelRatio(PixelDensity);
    chart.paintPicture(image, size);
    return image;
}

QByteArray pngOf(SavedChart& chart) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    imageOf(chart).save(&buffer, "PNG");
    return bytes;
}

QByteArray svgOf(SavedChart& chart) {
    const QSize size = chart.pictureSize();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setTitle(chart.pictureTitle());
    generator.setDescription(chart.pictureCaption());
    chart.paintPicture(generator, size);
    return bytes;
}

/// A title as a name that every system takes.
QString asFileName(QString title) {
    for (const char reserved : R"(/\:*?"<>|)")
        if (reserved != '\0')
            title.replace(QLatin1Char(reserved), QLatin1Char('-'));
    return title.simplified();
}

} // namespace

std::string chartFile(SavedChart& chart, const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().string()).toLower();
    QByteArray bytes;
    if (extension == ".png")
        bytes = pngOf(chart);
    else if (extension == ".svg")
        bytes = svgOf(chart);
    else if (extension == ".csv")
        bytes = chart.csv().toUtf8();
    else
        throw FileError(path, "A chart is saved as .png, .svg or .csv");
    return bytes.toStdString();
}

void saveChart(SavedChart& chart, const std::filesystem::path& path) {
    writeFileSafely(path, chartFile(chart, path));
}

void copyPicture(SavedChart& chart) {
    auto* const data = new QMimeData;
    data->setImageData(imageOf(chart));
    data->setData(QStringLiteral("image/svg+xml"), svgOf(chart));
    QApplication::clipboard()->setMimeData(data);
}

void copyValues(SavedChart& chart) {
    QApplication::clipboard()->setText(tabSeparated(chart.csv()));
}

QString askChartPath(const QString& name, const QString& kind, const QString& folder,
                     QWidget* over) {
    const QString png = ChartExport::tr("Picture (*.png)");
    const QString svg = ChartExport::tr("Drawing (*.svg)");
    const QString csv = ChartExport::tr("Table (*.csv)");
    QFileDialog dialog(over, ChartExport::tr("Save chart"), folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({png, svg, csv});
    dialog.selectNameFilter(kind == "svg" ? svg : kind == "csv" ? csv : png);
    dialog.setDefaultSuffix(kind);
    dialog.selectFile(asFileName(name) + QLatin1Char('.') + kind);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        dialog.setDefaultSuffix(filter == svg ? "svg" : filter == csv ? "csv" : "png");
    });
    const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return isChosen ? dialog.selectedFiles().constFirst() : QString();
}

} // namespace kavela::desktop
