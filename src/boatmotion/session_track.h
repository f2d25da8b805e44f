#pragma once

#include "boatmotion/samples.h"

#include <optional>
#include <span>
#include <vector>

/// The way of the boat by its fixes.
namespace kavela {

/// One fix on the clock of the boat's samples.
struct TrackPlace {
    double time = 0;      ///< s
    double latitude = 0;  ///< degrees
    double longitude = 0; ///< degrees
    double east = 0;      ///< m from the first fix
    double north = 0;     ///< m from the first fix
    double distance = 0;  ///< m of the way from the first fix
    double speed = 0;     ///< m/s; 0 where it is not known
};

using Track = std::vector<TrackPlace>; ///< by time, no moment twice

/// Fixes that cannot be places are left out. The way is the receiver's speed over time, which is
/// steadier than places that scatter by metres; where it gives no speed, the way is that between
/// the places. `clockOffset`: date = moment + clockOffset.
[[nodiscard]] Track trackOf(std::span<const gpsrawdata> fixes, double clockOffset);

/// The place at a moment, between the fixes around it. Nothing outside the track and in holes of
/// more than 10 s.
[[nodiscard]] std::optional<TrackPlace> placeAt(const Track& track, double time);

/// The speed at a moment, m/s; nothing where it is not known.
[[nodiscard]] std::optional<double> speedAt(const Track& track, double time);

/// The way from one moment to another, m; nothing where either has no place.
[[nodiscard]] std::optional<double> distanceBetween(const Track& track, double from, double to);

/// The fix that is nearest to a place, as an index; the track is not empty.
[[nodiscard]] std::size_t nearestPoint(const Track& track, double east, double north);

} // namespace kavela
