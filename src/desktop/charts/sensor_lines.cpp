#include "desktop/charts/sensor_lines.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::size_t FewSamples = 2;  ///< a column: up to here each is drawn
constexpr double DotDistance = 7;      ///< pixels between samples that are seen one by one
constexpr double FarthestPixel = 2000; ///< outside the plot: enough for the slope of a line

/// Collects the points of lines that are broken where samples are missing.
class LineMaker {
public:
    explicit LineMaker(double gap) : m_gap(gap) {}

    /// Samples follow between these two moments.
    void reach(double first, double last) {
        if (!m_line.empty() && first - m_end > m_gap)
            breakOff();
        m_end = last;
    }
    void add(const QPointF& point) {
        if (m_line.empty() || m_line.back() != point)
            m_line.append(point);
    }
    void breakOff() {
        if (m_line.size() == 1)
            m_made.dots.push_back(m_line.front());
        else if (!m_line.empty())
            m_made.lines.push_back(std::move(m_line));
        m_line.clear();
    }
    [[nodiscard]] SensorLines take() {
        breakOff();
        return std::move(m_made);
    }

private:
    double m_gap;
    double m_end = 0;
    QPolygonF m_line;
    SensorLines m_made;
};

SensorLines everySample(const DrawnSeries& drawn, const SensorScale& scale, std::size_t begin,
                        std::size_t end) {
    const std::vector<double>& times = *drawn.series.times;
    const std::vector<double>& values = *drawn.series.values;
    LineMaker maker(drawn.gap);
    for (std::size_t i = begin; i < end; ++i) {
        if (!std::isfinite(values[i])) {
            maker.breakOff();
            continue;
        }
        maker.reach(times[i], times[i]);
        maker.add({scale.x(times[i] + drawn.series.offset), scale.y(values[i])});
    }
    SensorLines made = maker.take();
    if (static_cast<double>(end - begin) * DotDistance < scale.plot.width())
        for (const QPolygonF& line : made.lines)
            made.dots.insert(made.dots.end(), line.begin(), line.end());
    return made;
}

/// The columns of a series, from left to right.
class ColumnMaker {
public:
    ColumnMaker(const DrawnSeries& drawn, const SensorScale& scale, int columns)
        : m_drawn(drawn), m_scale(scale), m_width(scale.plot.width() / columns) {}

    /// The samples from `begin` to before `end` stand in the column with its left edge at `x`.
    void add(double x, std::size_t begin, std::size_t end) {
        const Extent extent = m_drawn.pyramid->over(begin, end);
        const std::vector<double>& times = *m_drawn.series.times;
        const bool isJoined = m_isOpen && times[begin] - m_last <= m_drawn.gap;
        m_isOpen = !extent.isEmpty();
        m_last = times[end - 1];
        if (!m_isOpen)
            return;
        double top = m_scale.y(extent.high);
        double bottom = std::max(m_scale.y(extent.low), top + m_width);
        if (isJoined) {
            top = std::min(top, m_before.bottom());
            bottom = std::max(bottom, m_before.top());
        }
        m_columns.emplace_back(x, top, m_width, bottom - top);
        m_before =
            QRectF(x, m_scale.y(extent.high), 0, m_scale.y(extent.low) - m_scale.y(extent.high));
    }
    [[nodiscard]] std::vector<QRectF> take() { return std::move(m_columns); }

private:
    const DrawnSeries& m_drawn;
    const SensorScale& m_scale;
    double m_width;
    bool m_isOpen = false; ///< there is a column that the next one may be joined to
    double m_last = 0;     ///< moment of its last sample
    QRectF m_before;       ///< what its samples alone fill
    std::vector<QRectF> m_columns;
};

/// The first sample at or after a moment, sought from `begin` on in growing strides: columns follow
/// each other, and the next one begins nearby.
std::size_t seek(const std::vector<double>& times, double time, std::size_t begin, std::size_t end,
                 std::size_t stride) {
    std::size_t reached = begin;
    for (stride = std::max<std::size_t>(stride, 1); reached < end && times[reached] < time;
         stride *= 2) {
        begin = reached;
        reached = std::min(end, reached + stride);
        if (reached == end)
            break;
    }
    const auto at = [&](std::size_t i) { return times.begin() + static_cast<std::ptrdiff_t>(i); };
    return static_cast<std::size_t>(std::lower_bound(at(begin), at(reached), time) - times.begin());
}

std::vector<QRectF> everyColumn(const DrawnSeries& drawn, const SensorScale& scale,
                                std::size_t begin, std::size_t end, int columns) {
    ColumnMaker maker(drawn, scale, columns);
    const double width = scale.plot.width() / columns;
    std::size_t next = begin;
    std::size_t usual = 1;
    for (int column = -1; column <= columns && next < end; ++column) {
        const double left = scale.plot.left() + column * width;
        const double until = scale.time(left + width) - drawn.series.offset;
        const std::size_t stop = seek(*drawn.series.times, until, next, end, usual);
        if (stop > next)
            maker.add(left, next, stop);
        usual = stop - next;
        next = stop;
    }
    return maker.take();
}

} // namespace

double SensorScale::x(double time) const {
    return plot.left() + (time - from) / (to - from) * plot.width();
}

double SensorScale::y(double value) const {
    const double pixel = plot.bottom() - (value - low) / (high - low) * plot.height();
    return std::clamp(pixel, plot.top() - FarthestPixel, plot.bottom() + FarthestPixel);
}

double SensorScale::time(double pixel) const {
    return from + (pixel - plot.left()) / plot.width() * (to - from);
}

std::pair<std::size_t, std::size_t> DrawnSeries::indices(double from, double to) const {
    const std::vector<double>& times = *series.times;
    const auto begin = std::ranges::lower_bound(times, from - series.offset);
    const auto end = std::upper_bound(begin, times.end(), to - series.offset);
    return {static_cast<std::size_t>(begin - times.begin()),
            static_cast<std::size_t>(end - times.begin())};
}

Extent DrawnSeries::extent(double from, double to) const {
    const auto [begin, end] = indices(from, to);
    return pyramid->over(begin, end);
}

SensorLines linesOf(const DrawnSeries& drawn, const SensorScale& scale, int columns) {
    if (columns < 1 || !(scale.to > scale.from))
        return {};
    auto [begin, end] = drawn.indices(scale.from, scale.to);
    // One more on each side, for the lines that leave the plot.
    begin -= std::min<std::size_t>(begin, 1);
    end = std::min(end + 1, drawn.series.times->size());
    if (end - begin <= FewSamples * static_cast<std::size_t>(columns))
        return everySample(drawn, scale, begin, end);
    return {.lines = {}, .dots = {}, .columns = everyColumn(drawn, scale, begin, end, columns)};
}

} // namespace kavela::desktop
