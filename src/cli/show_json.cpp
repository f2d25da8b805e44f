#include "cli/show_json.h"

#include "common/json_encode.h"

#include <cmath>

namespace kavela::cli {

namespace {

using Channels = std::array<double, 4>;

struct ColumnJson {
    std::optional<std::int32_t> number;
    std::string title;
};
BOOST_DESCRIBE_STRUCT(ColumnJson, (), (number, title))

struct CellJson {
    std::optional<std::int32_t> column;
    std::optional<double> value; ///< null when huge times of a damaged file add up to no number
    std::string text;
    std::optional<std::string> band;
    std::optional<Channels> background;
    std::optional<Channels> foreground;
};
BOOST_DESCRIBE_STRUCT(CellJson, (), (column, value, text, band, background, foreground))

struct RowJson {
    std::vector<std::string> names;
    std::string phase;
    std::string category;
    bool fullRun = false;
    std::vector<CellJson> cells;
};
BOOST_DESCRIBE_STRUCT(RowJson, (), (names, phase, category, fullRun, cells))

struct TableJson {
    std::vector<ColumnJson> columns;
    std::vector<RowJson> rows;
};
BOOST_DESCRIBE_STRUCT(TableJson, (), (columns, rows))

std::optional<Channels> channels(const std::optional<Colour>& colour) {
    if (!colour)
        return std::nullopt;
    return Channels{colour->red, colour->green, colour->blue, colour->alpha};
}

CellJson cellJson(const TableCell& cell) {
    CellJson json;
    json.column = cell.column;
    if (std::isfinite(cell.value))
        json.value = cell.value;
    json.text = cell.text;
    if (cell.band)
        json.band = bandName(*cell.band);
    json.background = channels(cell.background);
    json.foreground = channels(cell.foreground);
    return json;
}

RowJson rowJson(const TableRow& row) {
    RowJson json{row.run->names, row.run->phase, row.run->category, row.isFullRun, {}};
    json.cells.reserve(row.cells.size());
    for (const TableCell& cell : row.cells)
        json.cells.push_back(cellJson(cell));
    return json;
}

} // namespace

std::string tableJson(const SplitTable& table) {
    TableJson json;
    for (const TableColumn& column : table.columns)
        json.columns.push_back({column.number, column.title});
    for (const TableRow& row : table.rows)
        json.rows.push_back(rowJson(row));
    return encode(json) + '\n';
}

} // namespace kavela::cli
