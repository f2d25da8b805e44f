#pragma once

#include "facts/key_places.h"
#include "facts/query.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// Putting the rows of an answer into groups.
namespace kavela {

/// What makes a group: by column the text's key or the number's bits.
using GroupKey = std::array<std::uint64_t, MostGroupColumns>;

[[nodiscard]] GroupKey groupKeyOf(const std::vector<const QueryColumn*>& by, const RowCursor& row);

/// Takes rows as they are found and makes the groups of them, each with its least row.
class RowGroups {
public:
    /// `measured`: what the figures are of; null for none.
    RowGroups(std::vector<const QueryColumn*> by, const QueryColumn* measured);

    /// The rows that follow are of another run.
    void startRun() {
        m_groupOfRun.reset();
        m_hasRunKey = false;
    }
    void add(const RowCursor& row, FoundRow found);
    /// Takes the groups of other rows, which stand behind all of these. Of the same columns.
    void add(RowGroups&& later);
    /// The figures of all groups, once all rows are there.
    void finish();

    [[nodiscard]] std::vector<FoundGroup>& groups() { return m_groups; }
    /// By group the row with its least value, or its first.
    [[nodiscard]] std::vector<FoundRow>& rows() { return m_rows; }

private:
    [[nodiscard]] std::size_t groupOf(const RowCursor& row);
    void finishGroup(std::size_t at);

    std::vector<const QueryColumn*> m_by;
    const QueryColumn* m_measured;
    std::vector<std::size_t> m_rowParts; ///< of the key: the columns that differ within a run
    KeyPlaces<GroupKey> m_places;
    GroupKey m_runKey{}; ///< of the run's first row
    bool m_hasRunKey = false;
    std::optional<std::size_t> m_groupOfRun; ///< where all rows of a run are of one group
    std::vector<FoundGroup> m_groups;
    std::vector<FoundRow> m_rows;
    std::vector<std::vector<double>> m_values;             ///< by group
    std::vector<std::vector<std::vector<double>>> m_later; ///< the same of rows behind these
};

} // namespace kavela
