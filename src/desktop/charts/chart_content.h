#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <vector>

/// What a SeriesChart shows.
namespace kavela::desktop {

/// A series of a chart. Where a point is not finite, its line has a gap.
struct ChartSeries {
    enum class Form { Line, Points, LineAndPoints, Bars, Steps };

    QString name;
    std::vector<QPointF> points; ///< in any order
    Form form = Form::LineAndPoints;
    std::size_t slot = 0; ///< place among the colours of the charts
    bool onRight = false; ///< measured on the right-hand axis
    bool isQuiet = false; ///< behind the others, in grey, without a label
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

struct ChartContent {
    enum class Across {
        Number,
        Date,    ///< seconds since 2001-01-01 UTC; what is in no calendar is left out
        Category ///< the place in `categories`, from 0
    };

    QString title;
    QString subtitle;
    QString xTitle;
    QString yTitle;
    QString rightTitle;
    Across across = Across::Number;
    QStringList categories;
    std::vector<ChartSeries> series;
    std::vector<ChartBand> bands;
    QString emptyText; ///< told instead, when there is no point to show
    bool yFromZero = false;
};

} // namespace kavela::desktop
