#include "desktop/sessions/grid_model.h"

#include "common/text.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/shell/qt_text.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

QString titleOf(const SessionColumn& column) {
    const QString title = qtText(translated(column.title));
    return column.unit.empty() ? title : title + "\n(" + QString::fromStdString(column.unit) + ')';
}

/// Rows from before may have fewer cells.
Column<SessionGrid::Row, double> columnOf(const SessionGrid& grid, std::size_t place) {
    const auto isText = [place](const SessionGrid::Row& row) {
        return std::holds_alternative<std::string>(row.cells[place]);
    };
    Column<SessionGrid::Row, double> column{.title = titleOf(grid.columns[place])};
    column.kind = std::ranges::any_of(grid.rows, isText) ? ColumnKind::Text : ColumnKind::Number;
    column.show = [place, decimals = grid.columns[place].decimals](const SessionGrid::Row& row) {
        if (place >= row.cells.size())
            return Cell();
        const double* const number = std::get_if<double>(&row.cells[place]);
        return Cell{.text = cellText(row.cells[place], decimals),
                    .number = number ? std::optional(*number) : std::nullopt};
    };
    return column;
}

} // namespace

GridModel::GridModel(QObject* parent)
    : ColumnModel(
          {}, [](const SessionGrid::Row& row) { return row.moment; }, parent) {}

void GridModel::show(SessionGrid grid) {
    Columns columns;
    for (std::size_t place = 0; place < grid.columns.size(); ++place)
        columns.push_back(columnOf(grid, place));
    m_grid = std::move(grid);
    setColumns(std::move(columns));
    ColumnModel::show(m_grid.rows);
}

int GridModel::placeAtMoment(double moment) const {
    int found = -1;
    double latest = -HUGE_VAL;
    for (std::size_t place = 0; place < m_grid.rows.size(); ++place) {
        const double begin = m_grid.rows[place].moment;
        if (begin > moment || begin < latest)
            continue;
        latest = begin;
        found = static_cast<int>(place);
    }
    return found;
}

} // namespace kavela::desktop
