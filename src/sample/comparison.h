#pragma once

#include <string>

namespace kavela::sample {

/// A job that composes the films of the first two of the riverside final into one, side by side,
/// each waiting for the other at every split.
[[nodiscard]] std::string comparisonOfFinal();

} // namespace kavela::sample
