#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kavela::strokes {

/// A rise of the detection signal from a valley to the next peak.
struct Swing {
    std::size_t valley = 0; ///< index
    std::size_t peak = 0;   ///< index
    double height = 0;      ///< m/s²
};

/// The rises of a signal.
struct Swings {
    std::vector<Swing> raw;      ///< each that is no mere ripple
    std::vector<Swing> strong;   ///< those that stand out among the ones around them
    std::vector<double> typical; ///< usual height around each second of the series, m/s²
};

/// Acceleration about its mean of 3 s, smoothed to the stroke rate: what strokes are looked for in.
/// Fills the cadence that it was smoothed to.
[[nodiscard]] std::vector<double> detectionSignal(std::span<const double> forward,
                                                  std::vector<double>& periods);

/// Finds the rises; none touches a value that is not valid.
[[nodiscard]] Swings findSwings(std::span<const double> signal,
                                std::span<const std::uint8_t> valid);

/// The usual height of a swing around an index.
[[nodiscard]] double typicalAt(const Swings& swings, std::size_t index);

} // namespace kavela::strokes
