#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

/// What a SeriesChart shows.
namespace kavela::desktop {

/// A series of a chart. Where a point is not finite, its line has a gap.
struct ChartSeries {
    enum class Form {
        Line,
        Points,
        LineAndPoints,
        Steps,
        Bars,       ///< beside those of the other series
        StackedBars ///< on top of the stacked bars of the series before
    };

    QString name;
    std::vector<QPointF> points; ///< in any order
    Form form = Form::LineAndPoints;
    std::size_t slot = 0;  ///< place among the colours of the charts
    bool onRight = false;  ///< measured on the right-hand axis
    bool isQuiet = false;  ///< behind the others, in grey, without a label
    bool isFaint = false;  ///< lets the others shine through, as bars below lines
    bool isStrong = false; ///< the one that is meant among many
    /// The place of a series whose label stands for this one too: they are hidden and shown
    /// together.
    std::optional<std::size_t> labelOf = std::nullopt;
};

/// A filled band behind the series, such as what is usual. The three are parallel, `x` ascending;
/// where one of them is not finite, the band has a gap.
struct ChartBand {
    QString name;
    std::vector<double> x;
    std::vector<double> low;
    std::vector<double> high;
    std::size_t slot = 0;

    /// Of the shortest of the three.
    [[nodiscard]] std::size_t size() const { return std::min({x.size(), low.size(), high.size()}); }
};

/// A line of the table that is saved.
struct ChartRow {
    std::size_t series = 0; ///< it is left out with this series, if there is one,
    double x = 0;           ///< and where this is not in view
    QStringList fields;
};

struct ChartContent {
    enum class Across {
        Number,
        Date,    ///< seconds since 2001-01-01 UTC; what is in no calendar is left out
        Category ///< the place in `categories`, from 0
    };

    QString title;
    QString subtitle; ///< one sentence
    QString xTitle;
    QString yTitle;
    QString rightTitle;
    Across across = Across::Number;
    QStringList categories;
    std::vector<ChartSeries> series;
    std::vector<ChartBand> bands;
    QString emptyText; ///< told instead, when there is no point to show
    bool yFromZero = false;
    bool yReversed = false; ///< the least on top, as for positions
    bool yWhole = false;    ///< counted, not measured: the ticks are whole numbers
    /// How much higher than what is measured on it the right-hand axis is: 3 keeps bars in the
    /// lower third.
    double rightHeights = 1;
    /// What CSV tells instead of the points, where they say too little.
    QStringList rowTitles;
    std::vector<ChartRow> rows;
};

} // namespace kavela::desktop
