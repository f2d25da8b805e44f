#pragma once

#include <string>
#include <vector>

namespace kavela::cli {

/// Becomes the desktop program, opening the files in it; another one where `isNew`. Returns an exit
/// status only when that cannot be: a file that does not exist, no desktop program.
[[nodiscard]] int startDesktop(const std::vector<std::string>& files, bool isNew);

} // namespace kavela::cli
