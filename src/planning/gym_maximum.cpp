#include "planning/gym_maximum.h"

#include "common/number_text.h"

#include <array>
#include <cmath>

namespace kavela {

namespace {

/// The part of the one-repetition maximum that can be lifted once, twice and so on.
constexpr std::array LiftableFractions{1.00, 0.95, 0.93, 0.90, 0.87, 0.85,
                                       0.83, 0.80, 0.77, 0.75, 0.73, 0.70};

double tableEstimate(std::int64_t repetitions, double weight) {
    if (repetitions < 1 || repetitions > static_cast<std::int64_t>(LiftableFractions.size()))
        return 0;
    return weight / LiftableFractions[static_cast<std::size_t>(repetitions - 1)];
}

} // namespace

GymEstimates gymEstimates(std::int64_t repetitions, double weight) {
    const auto count = static_cast<double>(repetitions);
    const double power = std::pow(count, 0.1);
    return {.table = tableEstimate(repetitions, weight),
            .epley = weight * (1 + count / 30),
            .brzycki = weight * 36 / (37 - count),
            .mcglothin = 100 * weight / (101.3 - 2.67123 * count),
            .lombardi = weight * power,
            .result = std::round(weight * power * 100) / 100};
}

GymEstimates gymEstimates(std::int64_t repetitions, double weight, const DiagnosticLog& log) {
    const GymEstimates estimates = gymEstimates(repetitions, weight);
    log("First estimation: " + shortestText(estimates.table));
    log("Epley estimation: " + shortestText(estimates.epley));
    log("Brzycki estimation: " + shortestText(estimates.brzycki));
    log("McGlothin estimation: " + shortestText(estimates.mcglothin));
    log("Lombardi estimation: " + shortestText(estimates.lombardi));
    return estimates;
}

std::optional<double> gymMaximum(std::int64_t repetitions, double weight) {
    const double result = gymEstimates(repetitions, weight).result;
    return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

} // namespace kavela
