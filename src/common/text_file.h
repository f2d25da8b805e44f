#pragma once

#include <filesystem>
#include <string>

namespace kavela {

/// Reads a list that people or spreadsheets wrote, whole and byte by byte as it stands; a byte
/// order mark at its beginning is left out.
/// Throws FileError when the file is missing, a folder, no ordinary file, unreadable or over 64 MB,
/// and DecodeError when it is not UTF-8 text.
[[nodiscard]] std::string readTextFile(const std::filesystem::path& path);

/// A list in UTF-8, however its file writes letters.
struct ListText {
    std::string text;
    bool isLatin1 = false; ///< was no UTF-8 and taken as Latin-1: other letters may be meant
};

/// The same for lists of people, which older spreadsheets write in Latin-1 (read with what Windows
/// puts into its unused places, such as Š and Ž) and some programs in UTF-16. Throws DecodeError
/// for what is no text at all.
[[nodiscard]] ListText readListText(const std::filesystem::path& path);

/// The same for a list that is in memory. Throws DecodeError for what is no text at all.
[[nodiscard]] ListText listTextOf(std::string bytes);

/// The bytes of a file that may be a list of any kind, text or not. Throws FileError as
/// readTextFile does.
[[nodiscard]] std::string readListBytes(const std::filesystem::path& path);

} // namespace kavela
