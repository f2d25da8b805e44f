#pragma once

#include "performance/detail_shares.h"
#include "performance/penalty_charts.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// What the window of penalties asks.
struct PenaltyQuestion {
    RateBy by = RateBy::Gate;
    PenaltyChoice choice = {};

    friend bool operator==(const PenaltyQuestion&, const PenaltyQuestion&) = default;
};

/// Everything that the window of penalties shows, with what it was made from.
struct PenaltyFigures {
    std::shared_ptr<const FactStore> facts;
    PenaltyQuestion question;
    PenaltyRates rates;
    std::vector<CourseOfRates> courses; ///< those with runs that were asked for
    DetailShares details;
    std::vector<PenaltyCost> costs; ///< the dearest first: a medal, then by places
    TradeOff tradeOff;
    std::vector<std::string> files; ///< how they are called

    /// Why one of these numbers is what it is, by the ids of explainPenalty().
    [[nodiscard]] std::optional<Reason> why(const std::string& id) const;
    /// The id of what a penalty cost.
    [[nodiscard]] std::string idOf(const PenaltyCost& cost) const;
};

using SharedFigures = std::shared_ptr<const PenaltyFigures>;

/// Computes all of it; to be called beside the window.
[[nodiscard]] SharedFigures penaltyFigures(std::shared_ptr<const FactStore> facts,
                                           const PenaltyQuestion& question);

} // namespace kavela::desktop
