#include "desktop/charts/chart_csv.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_axis.h"
#include "desktop/charts/series_drawing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <map>

namespace kavela::desktop {

namespace {

constexpr double ClickReach = 10; ///< pixels

QString tr(const char* text) {
    return QCoreApplication::translate("SeriesChart", text);
}

QString placeHeader(const ChartContent& content) {
    if (!content.xTitle.isEmpty())
        return content.xTitle;
    switch (content.across) {
    case ChartContent::Across::Date:
        return tr("Date");
    case ChartContent::Across::Category:
        return tr("Category");
    case ChartContent::Across::Number:
        break;
    }
    return tr("Place");
}

/// The rows of a table by their place along the axis; several where a series has several points.
class Table {
public:
    explicit Table(qsizetype columns) : m_columns(columns) {}

    void add(double place, qsizetype column, double value) {
        std::vector<QStringList>& rows = m_rows[place];
        auto free = std::ranges::find_if(
            rows, [&](const QStringList& row) { return row[column].isEmpty(); });
        if (free == rows.end())
            free = rows.insert(free, QStringList(m_columns, QString()));
        (*free)[column] = csvNumber(value);
    }

    [[nodiscard]] const std::map<double, std::vector<QStringList>>& rows() const { return m_rows; }

private:
    qsizetype m_columns;
    std::map<double, std::vector<QStringList>> m_rows;
};

} // namespace

std::optional<double> SeriesDrawing::placeNear(double x) const {
    if (m_places.empty() || std::isnan(x))
        return std::nullopt;
    const auto above = std::ranges::lower_bound(m_places, x);
    if (above == m_places.begin())
        return *above;
    if (above == m_places.end() || x - *(above - 1) <= *above - x)
        return *(above - 1);
    return *above;
}

QStringList SeriesDrawing::rowsAt(double x, double tolerance, const QPalette& palette) const {
    QStringList rows;
    for (const Line& line : m_lines) {
        if (series(line).isQuiet)
            continue;
        const QPointF* nearest = nullptr;
        for (const QPointF& point : line.points)
            if (!std::isnan(point.y()) && std::abs(point.x() - x) <= tolerance &&
                (!nearest || std::abs(point.x() - x) < std::abs(nearest->x() - x)))
                nearest = &point;
        if (nearest)
            rows << readOutRow({series(line).name, valueText(nearest->y())},
                               seriesStyle(series(line).slot, palette).colour);
    }
    for (std::size_t i = 0; i < m_content.bands.size(); ++i) {
        const ChartBand& band = m_content.bands[i];
        for (std::size_t at = 0; at < band.size() && m_shown[m_content.series.size() + i]; ++at)
            if (band.x[at] == x && isDrawable(band.low[at]) && isDrawable(band.high[at]))
                rows << readOutRow({band.name, valueText(band.low[at]) +
                                                   QStringLiteral(" \u2013 ") +
                                                   valueText(band.high[at])},
                                   seriesStyle(band.slot, palette).colour);
    }
    return rows;
}

std::optional<SeriesDrawing::Point> SeriesDrawing::pointAt(ChartPlot& plot,
                                                           const QPointF& position) const {
    std::optional<Point> found;
    double least = ClickReach;
    for (const Line& line : m_lines) {
        if (isBars(line) || series(line).isQuiet)
            continue;
        const QCPAxis& axis = series(line).onRight ? *plot.yAxis2 : *plot.yAxis;
        for (std::size_t i = 0; i < line.points.size(); ++i) {
            const QPointF pixel(plot.xAxis->coordToPixel(line.points[i].x()),
                                axis.coordToPixel(line.points[i].y()));
            const double distance = QLineF(pixel, position).length();
            if (distance > least || std::isnan(distance))
                continue;
            least = distance;
            found = {static_cast<int>(line.series), static_cast<int>(line.indices[i])};
        }
    }
    return found ? found : barAt(plot, position);
}

std::optional<SeriesDrawing::Point> SeriesDrawing::barAt(ChartPlot& plot,
                                                         const QPointF& position) const {
    auto line = std::ranges::find_if(m_lines, [this](const Line& each) { return isBars(each); });
    for (int i = 0; i < plot.plottableCount() && line != m_lines.end(); ++i) {
        const auto* const bars = qobject_cast<QCPBars*>(plot.plottable(i));
        if (!bars)
            continue;
        QVariant details;
        if (bars->selectTest(position, false, &details) >= 0) {
            const int at = details.value<QCPDataSelection>().dataRange().begin();
            return Point{static_cast<int>(line->series),
                         static_cast<int>(line->indices[static_cast<std::size_t>(at)])};
        }
        line = std::find_if(line + 1, m_lines.end(),
                            [this](const Line& each) { return isBars(each); });
    }
    return std::nullopt;
}

QString SeriesDrawing::csvOfRows(const QCPRange& range) const {
    QString text = csvLine(m_content.rowTitles);
    for (const ChartRow& row : m_content.rows)
        if ((row.series >= m_content.series.size() || m_shown[row.series]) && range.contains(row.x))
            text += csvLine(row.fields);
    return text;
}

QString SeriesDrawing::csv(const QCPRange& range) const {
    if (!m_content.rowTitles.isEmpty())
        return csvOfRows(range);
    QStringList header{placeHeader(m_content)};
    for (const Line& line : m_lines)
        header << series(line).name;
    for (std::size_t i = 0; i < m_content.bands.size(); ++i)
        if (m_shown[m_content.series.size() + i])
            header << tr("%1: low").arg(m_content.bands[i].name)
                   << tr("%1: high").arg(m_content.bands[i].name);
    Table table(header.size() - 1);
    qsizetype column = 0;
    for (const Line& line : m_lines) {
        for (const QPointF& point : line.points)
            if (!std::isnan(point.y()) && range.contains(point.x()))
                table.add(point.x(), column, point.y());
        ++column;
    }
    for (std::size_t i = 0; i < m_content.bands.size(); ++i) {
        if (!m_shown[m_content.series.size() + i])
            continue;
        const ChartBand& band = m_content.bands[i];
        for (std::size_t at = 0; at < band.size(); ++at)
            if (isDrawable(m_content.across, band.x[at]) && range.contains(band.x[at]) &&
                isDrawable(band.low[at]) && isDrawable(band.high[at])) {
                table.add(band.x[at], column, band.low[at]);
                table.add(band.x[at], column + 1, band.high[at]);
            }
        column += 2;
    }
    QString text = csvLine(header);
    for (const auto& [place, rows] : table.rows())
        for (const QStringList& row : rows)
            text += csvLine(QStringList(m_content.across == ChartContent::Across::Number
                                            ? csvNumber(place)
                                            : placeText(m_content, place)) +
                            row);
    return text;
}

} // namespace kavela::desktop
