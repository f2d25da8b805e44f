#pragma once

#include "common/why.h"

#include <span>

namespace kavela {

/// The rules by which selections score and teams are categorized.
enum class ResultRule {
    Score,             ///< of an athlete in a selection
    ScoreSum,          ///< of what counts
    Counted,           ///< a result that counts
    DroppedWorst,      ///< a result that does not
    DroppedForBonus,   ///< a result that does not
    RacePercent,       ///< behind the best of a race
    RaceMissing,       ///< of a race without a result
    Medalist,          ///< of an athlete in a team
    MedalReady,        ///< the same
    FinalReady,        ///< the same
    SeniorDevelopment, ///< the same
    Medals,            ///< of an athlete in two seasons
    Top6,              ///< the same
    Top15,             ///< the same
    Events,            ///< the same
};

[[nodiscard]] const Rule& ruleOf(ResultRule rule);

/// All of them, in the order above.
[[nodiscard]] std::span<const Rule> resultRules();

} // namespace kavela
