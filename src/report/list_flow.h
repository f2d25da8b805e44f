#pragma once

#include <QtGlobal>

#include <cstddef>
#include <span>
#include <vector>

/// How lists are dealt out to the columns of the pages.
namespace kavela::report {

/// Heights, in the units of the page.
struct FlowSizes {
    qreal title = 0; ///< of a list, above its rows
    qreal row = 0;
    qreal gap = 0; ///< below a list
    qreal firstPage = 0;
    qreal otherPages = 0;

    [[nodiscard]] qreal height(std::size_t rows) const {
        return title + static_cast<qreal>(rows) * row;
    }
};

/// A list, or a part of one, and its place. Columns are counted through all pages.
struct ListPart {
    std::size_t list = 0;
    std::size_t firstRow = 0;
    std::size_t endRow = 0;
    std::size_t column = 0;
    qreal top = 0; ///< from the top of the column
};

/// Deals lists of so many rows out to `columns` columns on each page. The columns of the last page
/// come out as even as whole lists allow.
[[nodiscard]] std::vector<ListPart> flowLists(std::span<const std::size_t> rows,
                                              std::size_t columns, const FlowSizes& sizes);

} // namespace kavela::report
