#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/charts/series_labels.h"

#include <functional>

namespace kavela::desktop {

/// How the visible series of a content are drawn, found again under the cursor and told. The id of
/// a series is its place in the content; those of the bands follow.
class SeriesDrawing {
public:
    /// The content must outlive the drawing.
    SeriesDrawing(const ChartContent& content, const std::function<bool(int id)>& isShown);

    void draw(ChartPlot& plot) const;
    void setLimits(ChartPlot& plot) const;
    [[nodiscard]] std::vector<SeriesLabel> labels(const QPalette& palette) const;

    /// Where the cursor can stand, ascending.
    [[nodiscard]] const std::vector<double>& places() const { return m_places; }
    [[nodiscard]] std::optional<double> placeNear(double x) const;
    /// The rows of a read-out: what stands no farther from a place than the tolerance.
    [[nodiscard]] QStringList rowsAt(double x, double tolerance, const QPalette& palette) const;

    struct Point {
        int series;
        int index;
    };
    [[nodiscard]] std::optional<Point> pointAt(ChartPlot& plot, const QPointF& position) const;

    /// What stands within a range along the axis, as semicolon-separated text.
    [[nodiscard]] QString csv(const QCPRange& range) const;

private:
    /// The points of a visible series in the order of the axis; gaps have a value that is no
    /// number.
    struct Line {
        std::size_t series;
        std::vector<QPointF> points;
        std::vector<std::size_t> indices; ///< of the points in the content
    };
    struct Extent;

    [[nodiscard]] Line lineOf(std::size_t series) const;
    void findPlaces();
    [[nodiscard]] SeriesLabel labelOf(std::size_t place, const QPalette& palette) const;
    void drawBand(ChartPlot& plot, const ChartBand& band) const;
    void drawLine(ChartPlot& plot, const Line& line) const;
    void drawBars(ChartPlot& plot) const;
    [[nodiscard]] double barUnit() const;
    /// Bars that stand beside each other at one place; stacked ones are one.
    [[nodiscard]] std::size_t barCount() const;
    [[nodiscard]] bool isStacked(const Line& line) const;
    [[nodiscard]] Extent stackHeight(bool onRight) const;
    [[nodiscard]] bool isBars(const Line& line) const;
    [[nodiscard]] QString csvOfRows(const QCPRange& range) const;
    [[nodiscard]] Extent across() const;
    [[nodiscard]] Extent height(bool onRight) const;
    [[nodiscard]] std::optional<Point> barAt(ChartPlot& plot, const QPointF& position) const;
    [[nodiscard]] const ChartSeries& series(const Line& line) const {
        return m_content.series[line.series];
    }

    const ChartContent& m_content;
    std::vector<bool> m_shown; ///< by id
    std::vector<Line> m_lines;
    std::vector<double> m_places;
};

/// Whether there is a point to show, in whatever series.
[[nodiscard]] bool hasPoints(const ChartContent& content);

} // namespace kavela::desktop
