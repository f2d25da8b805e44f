#pragma once

#include <span>
#include <vector>

namespace kavela::strokes {

/// The time from stroke to stroke, once a second: entry i stands for the moment i seconds into the
/// series; 0 where nothing repeats itself. Found as the first strong peak of the autocorrelation
/// within 6 s, so that left and right are not taken for one.
[[nodiscard]] std::vector<double> cadence(std::span<const double> signal);

/// The entry nearest to a value of the series.
[[nodiscard]] double cadenceAt(std::span<const double> periods, std::size_t index);

} // namespace kavela::strokes
