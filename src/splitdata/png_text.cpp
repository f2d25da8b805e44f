#include "splitdata/png_text.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace kavela {

namespace {

using Bytes = std::span<const unsigned char>;

constexpr std::array<unsigned char, 8> PngSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::size_t PngChunkFrame = 12; ///< length, type and checksum
constexpr std::size_t PngHeaderSize = 13; ///< of IHDR
constexpr std::string_view PngTextType = "iTXt";

struct PngChunk {
    std::string_view type;
    Bytes data;
    Bytes whole; ///< with its frame
};

std::uint32_t bigEndian(Bytes bytes) {
    return std::uint32_t{bytes[0]} << 24U | std::uint32_t{bytes[1]} << 16U |
           std::uint32_t{bytes[2]} << 8U | std::uint32_t{bytes[3]};
}

void appendBigEndian(std::vector<unsigned char>& bytes, std::uint32_t number) {
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes.push_back(static_cast<unsigned char>(number >> shift & 0xffU));
}

std::uint32_t checksum(Bytes bytes) {
    return static_cast<std::uint32_t>(crc32(0, bytes.data(), static_cast<uInt>(bytes.size())));
}

std::string_view textOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Takes the first chunk off the bytes; nothing where it is cut off or damaged.
std::optional<PngChunk> takeChunk(Bytes& rest) {
    if (rest.size() < PngChunkFrame)
        return {};
    const std::size_t length = bigEndian(rest);
    if (length > rest.size() - PngChunkFrame)
        return {};
    const PngChunk chunk{textOf(rest.subspan(4, 4)), rest.subspan(8, length),
                         rest.first(length + PngChunkFrame)};
    if (checksum(rest.subspan(4, length + 4)) != bigEndian(rest.subspan(length + 8)))
        return {};
    rest = rest.subspan(chunk.whole.size());
    return chunk;
}

/// All chunks from IHDR to IEND; nothing where they are not whole. What stands behind the end is no
/// part of the picture.
std::optional<std::vector<PngChunk>> chunksOf(Bytes png) {
    if (png.size() < PngSignature.size() ||
        !std::equal(PngSignature.begin(), PngSignature.end(), png.begin()))
        return {};
    Bytes rest = png.subspan(PngSignature.size());
    std::vector<PngChunk> chunks;
    while (const std::optional<PngChunk> chunk = takeChunk(rest)) {
        const bool isHeader = chunk->type == "IHDR" && chunk->data.size() == PngHeaderSize;
        if (isHeader != chunks.empty())
            return {};
        chunks.push_back(*chunk);
        if (chunk->type == "IEND")
            return chunks;
    }
    return {};
}

/// Takes off what stands before the next zero byte; false where none follows.
bool skipWord(Bytes& rest) {
    const auto zero = std::ranges::find(rest, 0);
    if (zero == rest.end())
        return false;
    rest = rest.subspan(static_cast<std::size_t>(zero - rest.begin()) + 1);
    return true;
}

bool isUnder(const PngChunk& chunk, std::string_view keyword) {
    return chunk.type == PngTextType && chunk.data.size() > keyword.size() &&
           textOf(chunk.data).starts_with(keyword) && chunk.data[keyword.size()] == 0;
}

/// A few bytes can stand for gigabytes: unpacking ends where the text becomes too long.
std::optional<std::string> unpacked(Bytes packed, std::size_t mostText) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return {};
    std::string text;
    std::array<unsigned char, 16384> piece{};
    stream.next_in = const_cast<unsigned char*>(packed.data()); // it reads only
    stream.avail_in = static_cast<uInt>(packed.size());
    int state = Z_OK;
    while (state == Z_OK && text.size() <= mostText) {
        stream.next_out = piece.data();
        stream.avail_out = static_cast<uInt>(piece.size());
        state = inflate(&stream, Z_NO_FLUSH);
        text += textOf(Bytes(piece).first(piece.size() - stream.avail_out));
    }
    inflateEnd(&stream);
    if (state != Z_STREAM_END || text.size() > mostText)
        return {};
    return text;
}

std::vector<unsigned char> packed(std::string_view text) {
    auto length = compressBound(static_cast<uLong>(text.size()));
    std::vector<unsigned char> bytes(length);
    if (compress2(bytes.data(), &length, reinterpret_cast<const unsigned char*>(text.data()),
                  static_cast<uLong>(text.size()), Z_BEST_COMPRESSION) != Z_OK)
        throw std::bad_alloc(); // the only fault that there is, with all that room
    bytes.resize(length);
    return bytes;
}

