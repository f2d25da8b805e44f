#pragma once

#include "splitdata/records.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// How finely a film tells the time of its marks.
namespace kavela {

/// Why a time between two marks is only that sure: each may lie half a frame beside the moment.
inline constexpr std::string_view HalfFrameTwice = "half a frame, two marks";

/// Seconds from frame to frame of a film, as the stamps that were marked on it tell: they are
/// frames, so that all stand whole steps apart. Nothing where that tells no frame rate: with fewer
/// than eight stamps, in several time scales, on a film of a variable rate, whose stamps have no
/// step in common, and on hundredths of a second, which times from elsewhere stand on as well.
[[nodiscard]] std::optional<double> frameStep(std::span<const CMTime> stamps);

/// Of a run's first film, from the marks of its sections and upstream gates.
[[nodiscard]] std::optional<double> frameStep(std::span<const std::vector<CMTime>> sections,
                                              std::span<const upstreamdata025> gates);

} // namespace kavela
