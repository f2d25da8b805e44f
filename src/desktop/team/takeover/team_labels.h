#pragma once

#include <string>
#include <string_view>

namespace kavela::desktop {

/// The team's label of a category or an event that a file writes in its own way; empty when
/// there is none such.
[[nodiscard]] std::string teamCategory(std::string_view written);
[[nodiscard]] std::string teamEvent(std::string_view written);

} // namespace kavela::desktop
