#pragma once

#include "common/why.h"

#include <optional>
#include <string_view>

namespace kavela::cli {

/// Prints how the number of an id came about, or says that there is no such number. The exit
/// status.
[[nodiscard]] int tellReason(const std::optional<Reason>& reason, std::string_view id);

} // namespace kavela::cli
