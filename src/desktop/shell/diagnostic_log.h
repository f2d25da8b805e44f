#pragma once

#include "common/log.h"

#include <filesystem>

namespace kavela::desktop {

/// A diagnostic log in a file that is turned over before it grows large; the last few are kept.
/// Where the file cannot be made, lines go to standard error.
[[nodiscard]] DiagnosticLog rotatingLog(const std::filesystem::path& file);

} // namespace kavela::desktop
