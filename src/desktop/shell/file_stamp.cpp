#include "desktop/shell/file_stamp.h"

#include <system_error>

namespace kavela::desktop {

FileStamp::FileStamp(const QString& path) {
    const std::filesystem::path file = path.toStdString();
    std::error_code error;
    const auto written = std::filesystem::last_write_time(file, error);
    const auto bytes = error ? 0 : std::filesystem::file_size(file, error);
    if (error)
        return;
    m_isThere = true;
    m_written = written;
    m_bytes = bytes;
}

} // namespace kavela::desktop
