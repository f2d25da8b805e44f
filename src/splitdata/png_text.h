#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Texts that a PNG carries beside its picture, each under a keyword in a compressed `iTXt` chunk.
/// Other programs leave such a text alone, or lose it; the picture is the same with and without.
namespace kavela {

/// The size of a picture in pixels.
struct PngSize {
    std::size_t width = 0;
    std::size_t height = 0;
};

/// The size that a PNG names; nothing where the bytes are no PNG, or one whose chunks do not reach
/// their end whole: each has its checksum proved.
[[nodiscard]] std::optional<PngSize> pngSize(std::span<const unsigned char> png);

/// A PNG of pixels of three bytes each, red, green and blue, line by line. Throws
/// std::invalid_argument where they are not as many as the size wants.
[[nodiscard]] std::vector<unsigned char> pngOf(PngSize size, std::span<const unsigned char> pixels);

/// The first text under the keyword; nothing where there is none, where the PNG is damaged, or
/// where the text would be longer than `mostText` bytes. No more than that is ever unpacked.
[[nodiscard]] std::optional<std::string> textInPng(std::span<const unsigned char> png,
                                                   std::string_view keyword, std::size_t mostText);

/// The PNG with the text under the keyword (1 to 79 plain letters), in place of those that it had
/// under it; all other bytes stay. Throws std::invalid_argument for what is no whole PNG.
[[nodiscard]] std::vector<unsigned char>
withTextInPng(std::span<const unsigned char> png, std::string_view keyword, std::string_view text);

} // namespace kavela
