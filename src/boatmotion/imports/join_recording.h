#pragma once

#include "boatmotion/imports/track.h"
#include "boatmotion/sessions.h"

namespace kavela {

/// What became of a track that was joined to a recording.
struct JoinedTrack {
    std::size_t fixes = 0; ///< that were taken over
    std::size_t heart = 0;
    std::vector<std::string> notes; ///< what was not, and why, as sentences for people
};

/// Gives a recording the positions and heart rates of a track, each only where the recording has
/// none. A date of the recording is one of the track + `offset` seconds, for a watch whose clock is
/// wrong. Taken over is what lies within the recording, and a minute around it.
[[nodiscard]] JoinedTrack joinRecording(bmrawdata_v5& session, const ImportedTrack& track,
                                        double offset = 0);

/// The same without doing it: what would be taken over, and what not.
[[nodiscard]] JoinedTrack joinable(const bmrawdata_v5& session, const ImportedTrack& track,
                                   double offset = 0);

/// The first and last date, in seconds since 2001.
struct DateSpan {
    double first = 0;
    double last = 0;
};
/// Of the motion samples, of which there has to be one.
[[nodiscard]] DateSpan spanOf(const bmrawdata_v5& session);
/// Of positions and heart rates; the track is not empty.
[[nodiscard]] DateSpan spanOf(const ImportedTrack& track);

} // namespace kavela
