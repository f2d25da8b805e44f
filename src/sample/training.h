#pragma once

#include "splitdata/document.h"

/// The sessions of one training group at home.
namespace kavela::sample {

/// Laps of the whole course; one of them was recorded by the sensors.
[[nodiscard]] splittakerdata031 gateLaps();

/// Two timed runs each, to see the form of the group.
[[nodiscard]] splittakerdata031 formTest();

} // namespace kavela::sample
