#pragma once

#include "boatmotion/sessions.h"

namespace kavela {

/// How the clock of a processed session's strokes relates to the dates of its fixes and heart
/// rates: date = moment + offset.
struct SessionClock {
    double offset = 0;      ///< s
    bool isGuessed = false; ///< the file does not tell; see clockOf
};

/// The clock of a processed session. Strokes are stamped by the phone's own clock, fixes and heart
/// rates by the date, and the file does not say how far apart both are. Stamps within a day of the
/// session's date are dates themselves. Otherwise the strokes are put where they lie within the
/// recorded fixes, the boat's course changes during its turns and the boat moves at its strokes;
/// where several places are as good, in the middle of them.
[[nodiscard]] SessionClock clockOf(const smartAlldata_v4& session);

} // namespace kavela
