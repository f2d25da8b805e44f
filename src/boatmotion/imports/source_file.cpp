#include "boatmotion/imports/source_file.h"

#include "common/text.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace kavela::imports {

namespace {
constexpr std::size_t Piece = 1 << 18;
}

SourceFile::SourceFile(const std::filesystem::path& path)
    // Not waiting for a writer, should somebody name a pipe.
    : m_file(path, O_RDONLY | O_NONBLOCK) {
    struct ::stat status {};
    if (::fstat(m_file.descriptor(), &status) != 0)
        throw systemFileError(path);
    if (S_ISDIR(status.st_mode))
        throw FileError(path, say("this is a folder, not a file"));
    if (!S_ISREG(status.st_mode))
        throw FileError(path, say("this is not an ordinary file"));
    m_size = static_cast<std::uint64_t>(status.st_size);
}

std::size_t SourceFile::read(char* to, std::size_t size) {
    std::size_t taken = 0;
    while (taken < size) {
        const ssize_t got = ::read(m_file.descriptor(), to + taken, size - taken);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFileError(m_file.path());
        if (got == 0)
            break;
        taken += static_cast<std::size_t>(got);
    }
    return taken;
}

bool LineReader::fill() {
    m_buffer.erase(0, m_begin);
    m_begin = 0;
    const std::size_t kept = m_buffer.size();
    const auto piece = static_cast<std::size_t>(std::min<std::uint64_t>(Piece, m_file.size() + 1));
    m_buffer.resize(kept + piece);
    const std::size_t got = m_file.read(m_buffer.data() + kept, piece);
    m_buffer.resize(kept + got);
    m_isAtEnd = got < piece;
    return got > 0;
}

void LineReader::passByteOrderMark() {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (std::string_view(m_buffer).starts_with(ByteOrderMark))
        m_begin = ByteOrderMark.size();
}

bool LineReader::next(std::string_view& line) {
    if (std::exchange(m_isFirst, false) && fill())
        passByteOrderMark();
    std::size_t end = m_buffer.find('\n', m_begin);
    bool isCut = false;
    while (end == std::string::npos && !m_isAtEnd) {
        // Of a line without an end only the beginning is kept, whatever its length.
        if (m_buffer.size() - m_begin > LongestLine) {
            m_buffer.resize(m_begin + LongestLine);
            isCut = true;
        }
        const std::size_t seen = m_buffer.size() - m_begin;
        (void)fill();
        end = m_buffer.find('\n', m_begin + seen);
    }
    if (end == std::string::npos && m_begin >= m_buffer.size())
        return false;
    const std::size_t stop = end == std::string::npos ? m_buffer.size() : end;
    line = std::string_view(m_buffer).substr(m_begin, stop - m_begin);
    if (isCut || line.size() > LongestLine)
        line = line.substr(0, LongestLine);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    m_begin = std::min(stop + 1, m_buffer.size());
    return true;
}

std::string readWhole(const std::filesystem::path& path, std::size_t most) {
    SourceFile file(path);
    const auto tooLarge = [&] {
        return FileError(path,
                         say("the file is too large to be imported (over {} MB)", most >> 20U));
    };
    if (file.size() > most)
        throw tooLarge();
    std::string content(static_cast<std::size_t>(file.size()) + 1, '\0');
    const std::size_t got = file.read(content.data(), content.size());
    if (got > file.size())
        throw FileError(path, say("the file grew while it was read"));
    content.resize(got);
    return content;
}

} // namespace kavela::imports