/// A chunk of its type and data, which stand in one piece as the checksum wants them.
std::vector<unsigned char> framed(Bytes typed) {
    std::vector<unsigned char> chunk;
    appendBigEndian(chunk, static_cast<std::uint32_t>(typed.size() - PngTextType.size()));
    chunk.insert(chunk.end(), typed.begin(), typed.end());
    appendBigEndian(chunk, checksum(typed));
    return chunk;
}

std::vector<unsigned char> textChunk(std::string_view keyword, std::string_view text) {
    std::vector<unsigned char> typed(PngTextType.begin(), PngTextType.end());
    typed.insert(typed.end(), keyword.begin(), keyword.end());
    // Compressed, by the only method; neither a language nor a keyword in it.
    typed.insert(typed.end(), {0, 1, 0, 0, 0});
    const std::vector<unsigned char> body = packed(text);
    typed.insert(typed.end(), body.begin(), body.end());
    return framed(typed);
}

void append(std::vector<unsigned char>& bytes, const std::vector<unsigned char>& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

/// Type and data in one piece.
std::vector<unsigned char> typedChunk(std::string_view type,
                                      const std::vector<unsigned char>& data) {
    std::vector<unsigned char> typed(type.begin(), type.end());
    append(typed, data);
    return typed;
}

} // namespace

std::optional<PngSize> pngSize(std::span<const unsigned char> png) {
    const auto chunks = chunksOf(png);
    if (!chunks)
        return {};
    const Bytes header = chunks->front().data;
    return PngSize{bigEndian(header), bigEndian(header.subspan(4))};
}

std::vector<unsigned char> pngOf(PngSize size, std::span<const unsigned char> pixels) {
    constexpr std::size_t BytesAPixel = 3;
    const std::size_t line = BytesAPixel * size.width;
    if (size.width == 0 || size.height == 0 || pixels.size() != line * size.height)
        throw std::invalid_argument("the pixels do not fill the picture");
    std::vector<unsigned char> header;
    appendBigEndian(header, static_cast<std::uint32_t>(size.width));
    appendBigEndian(header, static_cast<std::uint32_t>(size.height));
    append(header, {8, 2, 0, 0, 0}); // eight bits of three colours, not interlaced
    std::string filtered;
    for (std::size_t row = 0; row < size.height; ++row) {
        filtered += '\0'; // each line begins with its filter: none
        filtered += textOf(pixels.subspan(row * line, line));
    }
    std::vector<unsigned char> bytes(PngSignature.begin(), PngSignature.end());
    append(bytes, framed(typedChunk("IHDR", header)));
    append(bytes, framed(typedChunk("IDAT", packed(filtered))));
    append(bytes, framed(typedChunk("IEND", {})));
    return bytes;
}

std::optional<std::string> textInPng(std::span<const unsigned char> png, std::string_view keyword,
                                     std::size_t mostText) {
    const auto chunks = chunksOf(png);
    if (!chunks)
        return {};
    const auto found = std::ranges::find_if(
        *chunks, [&](const PngChunk& chunk) { return isUnder(chunk, keyword); });
    if (found == chunks->end())
        return {};
    Bytes rest = found->data.subspan(keyword.size() + 1);
    if (rest.size() < 2 || rest[0] > 1 || rest[1] != 0)
        return {};
    const bool isPacked = rest[0] == 1;
    rest = rest.subspan(2);
    if (!skipWord(rest) || !skipWord(rest)) // the language, and the keyword in it
        return {};
    if (isPacked)
        return unpacked(rest, mostText);
    if (rest.size() > mostText)
        return {};
    return std::string(textOf(rest));
}

std::vector<unsigned char> withTextInPng(std::span<const unsigned char> png,
                                         std::string_view keyword, std::string_view text) {
    const auto chunks = chunksOf(png);
    if (!chunks)
        throw std::invalid_argument("a text is to be put into what is no PNG");
    std::vector<unsigned char> bytes(PngSignature.begin(), PngSignature.end());
    for (const PngChunk& chunk : *chunks) {
        if (isUnder(chunk, keyword))
            continue;
        if (chunk.type == "IEND") {
            const std::vector<unsigned char> added = textChunk(keyword, text);
            bytes.insert(bytes.end(), added.begin(), added.end());
        }
        bytes.insert(bytes.end(), chunk.whole.begin(), chunk.whole.end());
    }
    return bytes;
}

} // namespace kavela
