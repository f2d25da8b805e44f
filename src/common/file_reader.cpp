#include "common/file_reader.h"

#include "common/error.h"
#include "common/large_pages.h"
#include "common/posix_file.h"
#include "common/text.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>

namespace kavela {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t LargestDocument = 0xFFFFFFFF - simdjson::SIMDJSON_PADDING;

/// Bytes of the file from `begin` up to `end`.
struct Range {
    off_t begin = 0;
    off_t end = 0;
};

bool isBlank(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// Reads up to `size` bytes at `offset`; fewer only at the end of the file.
std::size_t readAt(const PosixFile& file, char* to, std::size_t size, off_t offset) {
    std::size_t taken = 0;
    while (taken < size) {
        const ssize_t got = ::pread(file.descriptor(), to + taken, size - taken,
                                    offset + static_cast<off_t>(taken));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFileError(file.path());
        if (got == 0)
            break;
        taken += static_cast<std::size_t>(got);
    }
    return taken;
}

off_t firstUsed(const PosixFile& file, Range range) {
    std::array<char, 1 << 16> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    while (range.begin < range.end) {
        const std::size_t got = readAt(file, chunk.data(), chunk.size(), range.begin);
        if (got == 0)
            break;
        char* const end = chunk.data() + got;
        const char* const used = std::find_if_not(chunk.data(), end, isBlank);
        range.begin += used - chunk.data();
        if (used != end)
            return range.begin;
    }
    return range.end;
}

off_t pastLastUsed(const PosixFile& file, Range range) {
    std::array<char, 1 << 16> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    while (range.end > range.begin) {
        const off_t size =
            std::min<off_t>(static_cast<off_t>(chunk.size()), range.end - range.begin);
        const std::size_t got =
            readAt(file, chunk.data(), static_cast<std::size_t>(size), range.end - size);
        const auto used = std::find_if_not(std::make_reverse_iterator(chunk.data() + got),
                                           std::make_reverse_iterator(chunk.data()), isBlank);
        if (used.base() != chunk.data())
            return range.end - size + (used.base() - chunk.data());
        range.end -= size;
    }
    return range.end;
}

PosixFile openOrdinaryFile(const std::filesystem::path& path, struct ::stat& status) {
    // Not waiting for a writer, should somebody name a pipe.
    PosixFile file(path, O_RDONLY | O_NONBLOCK);
    if (::fstat(file.descriptor(), &status) != 0)
        throw systemFileError(path);
    if (S_ISDIR(status.st_mode))
        throw FileError(path, say("this is a folder, not a file"));
    if (!S_ISREG(status.st_mode))
        throw FileError(path, say("this is not an ordinary file"));
    return file;
}

} // namespace

simdjson::padded_string readObjectText(const std::filesystem::path& path) {
    struct ::stat status {};
    const PosixFile file = openOrdinaryFile(path, status);
    Range range{0, status.st_size};
    if (range.end == 0)
        throw DecodeError({{}, say("the file is empty")});

    std::array<char, 3> start{};
    const std::size_t got = readAt(file, start.data(), start.size(), 0);
    if (std::string_view(start.data(), got) == ByteOrderMark)
        range.begin = static_cast<off_t>(ByteOrderMark.size());

    range.begin = firstUsed(file, range);
    if (range.begin >= range.end)
        throw DecodeError({{}, say("the file holds nothing but blanks")});
    char first = 0;
    if (readAt(file, &first, 1, range.begin) != 1 || first != '{')
        throw DecodeError(
            {{}, std::string(translated("this is no JSON object: it does not begin with {"))});
    range.end = pastLastUsed(file, range);

    const auto size = static_cast<std::size_t>(range.end - range.begin);
    if (size > LargestDocument)
        throw DecodeError({{}, say("the file is too large for a document (over 4 GB)")});
    simdjson::padded_string text(size);
    if (text.data() == nullptr)
        throw std::bad_alloc();
    preferLargePages(text.data(), size);
    if (readAt(file, text.data(), size, range.begin) != size)
        throw FileError(path, say("the file became shorter while it was read"));
    return text;
}

} // namespace kavela
