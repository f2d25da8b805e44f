#pragma once

#include "facts/fact_store.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace kavela::cli {

/// A file that gave no facts.
struct FailedFile {
    std::filesystem::path path;
    std::string reason; ///< in a sentence or two for people
};

/// The facts of the files that a call means.
struct FactInput {
    FactStore facts;
    std::size_t files = 0; ///< that were looked at
    std::size_t read = 0;
    std::vector<FailedFile> failed;
};

/// A folder stands for all split files below it, any other path for itself. Nothing is rewritten.
[[nodiscard]] FactInput factsFrom(const std::vector<std::string>& paths);

} // namespace kavela::cli
