#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Texts of the files as Qt has them.
namespace kavela::desktop {

[[nodiscard]] inline QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "a, b, c"
[[nodiscard]] QString joined(const std::vector<std::string>& texts);
/// "4, 8, 12"
[[nodiscard]] QString joined(const std::vector<std::int64_t>& numbers);

} // namespace kavela::desktop
