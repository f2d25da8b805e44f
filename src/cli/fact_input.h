#pragma once

#include "facts/fact_store.h"

#include <optional>
#include <string>

/// The facts that calls are about.
namespace kavela::cli {

/// The facts of one split file; nothing, after a message, when no release can have written it.
[[nodiscard]] std::optional<FactStore> factsOfFile(const std::string& path);

/// Whether a table would be written over one of the files that it is made from.
[[nodiscard]] bool wouldReplaceSource(const FactStore& facts, const std::string& target);

/// Writes a table to a path; true also when the path is empty. False, after a message, when it
/// cannot be written.
[[nodiscard]] bool isTableWritten(const std::string& target, const std::string& table);

} // namespace kavela::cli
