#pragma once

#include "planning/water_test_file.h"

namespace kavela::sample {

/// A spring of on-water tests of four of the team: the lap test in March, April and May, a sprint
/// in April and May, and the eight test in May.
[[nodiscard]] onWaterTests formTests();

} // namespace kavela::sample
