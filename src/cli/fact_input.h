#pragma once

#include "facts/fact_store.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The facts that calls are about.
namespace kavela::cli {

/// A file that gave no facts.
struct FailedFile {
    std::filesystem::path path;
    std::string reason; ///< in a sentence or two for people, with the path in it
};

/// The facts of the files that a call means.
struct FactInput {
    FactStore facts;
    std::size_t files = 0; ///< that were looked at
    std::size_t read = 0;
    std::vector<FailedFile> failed;
};

/// A folder stands for all split files below it, any other path for itself. Nothing is rewritten.
/// Shows a progress bar where there is much to read.
[[nodiscard]] FactInput factsFrom(const std::vector<std::string>& paths);

/// The facts of one split file; nothing, after a message, when no release can have written it.
[[nodiscard]] std::optional<FactStore> factsOfFile(const std::string& path);

/// Whether a table would be written over one of the files that it is made from.
[[nodiscard]] bool wouldReplaceSource(const FactStore& facts, const std::string& target);

/// Writes a table to a path; true also when the path is empty. False, after a message, when it
/// cannot be written.
[[nodiscard]] bool isTableWritten(const std::string& target, const std::string& table);

} // namespace kavela::cli
