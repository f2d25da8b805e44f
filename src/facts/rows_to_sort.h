#pragma once

#include "facts/key_places.h"
#include "facts/query.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Putting the rows of an answer in order.
namespace kavela {

/// Rows as they are found, each with what it is to be sorted by. Of millions of rows a few thousand
/// values differ: each is kept once and put in order once, and the rows go to their places without
/// being compared.
class RowsToSort {
public:
    /// By the values of a column; null where they stay as they come.
    explicit RowsToSort(const QueryColumn* sorted) : m_sorted(sorted) {}

    /// What it is sorted by is noted while its row is at hand: finding that again would cost as
    /// much as all the search.
    void add(const RowCursor& row, const FoundRow& found);
    void clear();
    [[nodiscard]] bool empty() const { return m_rows.empty(); }

    /// The rows of some parts of a store, which were given the same column, and are empty behind
    /// this. Those with equal values keep their order, those of earlier parts first; rows without a
    /// value go to the end. At most `most` of them, the first ones.
    [[nodiscard]] static std::vector<FoundRow>
    inOrder(const FactStore& facts, std::span<RowsToSort> parts, bool isDown, std::size_t most);

private:
    friend class PartsInOrder;

    void keepEveryKey();

    const QueryColumn* m_sorted;
    std::vector<FoundRow> m_rows;
    KeyPlaces<std::uint64_t> m_values;  ///< the keys that differ
    std::vector<std::uint32_t> m_codes; ///< by row the place of its key, or, beyond so many keys,
    std::vector<std::uint64_t> m_keys;  ///< by row the key: a text's id or a number's bits
    bool m_isCoded = true;
};

} // namespace kavela
