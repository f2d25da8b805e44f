#pragma once

#include "boatmotion/samples.h"

#include <span>

namespace kavela::imports {

/// Splits readings of an accelerometer, which stand in the samples' acceleration and point up at
/// rest, into the boat's own acceleration and gravity, which points down. Gravity is what a
/// low-pass of 0.3 Hz leaves: one pole forward and backward, begun anew after a second without
/// samples. The samples are in order of time.
void splitOffGravity(std::span<boatmotionrawdata_v5> samples);

} // namespace kavela::imports
