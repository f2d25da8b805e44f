#pragma once

#include "common/posix_file.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kavela::imports {

/// A file of somebody else's, read from its beginning to its end. Throws FileError for a file that
/// is missing, a folder, no ordinary file or unreadable.
class SourceFile {
public:
    explicit SourceFile(const std::filesystem::path& path);

    [[nodiscard]] std::uint64_t size() const { return m_size; } ///< bytes, when it was opened

    /// Reads on; fewer bytes than asked for only at the end.
    [[nodiscard]] std::size_t read(char* to, std::size_t size);

private:
    PosixFile m_file;
    std::uint64_t m_size = 0;
};

/// The lines of a file one by one; only a piece of the file is in memory. A line feed ends a line,
/// with a carriage return before it or without. A byte order mark at the beginning is left out.
class LineReader {
public:
    static constexpr std::size_t LongestLine = 1 << 16; ///< bytes; what is longer is cut off

    explicit LineReader(const std::filesystem::path& path) : m_file(path) {}

    /// The next line, valid until the next call; false at the end.
    [[nodiscard]] bool next(std::string_view& line);

private:
    [[nodiscard]] bool fill();
    void passByteOrderMark();

    SourceFile m_file;
    std::string m_buffer;
    std::size_t m_begin = 0;
    bool m_isAtEnd = false;
    bool m_isFirst = true;
};

/// The whole content. Throws FileError also for a file of more than `most` bytes.
[[nodiscard]] std::string readWhole(const std::filesystem::path& path, std::size_t most);

} // namespace kavela::imports
