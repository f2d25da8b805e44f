#pragma once

#include "common/log.h"

#include <cstdint>
#include <optional>

/// Estimation of the weight that an athlete can lift once, from a weight lifted several times.
namespace kavela {

/// The five estimates and the one that is stored, in kilograms. They are what the formulas give:
/// not finite where a divisor is 0 or a power has no value.
struct GymEstimates {
    double table = 0; ///< 0 unless there were 1 to 12 repetitions
    double epley = 0;
    double brzycki = 0;
    double mcglothin = 0;
    double lombardi = 0;
    double result = 0; ///< the Lombardi estimate with two decimals
};

/// Any number of repetitions and any weight (kilograms) is taken as it is.
[[nodiscard]] GymEstimates gymEstimates(std::int64_t repetitions, double weight);

/// The same, with a log line for each of the five estimates.
[[nodiscard]] GymEstimates gymEstimates(std::int64_t repetitions, double weight,
                                        const DiagnosticLog& log);

/// The value to offer in `maxweight`; nothing when the result is no number that a file can hold.
[[nodiscard]] std::optional<double> gymMaximum(std::int64_t repetitions, double weight);

} // namespace kavela
