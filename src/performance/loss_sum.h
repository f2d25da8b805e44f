#pragma once

#include "performance/loss_stretches.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// How the difference of two totals comes about. All in seconds; gap = paddling + penalties +
/// timing.
struct LossSum {
    double gap = 0;
    double paddling = 0;  ///< all stretches
    double penalties = 0; ///< the difference of the penalties
    double timing = 0;    ///< what is left: official against video time
    double own = 0;       ///< the totals whose difference is the gap
    double reference = 0;
    bool isOfficial = false; ///< both totals are official ones; else both are from the video

    friend bool operator==(const LossSum&, const LossSum&) = default;
};

/// The same as it is shown, in hundredths: the parts add up to the gap.
struct ShownLosses {
    std::vector<std::int64_t> stretches;
    std::int64_t paddling = 0;
    std::int64_t penalties = 0;
    std::int64_t timing = 0;
    std::int64_t gap = 0; ///< of the paddling alone where there is no sum
};

/// Nothing when one of the two has no total that can be held against the other's.
[[nodiscard]] std::optional<LossSum> lossSumOf(const LossPair& pair,
                                               std::span<const Stretch> stretches);

[[nodiscard]] ShownLosses shownLosses(std::span<const Stretch> stretches,
                                      const std::optional<LossSum>& sum);

/// The numbers of a sum one by one. Both sides must have a total of the kind that `isOfficial`
/// says.
[[nodiscard]] double gapOf(const LossPair& pair, bool isOfficial, Why* why = nullptr);
[[nodiscard]] double penaltyGapOf(const LossPair& pair, bool isOfficial, Why* why = nullptr);
[[nodiscard]] double paddlingOf(const LossPair& pair, std::span<const Stretch> stretches,
                                Why* why = nullptr);
[[nodiscard]] double timingOf(const LossPair& pair, std::span<const Stretch> stretches,
                              bool isOfficial, Why* why = nullptr);

/// Hundredths as text: "+1.02", "-0.14", "0.00".
[[nodiscard]] std::string signedText(std::int64_t hundredths);

} // namespace kavela
