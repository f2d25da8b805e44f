#include "analysis/race_likeness.h"

#include "common/folded_text.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/document.h"

#include <algorithm>
#include <cmath>

namespace kavela {

RaceTraits traitsOf(const splittakerdata031& race) {
    RaceTraits traits{{}, folded(race.info.place), race.info.totalsplits, race.info.date};
    for (const athletedata031& run : race.athletes)
        traits.categories.insert(categoryKey(run.cat));
    return traits;
}

RaceLikeness likeness(const RaceTraits& one, const RaceTraits& other) {
    const auto isCommon = [&](const std::string& category) {
        return one.categories.contains(category);
    };
    return {.hasRuns = !other.categories.empty(),
            .categories =
                static_cast<std::size_t>(std::ranges::count_if(other.categories, isCommon)),
            .isPlace = !one.place.empty() && one.place == other.place,
            .isCourse = one.sections == other.sections,
            .nearness = -std::abs(one.date.seconds - other.date.seconds)};
}

} // namespace kavela
