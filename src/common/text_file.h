#pragma once

#include <filesystem>
#include <string>

namespace kavela {

/// Reads a list that people or spreadsheets wrote, whole and byte by byte as it stands; a byte
/// order mark at its beginning is left out.
/// Throws FileError when the file is missing, a folder, no ordinary file, unreadable or over 64 MB,
/// and DecodeError when it is not UTF-8 text.
[[nodiscard]] std::string readTextFile(const std::filesystem::path& path);

} // namespace kavela
