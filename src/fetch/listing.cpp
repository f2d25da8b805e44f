#include "fetch/listing.h"

#include "common/folded_text.h"
#include "common/json_document.h"
#include "common/text.h"
#include "fetch/dav_listing.h"
#include "fetch/html_links.h"
#include "fetch/playlist.h"
#include "splittaking/video_names.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

namespace kavela::fetch {

namespace {

bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Collects what is a film, each address once.
class FoundFilms {
public:
    explicit FoundFilms(const Address& base) : m_base(base) {}

    void take(std::string_view link, std::optional<std::int64_t> size = {},
              std::string_view title = {}) {
        const std::optional<Address> address = resolved(m_base, link);
        if (!address || films.size() >= MostListedFilms)
            return;
        const std::string name = address->lastName();
        const bool isPlaylist = folded(name).ends_with(".m3u8");
        if ((!isPlaylist && !isVideoFile(name)) || !m_known.insert(address->text()).second)
            return;
        films.push_back(
            {*address, title.empty() ? name : name + ' ' + std::string(title), size, isPlaylist});
    }

    std::vector<ListedFilm> films;

private:
    const Address& m_base;
    std::set<std::string> m_known;
};

std::optional<std::int64_t> sizeBeside(simdjson::dom::object object) {
    for (const char* const key : {"size", "bytes", "length", "contentLength", "filesize"}) {
        std::int64_t size = 0;
        if (object[key].get(size) == simdjson::SUCCESS && size >= 0)
            return size;
    }
    return std::nullopt;
}

/// The parser goes no deeper than a thousand levels.
void takeFromJson(simdjson::dom::element element, std::optional<std::int64_t> size,
                  FoundFilms& found) {
    simdjson::dom::object object;
    simdjson::dom::array array;
    std::string_view text;
    if (element.get(object) == simdjson::SUCCESS) {
        const std::optional<std::int64_t> own = sizeBeside(object);
        for (const auto field : object)
            takeFromJson(field.value, own, found);
    } else if (element.get(array) == simdjson::SUCCESS) {
        for (const simdjson::dom::element entry : array)
            takeFromJson(entry, std::nullopt, found);
    } else if (element.get(text) == simdjson::SUCCESS) {
        found.take(text, size);
    }
}

void readJsonListing(std::string_view body, FoundFilms& found) {
    try {
        const JsonDocument document = JsonDocument::fromText(body);
        takeFromJson(document.root(), std::nullopt, found);
    } catch (const DecodeError& error) {
        throw ListingError(say("The list is no JSON: {}", error.what()));
    }
}

void readWebDav(std::string_view body, const Address& base, FoundFilms& found) {
    for (const DavEntry& entry : entriesOfDav(body, base))
        if (!entry.isFolder)
            found.take(entry.address.text(), entry.size);
}

/// A date "2026-05-12" is no three bibs; 0 where none begins here, else its length.
std::size_t lengthOfDate(std::string_view text) {
    constexpr std::string_view Form = "0000-00-00";
    if (text.size() < Form.size() || (text.size() > Form.size() && isAsciiDigit(text[Form.size()])))
        return 0;
    for (std::size_t i = 0; i < Form.size(); ++i)
        if (Form[i] == '0'
                ? !isAsciiDigit(text[i])
                : text[i] != text[4] || !(text[i] == '-' || text[i] == '_' || text[i] == '.'))
            return 0;
    return Form.size();
}

/// Whether the letters in front of a number make it something other than a bib.
bool makesNoBib(std::string_view before) {
    std::size_t begin = before.size();
    while (begin > 0 && isAsciiLetter(before[begin - 1]))
        --begin;
    const std::string word = folded(before.substr(begin));
    constexpr std::array<std::string_view, 11> Words{"run",  "heat", "heats", "final",
                                                     "semi", "gate", "cam",   "camera",
                                                     "lap",  "take", "mp"}; // as of mp4
    return word.size() == 1 || std::ranges::find(Words, word) != Words.end();
}

} // namespace

ListingKind listingKind(std::string_view contentType, std::string_view body) {
    if (body.starts_with("\xEF\xBB\xBF"))
        body.remove_prefix(3);
    body.remove_prefix(std::min(body.find_first_not_of(" \t\r\n"), body.size()));
    const std::string head = folded(body.substr(0, 600));
    const std::string type = folded(contentType.substr(0, 100));
    if (body.starts_with("#EXTM3U") || type.find("mpegurl") != std::string::npos)
        return ListingKind::M3u8;
    if (body.starts_with('{') || body.starts_with('['))
        return ListingKind::Json;
    if (head.find("multistatus") != std::string::npos && body.starts_with('<'))
        return ListingKind::WebDav;
    return type.find("json") != std::string::npos ? ListingKind::Json : ListingKind::Html;
}

std::vector<ListedFilm> filmsInListing(ListingKind kind, std::string_view body,
                                       const Address& base) {
    if (kind == ListingKind::Html) {
        const PageLinks page = linksInPage(body);
        const Address from = resolved(base, page.base).value_or(base);
        FoundFilms found(from);
        for (const std::string& link : page.links)
            found.take(link);
        return found.films;
    }
    if (kind == ListingKind::M3u8 && isFilmInPieces(body))
        throw ListingError(std::string(
            translated("This playlist is one film in pieces and no list of films. Give its address "
                       "with {bib} in it.")));
    FoundFilms found(base);
    if (kind == ListingKind::Json)
        readJsonListing(body, found);
    else if (kind == ListingKind::WebDav)
        readWebDav(body, base, found);
    else
        for (const PlaylistEntry& entry : entriesOfPlaylist(body))
            found.take(entry.link, std::nullopt, entry.title);
    return found.films;
}

bool hasBib(std::string_view name, std::int64_t bib) {
    for (std::size_t i = 0; i < name.size();) {
        if (!isAsciiDigit(name[i])) {
            ++i;
            continue;
        }
        if (const std::size_t date = lengthOfDate(name.substr(i))) {
            i += date;
            continue;
        }
        const std::size_t begin = i;
        i = std::min(name.find_first_not_of("0123456789", begin), name.size());
        std::int64_t number = 0;
        const auto read = std::from_chars(name.data() + begin, name.data() + i, number);
        const bool isWhole =
            (i == name.size() || !isAsciiLetter(name[i])) && !makesNoBib(name.substr(0, begin));
        if (read.ec == std::errc() && number == bib && isWhole)
            return true;
    }
    return false;
}

} // namespace kavela::fetch
