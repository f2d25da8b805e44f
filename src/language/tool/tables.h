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

/// The context in which every text stands once more, for those who ask in a context that no source
/// has. The windows know it by this name.
inline constexpr const char* AnyContext = "any";

/// A catalogue of the windows with that context: a plain function says its texts in the context
/// that its author gave it, and is found in that of the namespace around it.
[[nodiscard]] Catalogue withAnyContext(const Catalogue& catalogue);

} // namespace kavela::catalogue
