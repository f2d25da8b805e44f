#pragma once

#include "common/error.h"

#include <unistd.h>

#include <filesystem>
#include <utility>

namespace kavela {

/// The failure of the system call that was made last, in plain words.
[[nodiscard]] FileError systemFileError(const std::filesystem::path& path);

/// An open file descriptor that closes itself. Throws FileError when the file cannot be opened.
class PosixFile {
public:
    PosixFile(std::filesystem::path path, int flags, unsigned mode = 0);
    PosixFile(PosixFile&& other) noexcept
        : m_path(std::move(other.m_path)), m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    PosixFile& operator=(PosixFile&&) = delete;
    ~PosixFile() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Closes the file and reports what a network disk may say only then.
    void close();

private:
    std::filesystem::path m_path;
    int m_descriptor;
};

} // namespace kavela
