#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kavela {

/// Where a text stops being JSON.
struct JsonFault {
    std::size_t byte = 0; ///< counted from 1; one beyond the text where it ends too early
    std::string_view what;
};

/// Reads a text for what is wrong in it; nothing when it is JSON. Slow beside the parser, which
/// knows only that something is.
[[nodiscard]] std::optional<JsonFault> findJsonFault(std::string_view text);

} // namespace kavela
