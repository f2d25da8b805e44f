#pragma once

#include <string_view>

namespace kavela::page {

/// The rules of the page, but for the colours of cells: light and dark as the telephone is set, one
/// column that is never wider than the screen, and paper.
[[nodiscard]] std::string_view pageStyle();

} // namespace kavela::page
