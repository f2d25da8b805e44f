#include "results/selection_whatif.h"

#include <algorithm>

namespace kavela {

namespace {

std::int64_t rankWith(const selectionracesStruct_v3& document, const AssumedResult& assumed,
                      BonusKind bonus) {
    const std::vector<Standing> ranking =
        assumedStandings(document, assumed.place.category, std::span(&assumed, 1), bonus);
    return std::ranges::find(ranking, assumed.place.athlete, &Standing::athlete)->rank;
}

/// The document without the athletes of other categories, which play no part.
selectionracesStruct_v3 onlyCategory(const selectionracesStruct_v3& document, std::size_t kept) {
    selectionracesStruct_v3 part{document.year, {}, document.races, {}};
    part.categories.resize(document.categories.size());
    part.categories.at(kept) = document.categories.at(kept);
    return part;
}

} // namespace

std::vector<Standing> assumedStandings(selectionracesStruct_v3 document, std::size_t category,
                                       std::span<const AssumedResult> assumed, BonusKind bonus) {
    for (const AssumedResult& result : assumed)
        setResult(document, result.place, result.time, result.penalty);
    computePercentages(document);
    return standings(document.categories.at(category), document.races.size(), bonus);
}

std::optional<double> totalForRank(const selectionracesStruct_v3& document,
                                   const ResultPlace& place, std::int64_t rank, BonusKind bonus) {
    const selectionracesStruct_v3 part = onlyCategory(document, place.category);
    const auto isEnough = [&](std::int64_t hundredths) {
        return rankWith(part, {place, static_cast<double>(hundredths) / 100, 0}, bonus) <= rank;
    };
    // A faster run never ranks lower: the slowest one that is enough is found by halving.
    std::int64_t enough = 1;
    std::int64_t tooSlow = 99900;
    if (!isEnough(enough))
        return std::nullopt;
    while (tooSlow - enough > 1) {
        const std::int64_t middle = (enough + tooSlow) / 2;
        (isEnough(middle) ? enough : tooSlow) = middle;
    }
    return static_cast<double>(enough) / 100;
}

} // namespace kavela
