#include "fetch/playlist.h"

#include "common/delimited_text.h"
#include "common/text.h"
#include "fetch/listing.h"

#include <algorithm>
#include <map>

namespace kavela::fetch {

namespace {

std::string_view takePlaylistLine(std::string_view& text) {
    std::string_view line = takeLine(text);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r' || line.back() == '\t'))
        line.remove_suffix(1);
    return line;
}

/// Where the value of an attribute stands in a line such as #EXT-X-KEY:METHOD=AES-128,URI="k.bin";
/// without its quotes. Nothing where there is none.
struct ValuePlace {
    std::size_t begin = 0;
    std::size_t length = 0;
};

std::optional<ValuePlace> valuePlace(std::string_view line, std::string_view attribute) {
    std::size_t i = std::min(line.find(':'), line.size());
    while (i < line.size()) {
        const std::size_t name = i + 1;
        const std::size_t equals = line.find('=', name);
        if (equals == std::string_view::npos)
            return std::nullopt;
        const bool isQuoted = equals + 1 < line.size() && line[equals + 1] == '"';
        const std::size_t begin = equals + (isQuoted ? 2 : 1);
        const std::size_t end = std::min(line.find(isQuoted ? '"' : ',', begin), line.size());
        if (line.substr(name, equals - name) == attribute)
            return ValuePlace{begin, end - begin};
        i = std::min(line.find(',', end), line.size());
    }
    return std::nullopt;
}

std::string_view valueIn(std::string_view line, std::string_view attribute) {
    const auto place = valuePlace(line, attribute);
    return place ? line.substr(place->begin, place->length) : std::string_view();
}

/// Reads line by line what is to be fetched, and writes the same for the folder.
class PieceReader {
public:
    explicit PieceReader(const Address& base) : m_base(base) {}

    void take(std::string_view line) {
        if (line.starts_with("#EXT-X-STREAM-INF:"))
            m_bandwidth = bandwidthOf(line);
        else if (line.starts_with("#EXT-X-KEY:") || line.starts_with("#EXT-X-MAP:"))
            return takeWithAddress(line);
        else if (line.starts_with("#EXT-X-ENDLIST"))
            m_isEnded = true;
        else if (!line.empty() && !line.starts_with('#'))
            return takeLink(line);
        m_list.localText += std::string(line) + '\n';
    }

    PieceList finished() {
        if (m_list.better)
            return {m_list.better, {}, {}};
        if (m_list.pieces.empty())
            throw ListingError(say("The playlist has no piece of a film."));
        if (!m_isEnded)
            throw ListingError(say("The film is still growing: its playlist has no end yet."));
        return std::move(m_list);
    }

private:
    static std::int64_t bandwidthOf(std::string_view line) {
        std::int64_t bandwidth = 0;
        return parseField(valueIn(line, "BANDWIDTH"), bandwidth) ? bandwidth : 0;
    }

    std::string localNameOf(std::string_view link) {
        const std::optional<Address> address = resolved(m_base, link);
        if (!address)
            throw ListingError(
                say("The playlist leads to something else than a server: {}", link.substr(0, 80)));
        const auto [known, isNew] = m_names.emplace(address->text(), m_list.pieces.size());
        if (isNew)
            m_list.pieces.push_back(*address);
        if (m_list.pieces.size() > MostPieces)
            throw ListingError(
                say("The playlist does not end: it has more than {} pieces.", MostPieces));
        return localNameOfPiece(known->second);
    }

    void takeWithAddress(std::string_view line) {
        const std::string_view method = valueIn(line, "METHOD");
        if (line.starts_with("#EXT-X-KEY:") && method != "NONE" && method != "AES-128")
            throw ListingError(
                say("The film is protected by \"{}\", which only its maker's programs open.",
                    method.substr(0, 40)));
        std::string local(line);
        if (const auto place = valuePlace(line, "URI"))
            local.replace(place->begin, place->length,
                          localNameOf(line.substr(place->begin, place->length)));
        m_list.localText += local + '\n';
    }

    void takeLink(std::string_view link) {
        if (!m_bandwidth) {
            m_list.localText += localNameOf(link) + '\n';
            return;
        }
        if (const auto address = resolved(m_base, link);
            address && (!m_list.better || *m_bandwidth > m_best)) {
            m_list.better = address;
            m_best = *m_bandwidth;
        }
        m_bandwidth.reset();
    }

    const Address& m_base;
    PieceList m_list;
    std::map<std::string, std::size_t> m_names; ///< of addresses
    std::optional<std::int64_t> m_bandwidth;    ///< of the quality whose address comes next
    std::int64_t m_best = 0;
    bool m_isEnded = false;
};

} // namespace

std::vector<PlaylistEntry> entriesOfPlaylist(std::string_view text) {
    std::vector<PlaylistEntry> entries;
    std::string title;
    while (!text.empty()) {
        const std::string_view line = takePlaylistLine(text);
        if (line.starts_with("#EXTINF:")) {
            const std::size_t comma = line.find(',');
            title = comma == std::string_view::npos ? "" : std::string(line.substr(comma + 1));
        } else if (!line.empty() && !line.starts_with('#') && entries.size() < MostListedFilms) {
            entries.push_back({std::string(line), std::move(title)});
            title.clear();
        }
    }
    return entries;
}

bool isFilmInPieces(std::string_view text) {
    return text.find("#EXT-X-TARGETDURATION") != std::string_view::npos ||
           text.find("#EXT-X-STREAM-INF") != std::string_view::npos;
}

std::string localNameOfPiece(std::size_t piece) {
    return "piece" + std::to_string(piece);
}

PieceList readPieceList(std::string_view text, const Address& base) {
    PieceReader reader(base);
    while (!text.empty())
        reader.take(takePlaylistLine(text));
    return reader.finished();
}

} // namespace kavela::fetch
