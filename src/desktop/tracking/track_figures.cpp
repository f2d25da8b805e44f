#include "desktop/tracking/track_figures.h"

#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>
#include <optional>

namespace kavela::desktop {

namespace {

QString trackText(const char* text) {
    return QCoreApplication::translate("Tracking", text);
}

template <class Place>
std::optional<double> acrossOf(const std::optional<Place>& place) {
    return place ? std::optional(place->x) : std::nullopt;
}

template <class Place>
std::optional<double> downOf(const std::optional<Place>& place) {
    return place ? std::optional(place->y) : std::nullopt;
}

Column<PathFigure> figureColumn(const QString& title, const char* unit, int decimals,
                                std::function<std::optional<double>(const PathFigure&)> figure) {
    Column<PathFigure> column =
        numberColumn<PathFigure>(title, std::move(figure),
                                 [decimals](double value) { return shownNumber(value, decimals); });
    column.unit = QString::fromUtf8(unit);
    return column;
}

QString speedSentence(const std::vector<PathFigure>& figures, bool isScaleOnly) {
    const PathFigure* fastest = nullptr;
    for (const PathFigure& figure : figures)
        if (figure.speed && (!fastest || *figure.speed > *fastest->speed))
            fastest = &figure;
    if (!fastest)
        return {};
    const QString at = shownHundredths(*fastest->seconds);
    QString speed = shownNumber(*fastest->speed, 1);
    if (fastest->speedError)
        speed += QStringLiteral(" ± ") + shownNumber(*fastest->speedError, 1);
    return (isScaleOnly ? trackText("Fastest at %1 s of the film: %2 m/s (a scale only: it holds "
                                    "near the two points and along their line).")
                        : trackText("Fastest at %1 s of the film: %2 m/s."))
        .arg(at, speed);
}

} // namespace

std::vector<Column<PathFigure>> pathColumns() {
    return {figureColumn(trackText("Frame"), "", 0,
                         [](const PathFigure& figure) {
                             return std::optional(static_cast<double>(figure.frame));
                         }),
            figureColumn(trackText("Time"), "s", 3,
                         [](const PathFigure& figure) { return figure.seconds; }),
            figureColumn(QStringLiteral("x"), "px", 1,
                         [](const PathFigure& figure) { return acrossOf(figure.place); }),
            figureColumn(QStringLiteral("y"), "px", 1,
                         [](const PathFigure& figure) { return downOf(figure.place); }),
            figureColumn(trackText("Steadied x"), "px", 1,
                         [](const PathFigure& figure) { return acrossOf(figure.steadied); }),
            figureColumn(trackText("Steadied y"), "px", 1,
                         [](const PathFigure& figure) { return downOf(figure.steadied); }),
            figureColumn(trackText("Across"), "m", 2,
                         [](const PathFigure& figure) { return acrossOf(figure.water); }),
            figureColumn(trackText("Along"), "m", 2,
                         [](const PathFigure& figure) { return downOf(figure.water); }),
            figureColumn(trackText("Speed"), "m/s", 2,
                         [](const PathFigure& figure) { return figure.speed; }),
            figureColumn(QStringLiteral("±"), "m/s", 2,
                         [](const PathFigure& figure) { return figure.speedError; }),
            figureColumn(trackText("Score"), "", 2,
                         [](const PathFigure& figure) { return figure.score; })};
}

ChartContent speedContent(const std::vector<PathFigure>& figures, bool hasPlane, bool isScaleOnly) {
    constexpr double Nothing = std::numeric_limits<double>::quiet_NaN();
    ChartContent content;
    content.title = trackText("Speed");
    content.subtitle = speedSentence(figures, isScaleOnly);
    content.xTitle = trackText("Film [s]");
    content.yTitle = trackText("m/s");
    content.yFromZero = true;
    content.emptyText =
        figures.empty() ? trackText("Draw a box round what is to be followed.")
        : !hasPlane ? trackText("Click known points on the water for metres and speeds: the poles "
                                "of two gates, or of one for a scale only.")
                    : trackText("There is no speed: the path is too short, or the camera's motion "
                                "is not known.");
    ChartSeries speed{trackText("Speed"), {}, ChartSeries::Form::Line};
    ChartBand band;
    band.name = trackText("Uncertainty of the clicks");
    double last = 0;
    for (const PathFigure& figure : figures) {
        // A gap has no time of its own; its point only interrupts the line.
        last = figure.seconds.value_or(last);
        speed.points.emplace_back(last, figure.speed.value_or(Nothing));
        const bool isKnown = figure.speed && figure.speedError;
        band.x.push_back(last);
        band.low.push_back(isKnown ? *figure.speed - *figure.speedError : Nothing);
        band.high.push_back(isKnown ? *figure.speed + *figure.speedError : Nothing);
    }
    if (!content.subtitle.isEmpty()) {
        content.series.push_back(std::move(speed));
        content.bands.push_back(std::move(band));
    }
    return content;
}

} // namespace kavela::desktop
