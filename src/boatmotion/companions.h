#pragma once

#include "boatmotion/sessions.h"

#include <filesystem>

/// What the tools keep beside a recording while they work on it; never written to a file.
namespace kavela {

/// One raw recording loaded in the raw-data analyser.
struct bmdataStruct {
    std::string name; ///< file name, as lists show it
    std::vector<boatmotionrawdata_v5> bm;
    bool shows = true;         ///< whether its curves are drawn
    std::filesystem::path url; ///< where the recording stands
};

/// Averages of one segment.
struct segmentStruct {
    std::int64_t segment = 0;
    double strokerate = 0; ///< strokes per minute
    double power = 0;      ///< watts
    double force = 0;      ///< newtons
};

/// Values at one distance mark.
struct smartMetersData {
    double distance = 0; ///< metres
    double strokerate = 0;
    double power = 0;
    double force = 0;
    double drag = 0;
    double impulse = 0;
    double speed = 0; ///< metres per second
    double mstr = 0;  ///< metres per stroke
};

/// One sample of a power meter.
struct powermeterData {
    double dateDouble = 0; ///< seconds
    double power = 0;      ///< watts
    std::int64_t hr = 0;   ///< beats per minute
};

/// The marker of one turn on a map.
struct rotData {
    std::int64_t button = 0; ///< number of the marker that is clicked
    double latitude = 0;     ///< degrees
    double longitude = 0;    ///< degrees
    smartRotation rotation;
};

} // namespace kavela
