#pragma once

#include "performance/loss_reference.h"
#include "performance/loss_sum.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Where runs lose time: against one another, by the stretches of the course.
namespace kavela {

/// A run against a result of interest.
struct InterestGap {
    double time = 0;           ///< the result
    std::optional<double> gap; ///< own total less it; none without a total
};

/// What a run lost against a reference.
struct RunLosses {
    std::size_t run = 0; ///< of the store
    LossReference reference;
    bool hasReference = false;               ///< there is such a one
    std::optional<std::size_t> referenceRun; ///< of the store; none for one that nobody paddled
    std::optional<double> referenceTotal;
    std::vector<Stretch> stretches;
    std::optional<LossSum> sum;
    ShownLosses shown;
    std::vector<GateLoss> gatesElsewhere; ///< in none of the stretches
    std::optional<double> noted;          ///< sum of the notes against the reference's crew
    std::optional<double> explained;      ///< that as a part of the paddling, where this is above 0
    std::optional<double> xTimeDiff;      ///< time without penalties less the expected time
    std::vector<InterestGap> interests;
};

/// The numbers of RunLosses.
enum class LossNumber {
    None,
    Loss,     ///< of the stretch that holds section `at`
    Percent,  ///< the same
    Between,  ///< the same
    Gate,     ///< of gate `at`
    Entrance, ///< the same
    Exit,     ///< the same
    Gap,
    Paddling,
    Penalties,
    Timing,
    Explained,
    ExpectedTime,
    Interest ///< number `at`, from 0
};

/// Which number is asked about.
struct LossQuestion {
    LossNumber number = LossNumber::None;
    std::size_t at = 0;
};

/// What a run of the store lost; `why` takes down how the number came about that is asked about.
[[nodiscard]] RunLosses lossesOf(const FactStore& facts, const LossRivals& rivals, std::size_t run,
                                 const LossReference& reference, const LossQuestion& question = {},
                                 Why* why = nullptr);

/// The same for many runs.
[[nodiscard]] std::vector<RunLosses> lossesOf(const FactStore& facts, const LossRivals& rivals,
                                              std::span<const std::size_t> runs,
                                              const LossReference& reference);

/// The same for all runs of a store, in their order.
[[nodiscard]] std::vector<RunLosses> lossesOf(const FactStore& facts,
                                              const LossReference& reference);

} // namespace kavela
