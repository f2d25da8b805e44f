#include "update/version.h"

#include <charconv>

namespace kavela::update {

namespace {

constexpr std::size_t MostVersionDigits = 6;

std::optional<int> versionNumber(std::string_view digits) {
    const bool hasZeroInFront = digits.size() > 1 && digits.front() == '0';
    if (digits.empty() || digits.size() > MostVersionDigits || hasZeroInFront ||
        digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

} // namespace

std::string Version::text() const {
    return std::to_string(numbers[0]) + '.' + std::to_string(numbers[1]) + '.' +
           std::to_string(numbers[2]);
}

std::optional<Version> parsedVersion(std::string_view text) {
    Version version;
    for (std::size_t i = 0; i < version.numbers.size(); ++i) {
        const bool isLast = i + 1 == version.numbers.size();
        const std::size_t end = isLast ? text.size() : text.find('.');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<int> number = versionNumber(text.substr(0, end));
        if (!number)
            return std::nullopt;
        version.numbers[i] = *number;
        text.remove_prefix(isLast ? end : end + 1);
    }
    return version;
}

} // namespace kavela::update
