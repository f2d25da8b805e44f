#pragma once

#include "boatmotion/samples.h"

#include <string>
#include <vector>

/// What a phone in the boat, a watch on the wrist and a heart-rate belt record. The boat is a point
/// mass with drag that is pushed by the strokes and yawed by them.
///
/// Device axes of the phone: x to starboard, y to the bow, z up. Yaw turns left, roll lowers
/// starboard, pitch raises the bow.
namespace kavela::sample {

/// A turn of the boat around an upstream gate.
struct Turn {
    double at = 0;      ///< seconds from the start
    double seconds = 0; ///< how long it takes
    double angle = 0;   ///< radians, to the left
};

struct RecordingPlan {
    std::string label; ///< of the dice
    double seconds = 0;
    double strokesPerMinute = 80;
    std::vector<Turn> turns{};
    ReferenceDate start{};
    double clockStart = 0; ///< what the devices' own clock shows at the start
    double latitude = 0;   ///< of the start, degrees
    double longitude = 0;  ///< of the start, degrees
    bool hasWatch = false;
};

struct Recording {
    std::vector<boatmotionrawdata_v5> boat; ///< 50 a second
    std::vector<watchmotiondata_v5> watch;  ///< 50 a second
    std::vector<gpsrawdata> gps;            ///< one a second
    std::vector<heartmotiondata> heart;     ///< one a second
};

[[nodiscard]] Recording record(const RecordingPlan& plan);

} // namespace kavela::sample
