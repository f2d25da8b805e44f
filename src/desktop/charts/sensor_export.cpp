#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/sensor_drawing.h"

#include <QPainter>

#include <limits>

namespace kavela::desktop {

namespace {

constexpr double Never = std::numeric_limits<double>::infinity();

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

QString SensorChart::csv() {
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

void SensorChart::paintPicture(QPaintDevice& device, const QSize& size) {
    SensorScene shown = scene();
    shown.hasTimeAxis = true;
    shown.focused.reset();
    SensorDrawing drawing = *m_drawing;
    drawing.layOut(shown, size, *this);
    QPainter painter(&device);
    painter.fillRect(QRect(QPoint(), size), chartGround(palette()));
    drawing.paint(painter, shown, device.devicePixelRatioF());
}

} // namespace kavela::desktop
