#pragma once

#include "planning/test_records.h"

#include <QString>

namespace kavela::desktop {

/// The sum of the splits; a dash as long as one of them is missing.
[[nodiscard]] QString totalText(const datafor8& eight);
/// The standard deviation of the splits; a dash as long as one of them is missing.
[[nodiscard]] QString deviationText(const datafor8& eight);
/// "Total 71.20 s · standard deviation 0.28 s", or how many of its splits are timed.
[[nodiscard]] QString scoreText(const datafor8& eight);

} // namespace kavela::desktop
