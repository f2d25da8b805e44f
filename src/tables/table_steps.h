#pragma once

#include "tables/derived_columns.h"
#include "tables/pivot.h"
#include "tables/table_reading.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

/// What a coach makes of a list, step by step. The list itself is never changed: each table is made
/// of it anew, so that every step can be taken back.
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

/// A list, the steps that were taken, and those that were taken back. A value: copies share the
/// list and the table.
class TableSteps {
public:
    explicit TableSteps(ListGrid source);

    [[nodiscard]] const ListGrid& source() const { return *m_source; }
    /// The table after the steps that are not taken back.
    [[nodiscard]] const ListTable& table() const { return *m_table; }

    /// With one more step; those that were taken back are forgotten. Throws TableError for a step
    /// that cannot be taken, or with which a later one no longer can.
    [[nodiscard]] TableSteps with(TableStep step) const;
    [[nodiscard]] bool canUndo() const { return m_taken > 0; }
    [[nodiscard]] bool canRedo() const { return m_taken < m_steps.size(); }
    /// Without the last step; the same where there is none.
    [[nodiscard]] TableSteps undone() const;
    [[nodiscard]] TableSteps redone() const;
    /// The steps that are not taken back.
    [[nodiscard]] std::vector<TableStep> steps() const;
    /// The table as the list is read, then as it stands after each of them.
    [[nodiscard]] std::vector<ListTable> tables() const;
    /// What undone() takes back and redone() takes again; empty where there is none.
    [[nodiscard]] std::string undoText() const;
    [[nodiscard]] std::string redoText() const;

private:
    void makeTable();

    std::shared_ptr<const ListGrid> m_source;
    std::shared_ptr<const ListTable> m_table;
    std::vector<TableStep> m_steps;
    std::size_t m_taken = 0;
};

} // namespace kavela
