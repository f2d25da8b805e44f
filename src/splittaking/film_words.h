#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The words that people put into the names of films, whatever their case, and what they stand for.
namespace kavela {

/// A film's name as plain words: without folder and video extension, underscores and dots as
/// blanks, no blank doubled.
[[nodiscard]] std::string plainFilmName(std::string_view fileName);

/// The words between the blanks of a text.
[[nodiscard]] std::vector<std::string> wordsOf(std::string_view text);

/// The words from `begin` on, joined by blanks.
[[nodiscard]] std::string joinedWords(const std::vector<std::string>& words, std::size_t begin,
                                      std::size_t count);

/// The boat category that a whole text says: "k1m", "K1 Men", "MK1" and "K-1 M" are "K1M".
[[nodiscard]] std::optional<std::string> categoryFrom(std::string_view text);

/// The phase that a whole text says: "heats" is "Heats", "heat1" and "H1" are "Heat 1", "semi
/// final" is "Semifinal", "2nd run" is "Run 2".
[[nodiscard]] std::optional<std::string> phaseFrom(std::string_view text);

/// Whether a whole text tells only which camera filmed: "cam 2", "GoPro".
[[nodiscard]] bool isCamera(std::string_view text);

/// Whether a whole text is what cameras number or date their films with: "IMG 0231", "GX010023",
/// "20240511", "2024-05-11".
[[nodiscard]] bool isCameraNumbering(std::string_view text);

/// A number of up to three digits, as a bib or a run has; nothing for any other text.
[[nodiscard]] std::optional<int> smallNumber(std::string_view text);

} // namespace kavela
