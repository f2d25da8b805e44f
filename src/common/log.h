#pragma once

#include <functional>
#include <string_view>

namespace kavela {

/// Writes one line, given without its line end, to the diagnostic log.
using DiagnosticLog = std::function<void(std::string_view line)>;

} // namespace kavela
