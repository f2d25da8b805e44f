#pragma once

#include <QString>

#include <cstdint>
#include <filesystem>

namespace kavela::desktop {

/// Tells one state of a file from another: by when it was written and how long it is. Two writes
/// within a tick of the disk's clock have the same time. Which file it is on its disk says nothing:
/// a memory stick numbers its files anew.
class FileStamp {
public:
    /// Of no file.
    FileStamp() = default;
    /// Of what stands under the path now.
    explicit FileStamp(const QString& path);

    [[nodiscard]] bool isThere() const { return m_isThere; }
    [[nodiscard]] bool operator==(const FileStamp& other) const = default;

private:
    bool m_isThere = false;
    std::filesystem::file_time_type m_written;
    std::uintmax_t m_bytes = 0;
};

} // namespace kavela::desktop
