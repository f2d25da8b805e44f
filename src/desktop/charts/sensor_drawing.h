#pragma once

#include "desktop/charts/sensor_lines.h"

#include <QFont>
#include <QPalette>

#include <functional>
#include <set>

class QPainter;
class QWidget;

namespace kavela::desktop {

/// What a SensorChart shows at a moment.
struct SensorScene {
    QString title;
    QString emptyText;
    const std::vector<SensorMark>& marks;
    const std::set<QString>& hidden;
    std::optional<int> focused{}; ///< the series whose name the keys act on
    double from = 0;
    double to = 0;
    std::optional<std::pair<double, double>> values; ///< of the value axis; else as the data asks
    std::function<QString(double)> timeText;
    bool hasTimeAxis = true;
};

/// Lays a SensorChart out and paints it, on the screen or into a file.
class SensorDrawing {
public:
    /// What was drawn before keeps what makes its drawing quick.
    void setSeries(const std::vector<SensorSeries>& series);
    [[nodiscard]] const std::vector<DrawnSeries>& series() const { return m_series; }

    /// Finds the places of everything in a size; to be called before the others.
    void layOut(const SensorScene& scene, const QSizeF& size, const QWidget& style);
    void paint(QPainter& painter, const SensorScene& scene, double pixelRatio) const;
    /// The cursor with what the series say there.
    void paintCursor(QPainter& painter, const SensorScene& scene, double time) const;

    [[nodiscard]] const SensorScale& scale() const { return m_scale; }
    /// The series whose name stands there.
    [[nodiscard]] std::optional<int> nameAt(const QPointF& at) const;

private:
    struct Label {
        std::size_t series;
        QRectF rect;
        QString text;
    };

    void layOutLabels(const SensorScene& scene, double width);
    [[nodiscard]] std::pair<double, double> valueRange(const SensorScene& scene) const;
    void paintGrid(QPainter& painter, const SensorScene& scene) const;
    void paintMarks(QPainter& painter, const SensorScene& scene) const;
    void paintMark(QPainter& painter, const SensorMark& mark, double room) const;
    void paintSeries(QPainter& painter, const DrawnSeries& drawn, double pixelRatio) const;
    void paintBand(QPainter& painter, const std::vector<QRectF>& columns, const QColor& colour,
                   double pixelRatio) const;
    void paintLabels(QPainter& painter, const SensorScene& scene) const;
    [[nodiscard]] QColor colourOf(const SensorSeries& series) const;

    std::vector<DrawnSeries> m_series;
    std::vector<Label> m_labels;
    SensorScale m_scale;
    QPalette m_palette;
    QFont m_font;
    QFont m_titleFont;
    double m_valueWidth = 0; ///< kept beside each name for its value
};

/// The step of an axis from 1, 2, 5 and tens that has at most so many steps.
[[nodiscard]] double niceStep(double range, double most);
/// The same for seconds, minutes and hours.
[[nodiscard]] double niceTimeStep(double range, double most);

} // namespace kavela::desktop
