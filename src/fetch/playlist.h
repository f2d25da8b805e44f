#pragma once

#include "fetch/address.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Playlists: lists of films, and films in pieces.
namespace kavela::fetch {

/// A line of a playlist that is an address, with the title before it.
struct PlaylistEntry {
    std::string link;
    std::string title; ///< empty for none
};

[[nodiscard]] std::vector<PlaylistEntry> entriesOfPlaylist(std::string_view text);

/// Whether a playlist is a film in pieces, or the choice between several qualities of one, and no
/// list of films.
[[nodiscard]] bool isFilmInPieces(std::string_view text);

/// A film in pieces. `localText` is the same playlist for the pieces as they lie in a folder, under
/// `localNameOfPiece()`.
struct PieceList {
    std::optional<Address>
        better;                  ///< the playlist of the best quality, which is to be read instead
    std::vector<Address> pieces; ///< in the order that they are fetched in, each once
    std::string localText;
};

/// A film of a run has no more pieces; a day of two-second ones.
inline constexpr std::size_t MostPieces = 43'200;

[[nodiscard]] std::string localNameOfPiece(std::size_t piece);

/// Reads a film in pieces found at `base`. Throws ListingError for one that is still growing, has
/// no piece or too many, or is protected in a way that only its maker's programs undo.
[[nodiscard]] PieceList readPieceList(std::string_view text, const Address& base);

} // namespace kavela::fetch
