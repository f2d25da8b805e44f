#pragma once

#include "boatmotion/imports/sensor_csv.h"

namespace kavela::imports {

/// The separator that cuts most of the lines into equally many fields, more than one; a comma when
/// none does.
[[nodiscard]] char guessSeparator(std::span<const std::string> lines);

/// How lines are most likely to be read.
[[nodiscard]] CsvMapping guessMapping(std::span<const std::string> lines, char separator);

/// The titles of the columns, from the lines before the first sample.
[[nodiscard]] std::vector<std::string> titlesOf(std::span<const std::string> lines,
                                                const CsvMapping& mapping);

} // namespace kavela::imports
