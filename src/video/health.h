#pragma once

#include "video/index.h"

#include <string>
#include <vector>

namespace kavela {

/// What is unusual about a film.
enum class Oddity {
    CutOff,
    EstimatedStamps,
    SharedStamps,
    VariableRate,
    Gaps,
    RepeatedFrames,
    FlattenedSlowMotion,
    FirstStamp,
    Rotation,
    NoStoredIndex,
    Interlaced,
    DeepColour,
};

struct HealthNote {
    Oddity oddity;
    std::string text; ///< one sentence for a coach
};

/// What somebody who times with this film should know, the gravest first; empty for a film without
/// oddities.
[[nodiscard]] std::vector<HealthNote> checkHealth(const VideoIndex& index);

} // namespace kavela
