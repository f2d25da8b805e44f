#include "common/text_file.h"

#include "common/error.h"
#include "common/posix_file.h"
#include "common/utf8.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
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

std::string bytesOf(const std::filesystem::path& path) {
    // Not waiting for a writer, should somebody name a pipe.
    const PosixFile file(path, O_RDONLY | O_NONBLOCK);
    checkOrdinary(file);
    return contentOf(file);
}

std::string withoutMark(std::string text) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (text.starts_with(Mark))
        text.erase(0, Mark.size());
    return text;
}

/// What Windows writes for the bytes 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char16_t, 32> WindowsLetters{
    u'€', 0,    u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', 0, u'Ž', 0,
    0,    u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', 0, u'ž', u'Ÿ'};

/// A spreadsheet's own file has bytes that no list has.
bool isText(std::string_view bytes) {
    return std::ranges::none_of(bytes, [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\r' && c != '\n';
    });
}

std::string fromLatin1(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isWindows = byte >= 0x80 && byte < 0xA0;
        const char16_t letter = isWindows ? WindowsLetters.at(byte - 0x80U) : char16_t{byte};
        appendUtf8(text, letter == 0 ? ReplacementCharacter : letter);
    }
    return text;
}

} // namespace

std::string readTextFile(const std::filesystem::path& path) {
    std::string text = bytesOf(path);
    if (!isUtf8(text))
        throw DecodeError({{}, "the file is not UTF-8 text"});
    return withoutMark(std::move(text));
}

ListText readListText(const std::filesystem::path& path) {
    std::string bytes = bytesOf(path);
    if (!isText(bytes))
        throw DecodeError({{}, "the file is no text; save the list as text (CSV) first"});
    if (isUtf8(bytes))
        return {withoutMark(std::move(bytes)), false};
    return {fromLatin1(bytes), true};
}

} // namespace kavela
