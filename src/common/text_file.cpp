#include "common/text_file.h"

#include "common/error.h"
#include "common/posix_file.h"

#include <simdjson.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

namespace kavela {

namespace {

constexpr std::size_t LargestList = 64U << 20;

void checkOrdinary(const PosixFile& file) {
    struct ::stat status {};
    if (::fstat(file.descriptor(), &status) != 0)
        throw systemFileError(file.path());
    if (S_ISDIR(status.st_mode))
        throw FileError(file.path(), "this is a folder, not a file");
    if (!S_ISREG(status.st_mode))
        throw FileError(file.path(), "this is not an ordinary file");
}

std::string contentOf(const PosixFile& file) {
    std::string content;
    std::array<char, 1 << 16> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    for (;;) {
        const ssize_t got = ::read(file.descriptor(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFileError(file.path());
        if (got == 0)
            return content;
        content.append(chunk.data(), static_cast<std::size_t>(got));
        if (content.size() > LargestList)
            throw FileError(file.path(), "the file is too large for a list (over 64 MB)");
    }
}

} // namespace

std::string readTextFile(const std::filesystem::path& path) {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    // Not waiting for a writer, should somebody name a pipe.
    const PosixFile file(path, O_RDONLY | O_NONBLOCK);
    checkOrdinary(file);
    std::string text = contentOf(file);
    if (!simdjson::validate_utf8(text))
        throw DecodeError({{}, "the file is not UTF-8 text"});
    if (text.starts_with(ByteOrderMark))
        text.erase(0, ByteOrderMark.size());
    return text;
}

} // namespace kavela
