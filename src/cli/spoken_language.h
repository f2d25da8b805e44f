#pragma once

#include <string>
#include <vector>

namespace kavela::cli {

/// Makes the program, and those that it becomes, speak the language of a call: that of --language
/// in front of the command, or that of the environment. A call for JSON or CSV is answered in
/// English throughout: other programs read it. False for a language that does not exist, which is
/// told.
[[nodiscard]] bool speakAsCalled(const std::vector<std::string>& arguments);

} // namespace kavela::cli
