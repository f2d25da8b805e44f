#pragma once

#include <string>
#include <vector>

namespace kavela::cli {

/// Becomes the desktop program, which stands beside this command unless the environment names
/// another in KAVELA_DESKTOP, opening the files in it. Returns an exit status only when that cannot
/// be: a file that does not exist, no desktop program.
[[nodiscard]] int startDesktop(std::vector<std::string> files);

} // namespace kavela::cli
