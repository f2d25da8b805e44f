#include "cli/season_chart_text.h"

#include "common/display_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::cli {

namespace {

constexpr std::size_t ChartSteps = 3; ///< between the labelled lines
constexpr std::size_t LinesOfStep = 2;
constexpr std::size_t ChartLines = ChartSteps * LinesOfStep + 1;
constexpr std::size_t ChartColumns = 26;
constexpr int ScaleWidth = 5;

/// The least round step of which three reach a value.
double roundStep(double most) {
    constexpr std::array<double, 3> Round{1, 2, 5};
    for (double power = 0.1;; power *= 10)
        for (const double round : Round)
            if (static_cast<double>(ChartSteps) * round * power >= most)
                return round * power;
}

std::size_t lineAt(double percent, double top) {
    const double part = std::clamp(percent / top, 0.0, 1.0);
    return ChartLines - 1 -
           static_cast<std::size_t>(std::lround(part * static_cast<double>(ChartLines - 1)));
}

} // namespace

std::vector<std::string> progressionLines(const SeasonMember& member,
                                          const ProgressionChart& chart) {
    std::vector<ProgressionPoint> points;
    for (const ProgressionPoint& point : chart.points)
        if (!point.isMissed && std::isfinite(point.percent))
            points.push_back(point);
    if (points.empty())
        return {};
    if (points.size() > ChartColumns)
        points.erase(points.begin(), points.end() - static_cast<std::ptrdiff_t>(ChartColumns));
    double most = 0.1;
    for (const ProgressionPoint& point : points)
        most = std::max(most, point.percent);
    const double step = roundStep(most);
    const double top = static_cast<double>(ChartSteps) * step;
    std::vector<std::vector<std::string>> cells(ChartLines,
                                                std::vector<std::string>(ChartColumns, " "));
    if (chart.medalLine && *chart.medalLine <= top)
        std::ranges::fill(cells[lineAt(*chart.medalLine, top)], "┄");
    const std::size_t apart = 2 * points.size() <= ChartColumns ? 2 : 1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PhaseResult& phase = member.races[points[i].race].phases[points[i].phase];
        cells[lineAt(points[i].percent, top)][i * apart] = phaseMark(phase.phase);
    }
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < ChartLines; ++i) {
        const double value = top - static_cast<double>(i / LinesOfStep) * step;
        std::string line = i % LinesOfStep == 0
                               ? rightAligned(fmt::format("{:.4g}", value), ScaleWidth) + " ┤"
                               : rightAligned("", ScaleWidth) + " │";
        for (const std::string& cell : cells[i])
            line += cell;
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace kavela::cli
