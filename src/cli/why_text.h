#pragma once

#include "common/why.h"

#include <string>

namespace kavela::cli {

/// A reason as lines of text: the number, what went into it and from where, the rule.
[[nodiscard]] std::string whyText(const Reason& reason);

} // namespace kavela::cli
