#pragma once

#include "boatmotion/imports/track.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace kavela::imports {

/// A point of a track as a file tells it.
struct TrackPoint {
    std::optional<double> date;      ///< seconds since 2001
    std::optional<double> latitude;  ///< degrees
    std::optional<double> longitude; ///< degrees
    std::optional<double> speed;     ///< m/s
    std::optional<double> heartRate; ///< beats per minute
};

/// Fixes in order of time, one for a moment, with the speeds that they lack; gives how many speeds
/// were computed. A speed below 0 is one that is lacking.
std::size_t completeFixes(std::vector<gpsrawdata>& fixes);

/// The note that so many speeds were computed.
[[nodiscard]] std::string computedSpeedsText(std::size_t count);

/// What is left out of a track.
enum class LeftOut : std::uint8_t {
    OutsideGlobe,
    WildSpeed,
    Undated,
    WildHeartRate,
    SameMoment,
    SameHeartMoment,
    RoutePoint
};

/// Collects the points of a track and keeps account of what is left out.
class TrackBuilder {
public:
    /// Throws DecodeError when there are too many points.
    void add(const TrackPoint& point);
    /// Counts something that is left out.
    void leaveOut(LeftOut what, std::size_t count = 1);
    void note(std::string text) { m_track.notes.push_back(std::move(text)); }

    [[nodiscard]] ImportedTrack finish() &&;

private:
    void addFix(const TrackPoint& point, ReferenceDate date);

    ImportedTrack m_track;
    std::vector<std::pair<LeftOut, std::size_t>> m_leftOut; ///< in the order of their first
    std::size_t m_points = 0;
};

} // namespace kavela::imports
