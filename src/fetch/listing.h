#pragma once

#include "fetch/address.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Lists of films as servers give them: pages, data, playlists and folders.
namespace kavela::fetch {

/// A list that cannot be read, with what is wrong in a sentence.
class ListingError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class ListingKind { Html, Json, M3u8, WebDav };

/// Of an answer: by what it begins with, since servers name types at their whim; the type decides
/// where that tells nothing.
[[nodiscard]] ListingKind listingKind(std::string_view contentType, std::string_view body);

/// A film that a list names.
struct ListedFilm {
    Address address;
    std::string name;                 ///< by which its bib is looked for: file name, and its title
    std::optional<std::int64_t> size; ///< in bytes, where the list tells
    bool isPlaylist = false;          ///< a film in pieces

    friend bool operator==(const ListedFilm&, const ListedFilm&) = default;
};

/// No list has more films than this; what follows is left out.
inline constexpr std::size_t MostListedFilms = 20'000;

/// The films of a list that was found at `base`, each address once, in the order of the list.
/// Whatever else it links to is left out. Throws ListingError for what is no list of its kind.
[[nodiscard]] std::vector<ListedFilm> filmsInListing(ListingKind kind, std::string_view body,
                                                     const Address& base);

/// Whether a bib stands in a film's name as a whole number: "014" is 14, "K1M", "1080p", "run1" and
/// the parts of a date are none.
[[nodiscard]] bool hasBib(std::string_view name, std::int64_t bib);

} // namespace kavela::fetch
