#pragma once

#include <string>
#include <vector>

namespace kavela::cli {

/// A program of Kavela that this one can become.
struct OtherProgram {
    const char* name;
    const char* variable; ///< of the environment, which may name another to be started instead
};

/// Becomes the other program: the one that the environment names (a checkout builds it when it is
/// first started), else the one beside this program, else the first on the search path. Input,
/// output, exit status and signals are then its own. Returns only when that cannot be, with the
/// path of the program that could not be started.
[[nodiscard]] std::string become(const OtherProgram& other, std::vector<std::string> arguments);

} // namespace kavela::cli
