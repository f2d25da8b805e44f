#include "facts/rows_to_sort.h"

#include "common/parallel.h"
#include "facts/query_order.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

/// With more values than these, which no list of times has, sorting the rows themselves is faster.
constexpr std::size_t MostCodedValues = std::size_t{1} << 16U;

/// Equal for values that are equal, and for no others.
std::uint64_t sortKeyOf(const QueryColumn& column, const RowCursor& row) {
    if (column.isText())
        return column.text(row);
    const double number = column.number(row);
    return std::bit_cast<std::uint64_t>(std::isnan(number) ? NotKnown : number + 0.0);
}

/// Numbers in the order of what the keys of a column stand for.
std::vector<double> numbersOfKeys(const FactStore& facts, const QueryColumn& column,
                                  std::span<const std::uint64_t> keys) {
    if (column.isText()) {
        std::vector<TextId> texts;
        texts.reserve(keys.size());
        for (const std::uint64_t key : keys)
            texts.push_back(static_cast<TextId>(key));
        return naturalPlaces(facts, texts);
    }
    std::vector<double> numbers;
    numbers.reserve(keys.size());
    for (const std::uint64_t key : keys)
        numbers.push_back(std::bit_cast<double>(key));
    return numbers;
}

} // namespace

/// The parts of a search, which become one list.
class PartsInOrder {
public:
    PartsInOrder(const FactStore& facts, std::span<RowsToSort> parts, bool isDown, std::size_t most)
        : m_facts(facts), m_parts(parts), m_isDown(isDown) {
        for (const RowsToSort& part : parts)
            m_count += part.m_rows.size();
        m_most = std::min(most, m_count);
    }

    [[nodiscard]] std::vector<FoundRow> rows() {
        if (!m_parts.front().m_sorted)
            return oneBehindAnother(m_most);
        return std::ranges::all_of(m_parts, &RowsToSort::m_isCoded) ? byCodes() : byKeys();
    }

private:
    [[nodiscard]] std::vector<FoundRow> oneBehindAnother(std::size_t most) {
        std::vector<FoundRow> rows = std::move(m_parts.front().m_rows);
        rows.reserve(most);
        for (RowsToSort& part : m_parts.subspan(1)) {
            rows.insert(rows.end(), part.m_rows.begin(), part.m_rows.end());
            part.clear();
        }
        rows.resize(most);
        return rows;
    }

    /// By part and code how many rows stand before the first one that has it; counted by part, so
    /// that each can put its rows where they belong beside the others.
    using RowsBefore = std::vector<std::vector<std::size_t>>;

    [[nodiscard]] std::vector<FoundRow> byCodes() {
        const auto codes = commonCodes();
        RowsBefore before(m_parts.size(), std::vector<std::size_t>(m_values.size()));
        parallelFor(m_parts.size(), [&](std::size_t part) {
            std::vector<std::size_t>& counts = before[part];
            for (const std::uint32_t code : m_parts[part].m_codes)
                ++counts[codes[part][code]];
        });
        std::size_t rowsSoFar = 0;
        for (const std::uint32_t code :
             orderOf(numbersOfKeys(m_facts, *m_parts.front().m_sorted, m_values.keys()), m_isDown))
            for (std::vector<std::size_t>& counts : before)
                rowsSoFar += std::exchange(counts[code], rowsSoFar);
        std::vector<FoundRow> rows(m_most);
        parallelFor(m_parts.size(), [&](std::size_t part) {
            RowsToSort& from = m_parts[part];
            for (std::size_t i = 0; i < from.m_rows.size(); ++i) {
                const std::size_t at = before[part][codes[part][from.m_codes[i]]]++;
                if (at < rows.size())
                    rows[at] = from.m_rows[i];
            }
            from.clear();
        });
        return rows;
    }

    /// By part and its own code that of all parts together.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>> commonCodes() {
        std::vector<std::vector<std::uint32_t>> codes;
        for (const RowsToSort& part : m_parts) {
            codes.emplace_back();
            for (const std::uint64_t key : part.m_values.keys())
                codes.back().push_back(m_values.placeOf(key));
        }
        return codes;
    }

    [[nodiscard]] std::vector<FoundRow> byKeys() {
        std::vector<std::uint64_t> keys;
        keys.reserve(m_count);
        for (RowsToSort& part : m_parts) {
            part.keepEveryKey();
            keys.insert(keys.end(), part.m_keys.begin(), part.m_keys.end());
        }
        const auto numbers = numbersOfKeys(m_facts, *m_parts.front().m_sorted, keys);
        const std::vector<FoundRow> found = oneBehindAnother(m_count);
        std::vector<FoundRow> rows;
        rows.reserve(m_most);
        for (const std::uint32_t at : orderOf(numbers, m_isDown, m_most))
            if (rows.size() < m_most)
                rows.push_back(found[at]);
        return rows;
    }

    const FactStore& m_facts;
    std::span<RowsToSort> m_parts;
    bool m_isDown;
    std::size_t m_count = 0;
    std::size_t m_most = 0;
    KeyPlaces<std::uint64_t> m_values; ///< of all parts
};

void RowsToSort::add(const RowCursor& row, const FoundRow& found) {
    m_rows.push_back(found);
    if (!m_sorted)
        return;
    const std::uint64_t key = sortKeyOf(*m_sorted, row);
    if (!m_isCoded) {
        m_keys.push_back(key);
        return;
    }
    m_codes.push_back(m_values.placeOf(key));
    if (m_values.size() > MostCodedValues)
        keepEveryKey();
}

void RowsToSort::clear() {
    *this = RowsToSort(m_sorted);
}

void RowsToSort::keepEveryKey() {
    if (!m_isCoded)
        return;
    m_isCoded = false;
    m_keys.reserve(m_codes.size());
    for (const std::uint32_t code : m_codes)
        m_keys.push_back(m_values.keys()[code]);
    m_codes = {};
    m_values = {};
}

std::vector<FoundRow> RowsToSort::inOrder(const FactStore& facts, std::span<RowsToSort> parts,
                                          bool isDown, std::size_t most) {
    return PartsInOrder(facts, parts, isDown, most).rows();
}

} // namespace kavela
