#pragma once

#include "common/json_document.h"

#include <string_view>

namespace kavela {

/// What a document is, as the names of its members tell without decoding it.
struct ContentKind {
    std::string_view kind = "unknown"; ///< in the words of FileFacts
    bool hasRuns = false;              ///< a split file with runs
    bool hasCross = false;             ///< a split file with time trials or heats of a cross race
};

[[nodiscard]] ContentKind contentKind(const JsonDocument& json);

} // namespace kavela
