#include "desktop/tables/list_columns.h"

#include "common/text.h"
#include "desktop/race/cell_colours.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "performance/table_colours.h"
#include "tables/shown_decimals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace kavela::desktop {

namespace {

using SharedTable = std::shared_ptr<const ListTable>;
/// By line and text why a cell of the list is none of its column's kind.
using RefusedTexts = std::map<std::pair<std::int64_t, std::string>, std::string>;

QString translatedTitle(const char* text) {
    return QCoreApplication::translate("TablesWindow", text);
}

RefusedTexts refusedTexts(const ListTable& table) {
    RefusedTexts texts;
    for (const RefusedCell& cell : table.refused)
        if (cell.column > 0)
            texts.emplace(std::pair(cell.line, cell.text), cell.reason);
    return texts;
}

/// Shows the cells of one column.
class ListedColumn {
public:
    ListedColumn(SharedTable table, std::size_t place, std::shared_ptr<const RefusedTexts> refused,
                 ColourScale scale)
        : m_table(std::move(table)), m_refused(std::move(refused)), m_place(place), m_scale(scale) {
        const GridColumn& column = m_table->columns[place];
        m_decimals = ShownDecimals(column);
        if (std::ranges::find(m_table->coloured, column.name) != m_table->coloured.end())
            m_bands = tableBands(column);
    }

    [[nodiscard]] Cell operator()(const ListedRow& listed) const {
        if (listed.group)
            return titleCell(*listed.group);
        const GridColumn& column = m_table->columns[m_place];
        if (listed.row >= column.cells.size())
            return {};
        const GridCell& value = column.cells[listed.row];
        // What the list has stands as it was written there, but for noughts behind it.
        Cell cell{.text = qtText(m_decimals.textOf(value))};
        if (column.isDerived && value.number)
            cell.text = shownNumbers(cell.text);
        if (isReckoned(column.kind))
            cell.number = value.number;
        if (value.isStatus)
            cell.look = Cell::Look::Italic;
        if (!value.number && !value.isStatus)
            warn(value.text, listed.row, cell);
        if (listed.row < m_bands.size())
            if (const auto tint = bandTint(m_bands[listed.row], m_scale)) {
                cell.ground = *tint;
                cell.colour = Qt::black; // every tint is a light one
            }
        return cell;
    }

private:
    [[nodiscard]] Cell titleCell(std::size_t group) const {
        if (m_place > 0 || group >= m_table->groups.size())
            return {};
        const RowGroup& rows = m_table->groups[group];
        const QString key = rows.key.empty() ? QStringLiteral("–") : qtText(rows.key);
        return {.text = QStringLiteral("%1 (%2)").arg(key).arg(rows.count),
                .look = Cell::Look::Bold};
    }

    void warn(const std::string& text, std::size_t row, Cell& cell) const {
        const auto found = m_refused->find({m_table->lines[row], text});
        if (found == m_refused->end() || text.empty())
            return;
        cell.look = Cell::Look::Warning;
        cell.tip = qtText(found->second);
    }

    SharedTable m_table;
    std::shared_ptr<const RefusedTexts> m_refused;
    std::size_t m_place;
    ColourScale m_scale;
    ShownDecimals m_decimals;
    std::vector<Band> m_bands;
};

Column<ListedRow> athleteColumn(const TableDocument& document) {
    return {.title = translatedTitle("Athlete"),
            .tip = translatedTitle("Who of the team it is; a question mark: only you can tell"),
            .show = [rows = document.joined(),
                     athletes = *document.athletes()](const ListedRow& listed) -> Cell {
                if (listed.group || listed.row >= rows.size())
                    return {};
                const JoinedRow& joined = rows[listed.row];
                QStringList names;
                for (const std::size_t athlete : joined.athletes)
                    names.append(qtText(athletes[athlete].name));
                const bool isUnsure = joined.certainty == JoinCertainty::Unsure;
                return {.text = names.join(translatedTitle(" or ")) + (isUnsure ? "?" : ""),
                        .look = isUnsure ? Cell::Look::Warning : Cell::Look::Plain};
            }};
}

} // namespace

QString kindTitle(ListColumnKind kind) {
    static constexpr std::array<const char*, 6> Titles{KAVELA_TEXT("Whole numbers"),
                                                       KAVELA_TEXT("Decimal numbers"),
                                                       KAVELA_TEXT("Times"),
                                                       KAVELA_TEXT("DNF and the like"),
                                                       "Days",
                                                       KAVELA_TEXT("Text")};
    return translatedTitle(Titles.at(static_cast<std::size_t>(kind)));
}

std::vector<ListedRow> listedRows(const ListTable& table) {
    std::vector<ListedRow> rows;
    rows.reserve(table.rows() + table.groups.size());
    std::size_t group = 0;
    for (std::size_t row = 0; row < table.rows(); ++row) {
        if (group < table.groups.size() && table.groups[group].first == row)
            rows.push_back({row, group++});
        rows.push_back({row, std::nullopt});
    }
    return rows;
}

ListColumns listColumns(const TableDocument& document, ColourScale scale) {
    const SharedTable& table = document.table();
    const auto refused = std::make_shared<const RefusedTexts>(refusedTexts(*table));
    ListColumns columns;
    for (std::size_t place = 0; place < table->columns.size(); ++place) {
        const GridColumn& column = table->columns[place];
        const bool isNumber = isReckoned(column.kind);
        columns.push_back({.title = qtText(column.name),
                           .tip = column.isDerived ? translatedTitle("Reckoned from the list")
                                                   : kindTitle(column.kind),
                           .kind = isNumber ? ColumnKind::Number : ColumnKind::Text,
                           .show = ListedColumn(table, place, refused, scale)});
    }
    if (!document.joined().empty())
        columns.push_back(athleteColumn(document));
    return columns;
}

ColumnModel<RefusedCell>::Columns refusedColumns() {
    const auto number = [](std::int64_t value) {
        return value > 0
                   ? Cell{.text = QString::number(value), .number = static_cast<double>(value)}
                   : Cell{.text = QStringLiteral("–")};
    };
    return {{.title = translatedTitle("Line"),
             .kind = ColumnKind::Number,
             .show = [number](const RefusedCell& cell) { return number(cell.line); }},
            {.title = translatedTitle("Column"),
             .kind = ColumnKind::Number,
             .show = [number](const RefusedCell& cell) { return number(cell.column); }},
            textColumn<RefusedCell>(translatedTitle("What stands there"),
                                    [](const RefusedCell& cell) { return qtText(cell.text); }),
            textColumn<RefusedCell>(translatedTitle("Why it is not taken"),
                                    [](const RefusedCell& cell) { return qtText(cell.reason); })};
}

} // namespace kavela::desktop
