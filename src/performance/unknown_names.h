#pragma once

#include "facts/query_text.h"

#include <string>
#include <vector>

namespace kavela {

/// An athlete whom a query asks for and nobody in the files is called.
struct UnknownName {
    std::string name;                ///< as it was asked for
    std::vector<std::string> likeIt; ///< names that may have been meant, the likest first; few
};

[[nodiscard]] std::vector<UnknownName> unknownNames(const Query& query, const FactStore& facts);

} // namespace kavela
