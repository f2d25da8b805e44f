#pragma once

#include <cstdint>
#include <string>

namespace kavela {

/// A line of a list that could not be taken.
struct RefusedLine {
    std::int64_t line = 0; ///< counted from 1, the titles included
    std::string reason;

    friend bool operator==(const RefusedLine&, const RefusedLine&) = default;
};

} // namespace kavela
