#pragma once

#include "analysis/analyzer_records.h"
#include "common/why.h"

#include <optional>

namespace kavela {

/// Where a run stands in its file, and the mark at the end of one of its sections, counted from 1.
[[nodiscard]] Place runPlace(const analyzerdata& run,
                             std::optional<std::size_t> section = std::nullopt);

} // namespace kavela
