#pragma once

#include "desktop/shell/tables/column_model.h"

namespace kavela::desktop {

class TakingDocument;

/// A run in the list to the left of its film.
struct RunInList {
    QString crew;
    QString category;
    QString phase;
    QString splits;              ///< how many of them it has
    std::optional<double> total; ///< seconds; none before it has all of them
    QStringList films;
};

/// The last column tells the total of a whole run, of any other its splits. One column for both
/// leaves room for the names.
[[nodiscard]] std::vector<Column<RunInList>> columnsOfRuns(TakingDocument& document);

/// The runs in the order of the document, which is that of their places.
[[nodiscard]] std::vector<RunInList> runsInList(const TakingDocument& document);

} // namespace kavela::desktop
