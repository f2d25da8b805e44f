#pragma once

#include "splitdata/loader.h"

#include <optional>
#include <string>

/// What the calls that change a split file have in common.
namespace kavela::cli {

/// A split file of any release, read without being rewritten; nothing, after a message, when no
/// release can have written it.
[[nodiscard]] std::optional<RecognisedSplitFile> openedSplitFile(const std::string& path);

/// Whether a file may be written, which one of an older version may not: the message then names the
/// call that upgrades it.
[[nodiscard]] bool isWritable(const RecognisedSplitFile& file, const std::string& path);

/// Saves a document with the present moment as its last one; false, after a message, on failure.
[[nodiscard]] bool isSaved(splittakerdata031& document, const std::string& path);

} // namespace kavela::cli
