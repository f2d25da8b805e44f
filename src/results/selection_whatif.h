#pragma once

#include "results/selection_edit.h"

#include <optional>
#include <span>
#include <vector>

/// What the ranking would be if results were different. The document stays as it is.
namespace kavela {

/// A result as it might be.
struct AssumedResult {
    ResultPlace place;
    double time = 0; ///< MissingTime for none
    std::int64_t penalty = 0;
};

/// The ranking of a category with the assumed results, which may be of any category. Athletes are
/// told by their index in the document as it stands.
[[nodiscard]] std::vector<Standing> assumedStandings(selectionracesStruct_v3 document,
                                                     std::size_t category,
                                                     std::span<const AssumedResult> assumed,
                                                     BonusKind bonus);

/// The slowest total, to the hundredth, with which an athlete would stand at a rank or better, all
/// else as it is: up to 998.99; nothing when no total is fast enough.
[[nodiscard]] std::optional<double> totalForRank(const selectionracesStruct_v3& document,
                                                 const ResultPlace& place, std::int64_t rank,
                                                 BonusKind bonus);

} // namespace kavela
