#pragma once

#include "performance/penalty_cost.h"
#include "performance/penalty_details.h"
#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <vector>

namespace kavela::cli {

/// Everything that `penalties` says.
struct PenaltyFindings {
    PenaltyRates rates;
    PenaltyDetails details;
    std::vector<PenaltyCost> costs;
    TradeOff tradeOff;
};

} // namespace kavela::cli
