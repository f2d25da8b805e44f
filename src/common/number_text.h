#pragma once

#include <string>

namespace kavela {

/// The shortest decimal text that reads back as the same number, with an exponent where that is
/// shorter: 12, 0.1, 1e+300.
[[nodiscard]] std::string shortestText(double value);

/// The shortest plain decimal text that reads back as the same number, never with an exponent.
[[nodiscard]] std::string plainText(double value);

/// A time as it is shown: rounded to hundredths, halves away from zero on the product with 100,
/// then with two decimals: 2.125 is "2.13".
[[nodiscard]] std::string hundredthsText(double seconds);

/// The rounding behind hundredthsText.
[[nodiscard]] double roundedToHundredths(double seconds);

} // namespace kavela
