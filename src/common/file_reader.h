#pragma once

#include <simdjson.h>

#include <filesystem>

namespace kavela {

/// Reads a text document whole. Blanks and a byte order mark around the document are left on the
/// disk, so that a file of gigabytes of blanks costs no memory, and a file that cannot be a JSON
/// object (a film opened by mistake) is refused after its first bytes.
/// Throws FileError when the file is missing, a folder, no ordinary file or unreadable, and
/// DecodeError when it is empty, blank, too large for a document, or begins with something else
/// than an object.
[[nodiscard]] simdjson::padded_string readObjectText(const std::filesystem::path& path);

} // namespace kavela
