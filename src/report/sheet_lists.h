#pragma once

#include "report/page_builder.h"
#include "report/typeface.h"

#include <QString>

#include <string>
#include <vector>

/// Short lists that share what is left of a page.
namespace kavela::report {

struct SheetColumn {
    QString title;
    qreal points = 0; ///< its width; 0 takes what the others leave, and wraps its texts
    Qt::Alignment alignment = Qt::AlignRight;
};

struct SheetRow {
    std::vector<std::string> cells; ///< by column, as the file has them
    std::string note;               ///< below the cells over the whole width; may be empty
};

struct SheetList {
    QString title;
    std::vector<SheetColumn> columns; ///< no titles at all: the list has no head
    std::vector<SheetRow> rows;
};

/// Puts the lists into what is left of the page, in two columns of about the same height; a single
/// list over the whole width. Where they need more height than there is, each gives up its last
/// rows, those that have most first, and says how many. Never begins a page.
void putSheetLists(PageBuilder& pages, const std::vector<SheetList>& lists,
                   const Typeface& typeface);

/// How many lines each list gets of `room`, none more than it wants: the room is shared evenly, and
/// what one leaves goes to the others.
[[nodiscard]] std::vector<std::size_t> sharedLines(const std::vector<std::size_t>& wanted,
                                                   std::size_t room);

} // namespace kavela::report
