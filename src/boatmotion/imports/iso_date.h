#pragma once

#include "common/reference_date.h"

#include <optional>
#include <string_view>

namespace kavela::imports {

/// A date with a time of day as files write it: 2026-05-07T10:02:00.25Z, also with a blank for the
/// T, without seconds, with a comma for the point, and with +02:00, +0200 or +02 for the Z, a blank
/// before it or none. Without
/// a zone it is taken as UTC. Nothing for any other text.
[[nodiscard]] std::optional<ReferenceDate> isoDate(std::string_view text);

} // namespace kavela::imports
