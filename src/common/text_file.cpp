#include "common/text_file.h"

#include "common/error.h"
#include "common/posix_file.h"
#include "common/text.h"
#include "common/utf8.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>

namespace kavela {

namespace {

constexpr std::size_t LargestList = 64U << 20;

void checkOrdinary(const PosixFile& file) {
    struct ::stat status {};
    if (::fstat(file.descriptor(), &status) != 0)
        throw systemFileError(file.path());
    if (S_ISDIR(status.st_mode))
        throw FileError(file.path(), say("this is a folder, not a file"));
    if (!S_ISREG(status.st_mode))
        throw FileError(file.path(), say("this is not an ordinary file"));
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
            throw FileError(file.path(), say("the file is too large for a list (over 64 MB)"));
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

enum class ByteOrder { LowFirst, HighFirst };

/// The order of the bytes of a text in UTF-16: as its mark says, or in a text without one where the
/// zeros stand beside its plain letters. Nothing for other texts.
std::optional<ByteOrder> byteOrderOf(std::string_view bytes) {
    if (bytes.size() < 2 || bytes.size() % 2 != 0)
        return std::nullopt;
    if (bytes.starts_with("\xFF\xFE"))
        return ByteOrder::LowFirst;
    if (bytes.starts_with("\xFE\xFF"))
        return ByteOrder::HighFirst;
    std::array<std::size_t, 2> zeros{};
    const std::string_view beginning = bytes.substr(0, 256);
    for (std::size_t i = 0; i < beginning.size(); ++i)
        zeros.at(i % 2) += beginning[i] == 0 ? 1U : 0U;
    const std::size_t most = beginning.size() / 4;
    if (zeros[1] > most && zeros[0] == 0)
        return ByteOrder::LowFirst;
    if (zeros[0] > most && zeros[1] == 0)
        return ByteOrder::HighFirst;
    return std::nullopt;
}

std::string fromUtf16(std::string_view bytes, ByteOrder order) {
    constexpr char32_t HighBegin = 0xD800;
    constexpr char32_t LowBegin = 0xDC00;
    constexpr char32_t End = 0xE000;
    const auto unitAt = [&](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char32_t>(order == ByteOrder::LowFirst ? first | second << 8U
                                                                  : second | first << 8U);
    };
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const char32_t unit = unitAt(at);
        const char32_t next = at + 3 < bytes.size() ? unitAt(at + 2) : 0;
        const bool isHalf = unit >= HighBegin && unit < End;
        const bool isPair = isHalf && unit < LowBegin && next >= LowBegin && next < End;
        if (isPair)
            appendUtf8(text, 0x10000 + ((unit - HighBegin) << 10U) + (next - LowBegin));
        else
            appendUtf8(text, isHalf ? ReplacementCharacter : unit);
        at += isPair ? 2 : 0;
    }
    return text;
}

} // namespace

std::string readTextFile(const std::filesystem::path& path) {
    std::string text = bytesOf(path);
    if (!isUtf8(text))
        throw DecodeError({{}, say("the file is not UTF-8 text")});
    return withoutMark(std::move(text));
}

ListText readListText(const std::filesystem::path& path) {
    return listTextOf(bytesOf(path));
}

ListText listTextOf(std::string bytes) {
    if (const auto order = byteOrderOf(bytes))
        bytes = fromUtf16(bytes, *order);
    if (!isText(bytes))
        throw DecodeError({{}, say("the file is no text; save the list as text (CSV) first")});
    if (isUtf8(bytes))
        return {withoutMark(std::move(bytes)), false};
    return {fromLatin1(bytes), true};
}

std::string readListBytes(const std::filesystem::path& path) {
    return bytesOf(path);
}

} // namespace kavela
