#include "fetch/listing.h"
#include "fetch/playlist.h"
#include "fetch/resume_rules.h"
#include "harness.h"

/// Lists of films as servers send them, of any kind. What is read leads to servers alone, by
/// addresses that read back the same; what is refused says why.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    using namespace kavela::fetch;
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    static const Address base = parsedAddress("https://example.org/films/").value();
    for (const ListingKind kind : {listingKind("", text), ListingKind::Html, ListingKind::Json,
                                   ListingKind::M3u8, ListingKind::WebDav}) {
        try {
            for (const ListedFilm& film : filmsInListing(kind, text, base)) {
                fuzz::require(parsedAddress(film.address.text()) == film.address);
                (void)hasBib(film.name, 14);
            }
        } catch (const ListingError& error) {
            fuzz::require(*error.what() != '\0');
        }
    }
    try {
        const PieceList list = readPieceList(text, base);
        fuzz::require(list.better || !list.pieces.empty());
        fuzz::require(list.pieces.size() <= MostPieces);
    } catch (const ListingError& error) {
        fuzz::require(*error.what() != '\0');
    }
    (void)parsedContentRange(text);
    (void)parsedRetryAfter(text, 0);
    (void)sha256OfDigest(text);
    return 0;
}
