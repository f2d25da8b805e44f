#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the name of a film tells about the run it shows.
namespace kavela {

/// A film's name as coaches write it most: "Ann Lee Heats.MOV".
inline constexpr std::string_view DefaultVideoPattern = "{name} {phase}";

/// What a film's name tells; empty where it tells nothing.
struct FilmFacts {
    std::vector<std::string> names; ///< the crew
    std::string category;           ///< "K1M"
    std::string phase;              ///< "Heats", "Run 2", or a bare number: "3"
    std::optional<int> bib;
    std::optional<int> number; ///< of the film or the run
};

/// The extensions of films, in small letters and without the point, the most common first.
[[nodiscard]] std::span<const std::string_view> videoExtensions();

/// Whether a file is a film by its extension, of those that cameras and phones write. Files that
/// systems hide, with a dot in front, are none.
[[nodiscard]] bool isVideoFile(std::string_view fileName);

/// The people of a crew written with "/", "+", "&" or " - " between them.
[[nodiscard]] std::vector<std::string> crewIn(std::string_view text);

/// What is wrong with a pattern, for the coach; nothing when it can be used. A pattern is text with
/// the placeholders {name}, {category}, {phase}, {bib}, {number} and {any}.
[[nodiscard]] std::optional<std::string> faultOfVideoPattern(std::string_view pattern);

/// Reads a film's name by a pattern, letters in any case, underscores and dots as blanks. A phase
/// or category must be a known one, and a name must be free of them, unless other text than blanks
/// sets them apart in the pattern. A film that does not match, or a pattern that cannot be used,
/// leaves it to a guess by known words: what is none of them is the name.
[[nodiscard]] FilmFacts filmFacts(std::string_view fileName,
                                  std::string_view pattern = DefaultVideoPattern);

} // namespace kavela
