#pragma once

#include "sample/film.h"
#include "splitdata/records.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kavela::films {

using sample::Frames;

/// When what happened on one camera's film of a run. Frames are counted from the film's first; what
/// came before it is negative. Where the record tells no time, as for most gates in the middle of
/// a section, a likely one stands between those that it tells.
struct RunOnFilm {
    std::int32_t timescale = 600;
    Frames length = 0; ///< of the film
    Frames start = 0;
    std::vector<Frames> gates;    ///< when each gate was passed; shorter when the boat gave up
    std::optional<Frames> finish; ///< also when the film ends before; none when the boat gave up
    std::vector<std::optional<Frames>> marks; ///< of each split that was timed
    std::vector<std::int64_t> pens;           ///< by gate
};

/// Reads it out of the record. Film and record agree to the frame on every mark, on the gates of
/// the micro-splits and upstreams, and on the last gate before the finish. Throws
/// std::invalid_argument for a run without any mark on this camera, or whose stamps lie between
/// the frames of a film with 50 a second.
[[nodiscard]] RunOnFilm runOnFilm(const infodata031& info, const athletedata031& run,
                                  std::size_t camera);

/// Throws std::invalid_argument for a course whose sections do not end at gates.
void requireSections(const infodata031& info);

} // namespace kavela::films
