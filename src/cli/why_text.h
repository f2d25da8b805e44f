#pragma once

#include "common/why.h"

#include <string>

namespace kavela::cli {

/// How a number came about, for people: its text and its rule in words, what went into it and where
/// that stands, the rule in signs with the full number, and the same of the numbers made on the
/// way.
[[nodiscard]] std::string whyText(const Reason& reason);

} // namespace kavela::cli
