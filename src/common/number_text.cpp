#include "common/number_text.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>

namespace kavela {

std::string shortestText(double value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string plainText(double value) {
    std::array<char, 1100> buffer{}; // the longest: a sign, "0." and 1,074 digits
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
            .ptr;
    return {buffer.data(), end};
}

double roundedToHundredths(double seconds) {
    const double product = seconds * 100;
    return std::isfinite(product) ? std::round(product) / 100 : seconds;
}

std::string hundredthsText(double seconds) {
    return fmt::format("{:.2f}", roundedToHundredths(seconds));
}

} // namespace kavela
