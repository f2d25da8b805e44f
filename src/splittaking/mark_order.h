#pragma once

#include "common/cm_time.h"

#include <optional>
#include <string>

namespace kavela {

/// A mark beside the place where another one is wanted.
struct Neighbour {
    std::string name; ///< within a sentence: "split 3", "the start"
    CMTime moment;    ///< of the same film
};

/// Marks of one thing lie in order of time, each on a frame of its own. Why a mark cannot lie at a
/// moment between its neighbours, for the coach; nothing when it can. A neighbour that does not
/// exist, or whose stamp is no moment of a film, asks for nothing.
[[nodiscard]] std::optional<std::string> refusalBetween(const std::optional<Neighbour>& before,
                                                        const std::optional<Neighbour>& after,
                                                        const CMTime& moment);

/// What is said of a second mark on one frame; `name` as in Neighbour.
[[nodiscard]] std::string alreadyThere(std::string name);

} // namespace kavela
