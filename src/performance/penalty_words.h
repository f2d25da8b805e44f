#pragma once

#include "performance/detail_shares.h"
#include "performance/penalty_charts.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <span>
#include <string>

/// What the figures about penalties say, each in one sentence for a coach. What is too few to tell
/// says so, and a difference that may be chance is called none.
namespace kavela {

/// "3rd"
[[nodiscard]] std::string ordinalText(int rank);

/// "Gate 7 stands out: touched by 9 of 68, against 1.8 % that all gates have in common."
[[nodiscard]] std::string wordsOf(const PenaltyRates& rates);
/// The same for the gates of one course alone.
[[nodiscard]] std::string wordsOf(const CourseOfRates& course);

/// "Without this touch: 3rd."
[[nodiscard]] std::string wordsOf(const PenaltyCost& cost);
/// "Of 57 penalties 21 cost places, 3 of them a medal."
[[nodiscard]] std::string wordsOf(std::span<const PenaltyCost> costs);

/// "Noted in detail: 12 of 57 penalties. …"
[[nodiscard]] std::string wordsOf(const DetailShares& details);

/// "The fast touch less: 0.52 a run in the fastest third, 1.90 in the slowest." Thirds whose
/// intervals meet are not told apart.
[[nodiscard]] std::string wordsOf(const TradeOff& tradeOff);
/// "1 % of speed pays for 0.47 touches a run."
[[nodiscard]] std::string breakEvenWords(const TradeOff& tradeOff);

/// "6 of 50 whole runs without a penalty: 12.0 % (6.3–21.7)."
[[nodiscard]] std::string cleanWords(const PenaltyRates& rates);

} // namespace kavela
