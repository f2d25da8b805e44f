#pragma once

#include "performance/detail_shares.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <vector>

namespace kavela::cli {

/// Everything that `penalties` says.
struct PenaltyFindings {
    PenaltyRates rates;
    DetailShares details;
    std::vector<PenaltyCost> costs;
    TradeOff tradeOff;
};

} // namespace kavela::cli
