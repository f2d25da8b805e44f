#pragma once

#include "page/page_films.h"

#include <span>

namespace kavela::painting {

/// Cuts clips with a progress bar; false, after a message for each, when one could not be cut.
[[nodiscard]] bool arePageClipsCut(std::span<const page::ClipOrder> clips);

} // namespace kavela::painting
