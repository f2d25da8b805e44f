#pragma once

#include "splitdata/records.h"

#include <compare>
#include <cstddef>
#include <optional>

/// Moments on films, as all notes of a run use them. Notes are marked on the run's first camera
/// unless they say otherwise; a stamp without a time scale stands for a mark not taken.
namespace kavela {

/// Stands in a list of marks for one that was not taken.
inline constexpr CMTime NotMarked{};

/// Whether a stamp is a moment of a film: it has a time scale above 0 and is neither infinite nor
/// indefinite. Its value may be below 0, before the film begins.
[[nodiscard]] bool isTaken(const CMTime& stamp);

/// The order of two moments, exact in whatever time scales they stand.
[[nodiscard]] std::strong_ordering orderOf(const CMTime& a, const CMTime& b);

/// Seconds from one moment to another: the difference is taken in ticks and divided last, so that
/// equal numbers of ticks give equal seconds anywhere on the film.
[[nodiscard]] double secondsFrom(const CMTime& from, const CMTime& to);

/// The start of a run on one of its cameras as its timing tells it; nothing where no split is
/// marked or the camera has no stamp.
[[nodiscard]] std::optional<CMTime> startOf(const athletedata031& run, std::size_t camera = 0);

/// Seconds of the run at a moment of the first camera's film; from the start of the film when the
/// run's start is not known.
[[nodiscard]] double runSecondsAt(const athletedata031& run, const CMTime& moment);

} // namespace kavela
