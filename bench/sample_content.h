#pragma once

#include "boatmotion/sessions.h"
#include "splitdata/document.h"
#include "splitdata/history/documents.h"

#include <cstddef>

/// Documents of the size and the digits of real ones: what a phone writes has all seventeen.
namespace kavela::bench {

/// A race of `runs` runs on a course of 22 gates and 10 sections, marked on two cameras, without
/// sensor recordings. Equal seeds give equal races.
[[nodiscard]] splittakerdata031 race(std::size_t runs, unsigned seed = 1);

/// A race with the motion recording of every run attached: 100 samples per second for 90 seconds.
[[nodiscard]] splittakerdata031 recordedRace(std::size_t runs);

/// A recording of the boat phone, with its fixes and heart rates, of so many seconds.
[[nodiscard]] bmrawdata_v5 recording(std::size_t seconds);

/// A race of the first release: nothing but marks, times and penalties.
[[nodiscard]] history::splittakerdataOLD oldestRace(std::size_t runs);

} // namespace kavela::bench
