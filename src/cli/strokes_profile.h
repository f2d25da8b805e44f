#pragma once

#include "boatmotion/strokes/motion_analysis.h"
#include "cli/call.h"

#include <optional>

namespace kavela::cli {

/// What a call of `kavela strokes` tells about boat and phone.
struct StrokesProfile {
    std::optional<double> mass;
    std::optional<double> drag;
    std::optional<BoatClass> boat;
    std::optional<Mount> bow;

    /// A recording's own profile with what was told in its place.
    [[nodiscard]] MotionProfile over(MotionProfile profile) const;
};

/// Adds --bow, --mass, --drag and --boat, each with a refusal that names what it takes. `profile`
/// must outlive the call.
void addProfileOptions(Command command, StrokesProfile& profile);

} // namespace kavela::cli
