#pragma once

#include <string>
#include <vector>

namespace kavela::bench {

/// Runs a program to its end and returns what it wrote to standard output. Throws
/// std::runtime_error when it cannot be started or does not end well.
[[nodiscard]] std::string outputOf(const std::vector<std::string>& command);

} // namespace kavela::bench
