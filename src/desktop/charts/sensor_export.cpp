#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/sensor_drawing.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <limits>

namespace kavela::desktop {

namespace {

constexpr double PixelDensity = 2; ///< sharp on paper and on dense screens
constexpr double Never = std::numeric_limits<double>::infinity();

/// A chart in a narrow strip of the window makes no useful picture.
QSize pictureSize(const QWidget& chart) {
    return chart.size().expandedTo({960, 320});
}

/// The way through the visible samples of one series.
struct Walk {
    const DrawnSeries* drawn;
    std::size_t next;
    std::size_t end;

    [[nodiscard]] double time() const {
        return next < end ? (*drawn->series.times)[next] + drawn->series.offset : Never;
    }
};

QString header(const std::vector<Walk>& walks) {
    QStringList fields{SensorChart::tr("Time (s)")};
    for (const Walk& walk : walks) {
        const SensorSeries& series = walk.drawn->series;
        fields << (series.unit.isEmpty() ? series.name
                                         : QStringLiteral("%1 (%2)").arg(series.name, series.unit));
    }
    return csvLine(fields);
}

} // namespace

QString SensorChart::csv() const {
    std::vector<Walk> walks;
    for (const DrawnSeries& drawn : m_drawing->series())
        if (!m_hidden.contains(drawn.series.name)) {
            const auto [begin, end] = drawn.indices(m_from, m_to);
            walks.push_back({&drawn, begin, end});
        }
    QString text = header(walks);
    while (true) {
        double time = Never;
        for (const Walk& walk : walks)
            time = std::min(time, walk.time());
        if (time == Never)
            return text;
        QStringList fields{csvNumber(time)};
        for (Walk& walk : walks) {
            const bool isHere = walk.time() == time;
            const double value = isHere ? (*walk.drawn->series.values)[walk.next] : Never;
            fields << (std::isfinite(value) ? csvNumber(value) : QString());
            walk.next += isHere ? 1 : 0;
        }
        text += csvLine(fields);
    }
}

void SensorChart::save(const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().string()).toLower();
    const QSize size = pictureSize(*this);
    SensorScene shown = scene();
    shown.hasTimeAxis = true;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    SensorDrawing drawing = *m_drawing;
    drawing.layOut(shown, size, *this);
    if (extension == ".png") {
        QImage image(size * PixelDensity, QImage::Format_RGB32);
        image.setDevicePixelRatio(PixelDensity);
        image.fill(chartGround(palette()));
        QPainter painter(&image);
        drawing.paint(painter, shown, PixelDensity);
        painter.end();
        image.save(&buffer, "PNG");
    } else if (extension == ".svg") {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(size);
        generator.setViewBox(QRect(QPoint(), size));
        generator.setTitle(m_title);
        QPainter painter(&generator);
        painter.fillRect(QRect(QPoint(), size), chartGround(palette()));
        drawing.paint(painter, shown, 1);
        painter.end();
    } else if (extension == ".csv") {
        bytes = csv().toUtf8();
    } else {
        throw FileError(path, "A chart is saved as .png, .svg or .csv");
    }
    writeFileSafely(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace kavela::desktop
