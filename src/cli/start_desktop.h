#pragma once

#include <string>
#include <vector>

namespace kavela::cli {

/// Becomes the desktop program, opening the files in it. Returns an exit status only when that
/// cannot be: a file that does not exist, no desktop program.
[[nodiscard]] int startDesktop(std::vector<std::string> files);

} // namespace kavela::cli
