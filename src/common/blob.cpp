#include "common/blob.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace kavela {

namespace {

constexpr std::string_view Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t NoDigit = 0xff;

constexpr std::array<std::uint8_t, 256> makeDigits() {
    std::array<std::uint8_t, 256> digits{};
    digits.fill(NoDigit);
    for (std::size_t i = 0; i < Alphabet.size(); ++i)
        digits[static_cast<unsigned char>(Alphabet[i])] = static_cast<std::uint8_t>(i);
    return digits;
}

constexpr auto Digits = makeDigits();

} // namespace

void appendBase64(std::string& text, const Blob& blob) {
    const std::vector<unsigned char>& bytes = blob.bytes.list();
    text.reserve(text.size() + (bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t left = bytes.size() - i;
        const std::uint32_t triple =
            static_cast<std::uint32_t>(bytes[i]) << 16 |
            (left > 1 ? static_cast<std::uint32_t>(bytes[i + 1]) << 8 : 0) |
            (left > 2 ? bytes[i + 2] : 0);
        text += Alphabet[triple >> 18];
        text += Alphabet[triple >> 12 & 63];
        text += left > 1 ? Alphabet[triple >> 6 & 63] : '=';
        text += left > 2 ? Alphabet[triple & 63] : '=';
    }
}

std::optional<Blob> blobFromBase64(std::string_view text) {
    if (text.size() % 4 != 0)
        return std::nullopt;
    std::size_t padding = 0;
    while (padding < 2 && padding < text.size() && text[text.size() - 1 - padding] == '=')
        ++padding;
    std::vector<unsigned char> bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool padded = i >= text.size() - padding;
        const std::uint8_t digit = padded ? 0 : Digits[static_cast<unsigned char>(text[i])];
        if (digit == NoDigit)
            return std::nullopt;
        bits = bits << 6 | digit;
        if (i % 4 == 3)
            for (int shift = 16; shift >= 0; shift -= 8)
                bytes.push_back(static_cast<unsigned char>(bits >> shift & 0xff));
    }
    bytes.resize(bytes.size() - padding);
    return Blob{std::move(bytes)};
}

} // namespace kavela
