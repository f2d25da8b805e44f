#pragma once

#include "boatmotion/imports/sensor_csv.h"

namespace kavela::imports {

/// What the title of a column says.
struct CsvTitle {
    CsvQuantity quantity = CsvQuantity::None;
    /// Of an acceleration: whether the title tells if gravity is in it. Otherwise `quantity` is one
    /// of those with gravity.
    bool tellsGravity = false;
    std::string unit; ///< what stands in brackets, or after a slash at the end; lower case
};

/// Reads a title such as "accelerometerAccelerationX(G)", "gyro_z [rad/s]", "Latitude" or "ax". A
/// quantity of three axes is given only with its axis.
[[nodiscard]] CsvTitle readTitle(std::string_view title);

} // namespace kavela::imports
