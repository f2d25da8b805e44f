#pragma once

#include "planning/test_records.h"

#include <QString>

namespace kavela::desktop {

/// A number with two decimals; a dash where there is none, which is what 0 stands for.
[[nodiscard]] QString shownNumber(double value);

/// The standard deviation of the splits; a dash as long as one of them is missing.
[[nodiscard]] QString deviationText(const datafor8& eight);
/// "Total 71.20 s · standard deviation 0.28 s"
[[nodiscard]] QString scoreText(const datafor8& eight);

} // namespace kavela::desktop
