#include "desktop/tables/table_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "performance/table_join.h"
#include "tables/shown_decimals.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace kavela::desktop {

namespace {

QString translatedChart(const char* text) {
    return QCoreApplication::translate("TablesWindow", text);
}

/// What a row is called below the chart: its crew, else what stands first in it.
std::vector<QString> rowLabels(const ListTable& table) {
    std::vector<QString> labels;
    const bool hasCrews = table.rows() > 0 && crewOfRow(table, 0).has_value();
    for (std::size_t row = 0; row < table.rows(); ++row) {
        const std::string text = hasCrews ? crewOfRow(table, row).value_or(std::string())
                                          : table.columns.front().cells[row].text;
        labels.push_back(text.empty() ? QString::number(row + 1) : qtText(text));
    }
    return labels;
}

/// As the table shows it, so that both say the same to the digit.
QString tableValueText(const GridColumn& column, std::size_t row) {
    const QString text = qtText(ShownDecimals(column).textOf(column.cells[row]));
    return column.isDerived ? shownNumbers(text) : text;
}

QString columnSentence(const GridColumn& column, const std::vector<QString>& labels,
                       std::vector<std::size_t> counted) {
    const auto byNumber = [&](std::size_t a, std::size_t b) {
        return *column.counted(a) < *column.counted(b);
    };
    const auto [least, most] = std::ranges::minmax_element(counted, byNumber);
    const std::size_t left = labels.size() - counted.size();
    QString text =
        translatedChart("The least is %1 (%2), the most %3 (%4), of %5 rows")
            .arg(tableValueText(column, *least), labels[*least], tableValueText(column, *most),
                 labels[*most], QString::number(counted.size()));
    if (left > 0)
        text += translatedChart("; %1 without a number are left out").arg(left);
    return text + '.';
}

ChartSeries groupSeries(const GridColumn& column, const RowGroup& rows, std::size_t slot) {
    ChartSeries series;
    series.name = rows.key.empty() ? qtText(column.name) : qtText(rows.key);
    series.slot = slot;
    series.form = column.kind == ListColumnKind::Whole && !column.holdsTimes
                      ? ChartSeries::Form::StackedBars
                      : ChartSeries::Form::Points;
    for (std::size_t row = rows.first; row < rows.first + rows.count; ++row)
        if (const auto number = column.counted(row))
            series.points.push_back({static_cast<double>(row), *number});
    return series;
}

} // namespace

ChartContent columnContent(const ListTable& table, std::size_t place) {
    ChartContent content;
    content.emptyText =
        translatedChart("Choose a column of numbers or times: a click on one of its "
                        "cells, then C.");
    if (place >= table.columns.size() || !isReckoned(table.columns[place].kind))
        return content;
    const GridColumn& column = table.columns[place];
    const std::vector<QString> labels = rowLabels(table);
    std::vector<std::size_t> counted;
    content.title = qtText(column.name);
    content.yTitle = content.title;
    content.across = ChartContent::Across::Category;
    content.categories = QStringList(labels.begin(), labels.end());
    content.rowTitles = {translatedChart("Row"), content.title};
    std::vector<RowGroup> groups = table.groups;
    if (groups.empty())
        groups.push_back({{}, 0, table.rows()});
    for (std::size_t group = 0; group < groups.size(); ++group) {
        content.series.push_back(groupSeries(column, groups[group], group));
        for (const QPointF& point : content.series.back().points) {
            const auto row = static_cast<std::size_t>(point.x());
            counted.push_back(row);
            content.rows.push_back({group, point.x(), {labels[row], csvNumber(point.y())}});
        }
    }
    content.yFromZero = content.series.front().form == ChartSeries::Form::StackedBars;
    content.yWhole = column.kind == ListColumnKind::Whole;
    content.emptyText = translatedChart("No row has a number in this column.");
    if (!counted.empty())
        content.subtitle = columnSentence(column, labels, std::move(counted));
    return content;
}

} // namespace kavela::desktop
