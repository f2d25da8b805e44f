#pragma once

#include "language/tool/ts_file.h"

#include <string>
#include <vector>

namespace kavela::catalogue {

/// A catalogue that is to be built in.
struct BuiltIn {
    std::string code; ///< "de"
    bool isComplete = false;
    Catalogue catalogue;
};

/// The source with the finished texts of the plain libraries in every language.
[[nodiscard]] std::string tablesSource(const std::vector<BuiltIn>& catalogues);

} // namespace kavela::catalogue
