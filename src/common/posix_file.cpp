#include "common/posix_file.h"

#include "common/text.h"

#include <fcntl.h>

#include <cerrno>
#include <system_error>

namespace kavela {

namespace {

std::string plainReason(int code) {
    switch (code) {
    case ENOENT:
        return say("there is no such file");
    case EACCES:
    case EPERM:
        return say("no permission");
    case EISDIR:
        return say("this is a folder, not a file");
    case ENOSPC:
        return say("the disk is full");
    case EROFS:
        return say("the disk can only be read");
    default:
        return std::system_category().message(code);
    }
}

} // namespace

FileError systemFileError(const std::filesystem::path& path) {
    return {path, plainReason(errno)};
}

PosixFile::PosixFile(std::filesystem::path path, int flags, unsigned mode)
    : m_path(std::move(path)), m_descriptor(::open(m_path.c_str(), flags | O_CLOEXEC, mode)) {
    if (m_descriptor < 0)
        throw systemFileError(m_path);
}

void PosixFile::close() {
    if (::close(std::exchange(m_descriptor, -1)) != 0)
        throw systemFileError(m_path);
}

} // namespace kavela
