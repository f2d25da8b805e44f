#pragma once

#include "boatmotion/sessions.h"

/// The recordings of the season that stand in files of their own.
namespace kavela::sample {

/// Gates on calm water, with two upstream gates: forty seconds, no watch.
[[nodiscard]] bmrawdata_v5 upstreamDrill();

/// A sprint with the watch on.
[[nodiscard]] bmrawdata_v5 sprintWithWatch();

/// A recording as phones wrote it up to version 4.
[[nodiscard]] bmrawdata_v4 oldPhone();

} // namespace kavela::sample
