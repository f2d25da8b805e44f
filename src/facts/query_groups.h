#pragma once

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

/// The places of groups by what makes them, in the order in which they come. A table without lists
/// behind its slots: millions of rows ask it, one after the other.
class GroupPlaces {
public:
    /// The place of a group; behind the last one for a new one, which has it from then on.
    [[nodiscard]] std::size_t placeOf(const GroupKey& key);

private:
    [[nodiscard]] std::size_t slotOf(const GroupKey& key) const;
    void grow();

    std::vector<std::uint32_t> m_slots; ///< a place and 1, or 0; their number is a power of two
    std::vector<GroupKey> m_keys;       ///< by place
};

/// Takes rows as they are found and makes the groups of them, each with its least row.
class RowGroups {
public:
    /// `measured`: what the figures are of; null for none.
    RowGroups(std::vector<const QueryColumn*> by, const QueryColumn* measured);

    /// The rows that follow are of another run.
    void startRun() { m_groupOfRun.reset(); }
    void add(const RowCursor& row, FoundRow found);
    /// The figures of all groups, once all rows are there.
    void finish();

    [[nodiscard]] std::vector<FoundGroup>& groups() { return m_groups; }
    /// By group the row with its least value, or its first.
    [[nodiscard]] std::vector<FoundRow>& rows() { return m_rows; }

private:
    [[nodiscard]] std::size_t groupOf(const RowCursor& row);

    std::vector<const QueryColumn*> m_by;
    const QueryColumn* m_measured;
    bool m_isByRun; ///< all rows of a run are of one group
    GroupPlaces m_places;
    std::optional<std::size_t> m_groupOfRun;
    std::vector<FoundGroup> m_groups;
    std::vector<FoundRow> m_rows;
    std::vector<std::vector<double>> m_values; ///< by group
};

} // namespace kavela
