#pragma once

#include "tables/derived_columns.h"
#include "tables/pivot.h"
#include "tables/table_reading.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

/// What a coach makes of a list, step by step. The list itself is never changed: a table can be
/// made of it anew at any time, so that every step can be taken back.
namespace kavela {

/// Whether the first line holds the titles.
struct TitlesStep {
    bool hasTitles = true;
    friend bool operator==(const TitlesStep&, const TitlesStep&) = default;
};
/// Another kind for a column of the list than the guessed one.
struct KindStep {
    std::string column;
    ListColumnKind kind = ListColumnKind::Text;
    friend bool operator==(const KindStep&, const KindStep&) = default;
};
/// Leaves a column out.
struct RemoveStep {
    std::string column;
    friend bool operator==(const RemoveStep&, const RemoveStep&) = default;
};
/// Keeps the rows whose cell in a column contains a text, whatever its case and accents; all of the
/// cell where it is whole.
struct FilterStep {
    std::string column;
    std::string text;
    bool isWhole = false;
    friend bool operator==(const FilterStep&, const FilterStep&) = default;
};
struct SortStep {
    std::string column;
    bool isDescending = false;
    friend bool operator==(const SortStep&, const SortStep&) = default;
};
struct GroupStep {
    std::string column; ///< empty: no groups any more
    friend bool operator==(const GroupStep&, const GroupStep&) = default;
};
/// Tints the values of a column, or no longer.
struct TintStep {
    std::string column;
    bool isTinted = true;
    friend bool operator==(const TintStep&, const TintStep&) = default;
};

using TableStep = std::variant<TitlesStep, KindStep, RemoveStep, FilterStep, SortStep, GroupStep,
                               TintStep, DerivedColumn, Pivot>;

/// What a step does, for a menu: "Sort by Time".
[[nodiscard]] std::string stepText(const TableStep& step);

/// A list and the steps that were taken. A value: copies share the list and the table.
class TableSteps {
public:
    explicit TableSteps(ListGrid source);
    /// Takes steps that were taken of a list before. Throws TableError for one that cannot be.
    TableSteps(std::shared_ptr<const ListGrid> source, std::vector<TableStep> steps);

    [[nodiscard]] const ListGrid& source() const { return *m_source; }
    [[nodiscard]] const std::shared_ptr<const ListGrid>& sharedSource() const { return m_source; }
    /// The table after the steps.
    [[nodiscard]] const ListTable& table() const { return *m_table; }
    [[nodiscard]] const std::shared_ptr<const ListTable>& sharedTable() const { return m_table; }

    /// With one more step. Throws TableError for a step that cannot be taken, or with which a later
    /// one no longer can.
    [[nodiscard]] TableSteps with(TableStep step) const;
    [[nodiscard]] const std::vector<TableStep>& steps() const { return m_steps; }
    /// The table as the list is read, then as it stands after each step.
    [[nodiscard]] std::vector<ListTable> tables() const;

private:
    void makeTable();

    std::shared_ptr<const ListGrid> m_source;
    std::shared_ptr<const ListTable> m_table;
    std::vector<TableStep> m_steps;
};

} // namespace kavela
