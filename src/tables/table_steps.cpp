#include "tables/table_steps.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "tables/table_error.h"
#include "tables/table_order.h"

#include <algorithm>
#include <span>
#include <utility>

namespace kavela {

namespace {

/// Carries one step out. What tells how the list is read was done before.
struct StepTaker {
    ListTable& table;

    void operator()(const TitlesStep&) const {}
    void operator()(const KindStep& step) const { (void)columnPlace(table, step.column); }

    void operator()(const RemoveStep& step) const {
        const std::size_t place = columnPlace(table, step.column);
        std::erase(table.coloured, table.columns[place].name);
        table.columns.erase(table.columns.begin() + static_cast<std::ptrdiff_t>(place));
    }

    void operator()(const FilterStep& step) const {
        const GridColumn& column = table.columns[columnPlace(table, step.column)];
        const std::string wanted = folded(step.text);
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < table.rows(); ++row) {
            const std::string text = folded(column.cells[row].text);
            if (step.isWhole ? text == wanted : text.find(wanted) != text.npos)
                rows.push_back(row);
        }
        const std::vector<RowGroup> groups = std::exchange(table.groups, {});
        std::vector<RowGroup> left;
        std::size_t first = 0;
        for (const RowGroup& group : groups) {
            const auto isWithin = [&](std::size_t row) {
                return row >= group.first && row < group.first + group.count;
            };
            const auto count = static_cast<std::size_t>(std::ranges::count_if(rows, isWithin));
            if (count > 0)
                left.push_back({group.key, first, count});
            first += count;
        }
        table = withRows(table, rows);
        table.groups = std::move(left);
    }

    void operator()(const SortStep& step) const {
        table = sortedBy(table, step.column, step.isDescending);
    }

    void operator()(const GroupStep& step) const {
        if (step.column.empty())
            table.groups.clear();
        else
            table = groupedBy(table, step.column);
    }

    void operator()(const TintStep& step) const {
        const GridColumn& column = table.columns[columnPlace(table, step.column)];
        requireNumbers(column);
        std::erase(table.coloured, column.name);
        if (step.isTinted)
            table.coloured.push_back(column.name);
    }

    void operator()(const DerivedColumn& step) const {
        table = withDerived(std::move(table), step);
    }
    void operator()(const Pivot& step) const { table = pivoted(table, step); }
};

struct StepWriter {
    std::string operator()(const TitlesStep& step) const {
        return step.hasTitles ? say("First line is titles") : say("First line is a row");
    }
    std::string operator()(const KindStep& step) const {
        return say("Read {} as {}", step.column, translated(kindName(step.kind)));
    }
    std::string operator()(const RemoveStep& step) const {
        return say("Leave out {}", step.column);
    }
    std::string operator()(const FilterStep& step) const {
        return say("Keep {} in {}", step.text, step.column);
    }
    std::string operator()(const SortStep& step) const {
        return step.isDescending ? say("Sort by {}, downwards", step.column)
                                 : say("Sort by {}", step.column);
    }
    std::string operator()(const GroupStep& step) const {
        return step.column.empty() ? say("No groups") : say("Group by {}", step.column);
    }
    std::string operator()(const TintStep& step) const {
        return step.isTinted ? say("Colour {}", step.column) : say("No colours in {}", step.column);
    }
    std::string operator()(const DerivedColumn& step) const { return say("Add {}", textOf(step)); }
    std::string operator()(const Pivot& step) const {
        return say("Pivot of {} by {}", step.value, step.row);
    }
};

/// Whether the list has to be read anew for a step.
bool isAboutReading(const TableStep& step) {
    return std::holds_alternative<TitlesStep>(step) || std::holds_alternative<KindStep>(step);
}

/// What steps say about how the list is read; the last word on a column counts.
TableReading readingOf(const ListGrid& source, std::span<const TableStep> steps) {
    TableReading reading;
    for (const TableStep& step : steps)
        if (const auto* const titles = std::get_if<TitlesStep>(&step))
            reading.hasTitles = titles->hasTitles;
    const bool hasKinds = std::ranges::any_of(
        steps, [](const TableStep& step) { return std::holds_alternative<KindStep>(step); });
    if (!hasKinds)
        return reading;
    const ListTable plain = tableOf(source, reading);
    for (const TableStep& step : steps)
        if (const auto* const kind = std::get_if<KindStep>(&step))
            reading.kinds[plain.columns[columnPlace(plain, kind->column)].name] = kind->kind;
    return reading;
}

} // namespace

std::string stepText(const TableStep& step) {
    return std::visit(StepWriter(), step);
}

TableSteps::TableSteps(ListGrid source)
    : TableSteps(std::make_shared<const ListGrid>(std::move(source)), {}) {}

TableSteps::TableSteps(std::shared_ptr<const ListGrid> source, std::vector<TableStep> steps)
    : m_source(std::move(source)), m_steps(std::move(steps)) {
    makeTable();
}

void TableSteps::makeTable() {
    ListTable table = tableOf(*m_source, readingOf(*m_source, m_steps));
    for (const TableStep& step : m_steps)
        std::visit(StepTaker{table}, step);
    m_table = std::make_shared<const ListTable>(std::move(table));
}

std::vector<ListTable> TableSteps::tables() const {
    std::vector<ListTable> tables{tableOf(*m_source, readingOf(*m_source, m_steps))};
    tables.reserve(m_steps.size() + 1);
    for (const TableStep& step : m_steps) {
        ListTable table = tables.back();
        std::visit(StepTaker{table}, step);
        tables.push_back(std::move(table));
    }
    return tables;
}

TableSteps TableSteps::with(TableStep step) const {
    if (const auto* const kind = std::get_if<KindStep>(&step))
        if (const GridColumn& column = m_table->columns[columnPlace(*m_table, kind->column)];
            column.isDerived)
            throw TableError(
                say("The column \"{}\" is reckoned here: how the columns of the list are "
                    "read decides what it holds.",
                    column.name));
    TableSteps more = *this;
    more.m_steps.push_back(std::move(step));
    if (isAboutReading(more.m_steps.back())) {
        more.makeTable();
        return more;
    }
    ListTable table = *m_table;
    std::visit(StepTaker{table}, more.m_steps.back());
    more.m_table = std::make_shared<const ListTable>(std::move(table));
    return more;
}

} // namespace kavela
