#pragma once

#include "cli/call_outline.h"

#include <string>
#include <string_view>

namespace kavela::cli {

/// What a shell reads to complete calls of the program: commands, their options, the words that an
/// option takes, and else names of files. `shell` is "bash", "zsh" or "fish"; empty for another.
[[nodiscard]] std::string completionText(const CommandOutline& program, std::string_view shell);

/// The page of the manual, in the language of `man`.
[[nodiscard]] std::string manualText(const CommandOutline& program, std::string_view version);

} // namespace kavela::cli
