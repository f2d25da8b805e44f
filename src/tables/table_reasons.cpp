#include "tables/table_reasons.h"

#include "common/cell_id.h"
#include "tables/shown_decimals.h"
#include "tables/table_rules.h"
#include "tables/told_cells.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kavela {

namespace {

/// Finds the step that made a number, and lets it make the number again.
class TableReasons {
public:
    explicit TableReasons(const TableSteps& steps)
        : m_steps(steps.steps()), m_tables(steps.tables()) {}

    /// Of a cell as it stands after so many steps.
    [[nodiscard]] std::optional<Reason> of(std::size_t taken, std::size_t row,
                                           std::size_t column) const {
        const ListTable& table = m_tables[taken];
        const std::string& name = table.columns[column].name;
        const std::size_t id = table.ids[row];
        for (std::size_t after = taken; after > 0; --after) {
            const TableStep& step = m_steps[after - 1];
            if (const auto* const pivot = std::get_if<Pivot>(&step))
                return ofPivot(*pivot, after, id, name);
            const auto* const derived = std::get_if<DerivedColumn>(&step);
            // Names are unique: a column that stood there before is another step's.
            if (derived && !placeNamed(m_tables[after - 1], name))
                return ofDerived(*derived, after, id);
        }
        return ofList(table, row, column);
    }

private:
    static std::optional<std::size_t> placeNamed(const ListTable& table, const std::string& name) {
        const auto found = std::ranges::find(table.columns, name, &GridColumn::name);
        if (found == table.columns.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - table.columns.begin());
    }

    static std::size_t rowOf(const ListTable& table, std::size_t id) {
        return static_cast<std::size_t>(std::ranges::find(table.ids, id) - table.ids.begin());
    }

    [[nodiscard]] std::optional<Reason> ofDerived(const DerivedColumn& derived, std::size_t after,
                                                  std::size_t id) const {
        const ListTable& before = m_tables[after - 1];
        const std::size_t row = rowOf(before, id);
        Why why;
        if (!derivedCell(before, derived, row, &why).number)
            return std::nullopt;
        Reason reason = why.reason();
        for (const std::size_t column : columnsBehind(before, derived))
            if (before.columns[column].source == 0)
                if (auto part = of(after - 1, row, column))
                    reason.parts.push_back(std::move(*part));
        return reason;
    }

    /// Its first column holds the values that the rows were put together by.
    [[nodiscard]] std::optional<Reason> ofPivot(const Pivot& pivot, std::size_t after,
                                                std::size_t id, const std::string& name) const {
        const auto column = placeNamed(m_tables[after], name);
        Why why;
        if (!column || *column == 0 ||
            !pivotedCell(m_tables[after - 1], pivot, id, *column - 1, &why).number)
            return std::nullopt;
        return why.reason();
    }

    static std::optional<Reason> ofList(const ListTable& table, std::size_t row,
                                        std::size_t column) {
        const GridColumn& read = table.columns[column];
        const GridCell& cell = read.cells[row];
        if (!isReckoned(read.kind) || !cell.number)
            return std::nullopt;
        Why why;
        why.input(read.name, *cell.number, placeOfCell(table, column, row));
        why.result(ruleOf(TableRule::Read), *cell.number, ShownDecimals(read).textOf(cell));
        return why.reason();
    }

    std::vector<TableStep> m_steps;
    std::vector<ListTable> m_tables; ///< after so many steps
};

void putInFile(Reason& reason, const std::filesystem::path& file) {
    for (Input& input : reason.inputs)
        if (input.place)
            input.place->file = file;
    for (Reason& part : reason.parts)
        putInFile(part, file);
}

} // namespace

std::optional<Reason> explainTable(const TableSteps& steps, std::size_t row, std::size_t column,
                                   const std::filesystem::path& file) {
    const ListTable& table = steps.table();
    if (row >= table.rows() || column >= table.columns.size())
        return std::nullopt;
    const TableReasons reasons(steps);
    auto reason = reasons.of(steps.steps().size(), row, column);
    if (reason)
        putInFile(*reason, file);
    return reason;
}

std::optional<Reason> explainTable(const TableSteps& steps, std::string_view id,
                                   const std::filesystem::path& file) {
    const auto cell = parsedCellId(id);
    if (!cell)
        return std::nullopt;
    return explainTable(steps, cell->row, columnPlace(steps.table(), cell->column), file);
}

} // namespace kavela
