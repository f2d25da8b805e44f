#include "desktop/team/charts/averages_model.h"

#include "desktop/shell/shown_number.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Nothing where the phase has no such value.
Cell shareCell(const std::vector<double>& values, std::size_t place, std::size_t count) {
    if (place >= count)
        return {};
    return {.text = shownNumber(values[place], 1) + " %", .number = values[place]};
}

/// Percentages by split have that of the whole run behind them, where it is known.
bool hasWhole(const mtAverageDataStruct& average) {
    return average.per.size() > average.peraccu.size();
}

std::size_t splitsOf(const mtAverageDataStruct& average) {
    return average.per.size() - (hasWhole(average) ? 1 : 0);
}

Cell wholeCell(const PhaseAverages& row) {
    const auto& values = row.average.per;
    return hasWhole(row.average) ? shareCell(values, values.size() - 1, values.size()) : Cell();
}

using AverageColumn = Column<PhaseAverages>;

AverageColumn shareColumn(const QString& title, std::size_t share) {
    return {.title = title,
            .tip = AveragesModel::tr("Share of the runs with so many penalty seconds"),
            .kind = ColumnKind::Number,
            .show = [share](const PhaseAverages& row) {
                return shareCell(row.average.pendis, share, row.average.pendis.size());
            }};
}

AverageColumn splitColumn(std::size_t split) {
    return {.title = AveragesModel::tr("S%1").arg(split + 1),
            .kind = ColumnKind::Number,
            .show = [split](const PhaseAverages& row) {
                return shareCell(row.average.per, split, splitsOf(row.average));
            }};
}

std::vector<AverageColumn> columnsFor(std::size_t splits) {
    std::vector<AverageColumn> columns;
    columns.push_back(textColumn<PhaseAverages>(
        AveragesModel::tr("Season"), [](const PhaseAverages& row) { return row.scope; }));
    columns.push_back(
        textColumn<PhaseAverages>(AveragesModel::tr("Phase"), [](const PhaseAverages& row) {
            return QString::fromStdString(row.average.phase);
        }));
    columns.push_back(
        {.title = AveragesModel::tr("Behind"), .kind = ColumnKind::Number, .show = wholeCell});
    std::size_t share = 0;
    for (const QString& title :
         {AveragesModel::tr("Clean"), AveragesModel::tr("2 s"), AveragesModel::tr("4 s"),
          AveragesModel::tr("6 to 48 s"), AveragesModel::tr("50 s and more")})
        columns.push_back(shareColumn(title, share++));
    for (std::size_t split = 0; split < splits; ++split)
        columns.push_back(splitColumn(split));
    return columns;
}

} // namespace

AveragesModel::AveragesModel(QObject* parent) : ColumnModel(columnsFor(0), KeyOf(), parent) {}

void AveragesModel::show(const mtSeasonStruct* season, const mtCatsStruct* category) {
    std::vector<PhaseAverages> rows;
    if (season)
        for (const mtAverageDataStruct& average : season->aves)
            rows.push_back({QString::number(season->year), average});
    if (category)
        for (const mtAverageDataStruct& average : category->aves)
            rows.push_back({tr("All seasons"), average});
    std::size_t splits = 0;
    for (const PhaseAverages& row : rows)
        splits = std::max(splits, splitsOf(row.average));
    setColumns(columnsFor(splits));
    ColumnModel::show(std::move(rows));
}

} // namespace kavela::desktop
