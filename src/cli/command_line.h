#pragma once

namespace kavela::cli {

class Painting;

/// Reads a call of `kavela` and does what it says; returns the exit status. Without `painting`, a
/// call that needs it is handed on to the program that has it.
[[nodiscard]] int runCommandLine(int argc, char** argv, const char* version,
                                 const Painting* painting);

} // namespace kavela::cli
