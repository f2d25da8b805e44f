#include "report/list_flow.h"

#include <algorithm>
#include <optional>

namespace kavela::report {

namespace {

constexpr std::size_t FewestFlowingRows = 5; ///< of a list that goes on in the next column
constexpr std::size_t FewestRowsOver = 2;    ///< there

/// One attempt to fill the columns; those of one page may be held shorter than the page.
class Attempt {
public:
    Attempt(std::size_t columns, const FlowSizes& sizes) : m_columns(columns), m_sizes(sizes) {}

    void holdShort(std::size_t page, qreal limit) {
        m_shortPage = page;
        m_limit = limit;
    }

    /// Nothing when a list is higher than the limit, or when the short page is not the last.
    [[nodiscard]] std::optional<std::vector<ListPart>> flow(std::span<const std::size_t> rows) {
        for (std::size_t list = 0; list < rows.size(); ++list)
            if (!flowList(list, rows[list]))
                return {};
        return m_parts;
    }

private:
    [[nodiscard]] bool flowList(std::size_t list, std::size_t rows) {
        std::size_t first = 0;
        while (true) {
            const std::size_t end = endInThisColumn(first, rows);
            if (end > first || rows == 0)
                put(list, first, end);
            else if (isShort() && m_top == 0)
                return false;
            if (end == rows)
                return true;
            nextColumn();
            if (m_shortPage && page() > *m_shortPage)
                return false;
            first = end;
        }
    }

    [[nodiscard]] std::size_t page() const { return m_column / m_columns; }
    [[nodiscard]] bool isShort() const { return m_shortPage == page(); }
    [[nodiscard]] qreal wholeColumn() const {
        return page() == 0 ? m_sizes.firstPage : m_sizes.otherPages;
    }

    /// Up to which row a list goes into the present column; `first` when it starts in the next.
    [[nodiscard]] std::size_t endInThisColumn(std::size_t first, std::size_t rows) const {
        const qreal column = isShort() ? std::min(m_limit, wholeColumn()) : wholeColumn();
        const qreal room = column - m_top;
        const std::size_t left = rows - first;
        if (m_sizes.height(left) <= room)
            return rows;
        const bool mustBeCut = m_sizes.height(left) > wholeColumn();
        const qreal fitting = (room - m_sizes.title) / m_sizes.row;
        if (!mustBeCut || fitting < static_cast<qreal>(FewestFlowingRows))
            return first;
        return first + std::min(static_cast<std::size_t>(fitting), left - FewestRowsOver);
    }

    void put(std::size_t list, std::size_t first, std::size_t end) {
        m_parts.push_back({list, first, end, m_column, m_top});
        m_top += m_sizes.height(end - first) + m_sizes.gap;
    }

    void nextColumn() {
        ++m_column;
        m_top = 0;
    }

    std::size_t m_columns;
    FlowSizes m_sizes;
    std::optional<std::size_t> m_shortPage;
    qreal m_limit = 0;
    std::size_t m_column = 0;
    qreal m_top = 0;
    std::vector<ListPart> m_parts;
};

} // namespace

std::vector<ListPart> flowLists(std::span<const std::size_t> rows, std::size_t columns,
                                const FlowSizes& sizes) {
    std::vector<ListPart> full = *Attempt(columns, sizes).flow(rows);
    if (full.empty())
        return full;
    const std::size_t lastPage = full.back().column / columns;
    const qreal page = lastPage == 0 ? sizes.firstPage : sizes.otherPages;
    const auto steps = static_cast<int>((page - sizes.title) / sizes.row);
    for (int step = 1; step <= steps; ++step) {
        Attempt attempt(columns, sizes);
        attempt.holdShort(lastPage, sizes.title + step * sizes.row);
        if (auto even = attempt.flow(rows))
            return *std::move(even);
    }
    return full;
}

} // namespace kavela::report
