#pragma once

#include <QString>

#include <optional>

namespace kavela::desktop {

class TakingDocument;

/// Where the next split of a run is to be expected on its film.
struct ExpectedPlace {
    std::size_t split = 0;         ///< the next one, counted from 1
    std::optional<double> seconds; ///< of the first film
    QString why;                   ///< nothing is to be expected; empty otherwise
};

/// From the runs of the document that have the split already, matched on the clocks of the runs,
/// whose zero is the start mark.
[[nodiscard]] ExpectedPlace expectedPlace(const TakingDocument& document, int run);

} // namespace kavela::desktop
