#include "common/error.h"
#include "common/safe_file.h"
#include "common/text_file.h"
#include "fetch/beside.h"
#include "fetch/listing.h"
#include "fetch/playlist.h"
#include "fetch/running_film.h"

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostPlaylistBytes = 8'388'608;
constexpr int MostPlaylistLevels = 3;
constexpr const char* LocalPlaylistName = "film.m3u8";
constexpr const char* KnownPiecesName = "pieces";

std::string textOfFile(const fs::path& path) {
    try {
        return readTextFile(path);
    } catch (const std::runtime_error&) {
        return {};
    }
}

} // namespace

FilmInPieces::FilmInPieces(FilmWay way, Address address, std::string name, QObject* parent)
    : RunningFilm(std::move(way), std::move(address), std::move(name), parent),
      m_playlist(*this->way().network, *this->way().rules, MostPlaylistBytes, this) {}

fs::path FilmInPieces::folder() const {
    return partPath().string() + ".pieces";
}

void FilmInPieces::start() {
    m_playlist.start({.address = address()},
                     [this](const SmallAnswer& answer) { readPlaylist(answer); });
}

void FilmInPieces::stop() {
    if (m_piece)
        m_piece->stop();
    RunningFilm::stop();
}

void FilmInPieces::readPlaylist(const SmallAnswer& answer) {
    if (!answer.isThere) {
        fail({answer.reason, answer.otherSite, answer.isNotThere, answer.wantsLogin});
        return;
    }
    PieceList list;
    try {
        list = readPieceList(answer.body, answer.from);
    } catch (const ListingError& error) {
        fail({error.what()});
        return;
    }
    if (list.better && ++m_levels >= MostPlaylistLevels) {
        fail({"The playlists lead from one to the other without an end."});
        return;
    }
    if (list.better) {
        m_playlist.start({.address = *list.better},
                         [this](const SmallAnswer& next) { readPlaylist(next); });
        return;
    }
    m_pieces = std::move(list.pieces);
    m_localText = std::move(list.localText);
    prepare();
}

/// Pieces from before count only where the playlist is the same: they are known by their places.
void FilmInPieces::prepare() {
    std::string known;
    for (const Address& piece : m_pieces) {
        known += piece.text() + '\n';
        if (!way().rules->isAllowed(piece.site())) {
            fail({"Pieces of the film lie on " + piece.site() + ", which is not ticked.",
                  piece.site()});
            return;
        }
    }
    try {
        if (textOfFile(folder() / KnownPiecesName) != known)
            fs::remove_all(folder());
        fs::create_directories(folder());
        writeFileSafely(folder() / LocalPlaylistName, m_localText);
        writeFileSafely(folder() / KnownPiecesName, known);
    } catch (const std::runtime_error& error) {
        fail({std::string("The folder takes no file: ") + error.what()});
        return;
    }
    fetchNext();
}

void FilmInPieces::fetchNext() {
    std::error_code ignored;
    while (m_next < m_pieces.size() && fs::exists(folder() / localNameOfPiece(m_next), ignored))
        ++m_next;
    emit progressed(static_cast<qint64>(m_next), static_cast<qint64>(m_pieces.size()));
    if (m_next == m_pieces.size()) {
        join();
        return;
    }
    const fs::path piece = folder() / localNameOfPiece(m_next);
    m_piece = new FileTransfer(*way().network, *way().rules, way().mayTake, this);
    connect(m_piece, &FileTransfer::failed, this, [this](const TransferFault& fault) {
        // A film whose list is there has its pieces: one that is missing is no film of later.
        fail({.reason = "A piece of the film is missing: " + fault.reason,
              .otherSite = fault.otherSite,
              .wantsLogin = fault.wantsLogin});
    });
    connect(m_piece, &FileTransfer::whole, this, [this, piece] {
        std::error_code fault;
        fs::rename(m_piece->part(), piece, fault);
        m_piece->deleteLater();
        m_piece = nullptr;
        if (fault)
            fail({"The folder takes no file: " + fault.message()});
        else
            fetchNext();
    });
    m_piece->start(m_pieces[m_next], piece.string() + ".part");
}

void FilmInPieces::join() {
    runBeside(
        this,
        [playlist = folder() / LocalPlaylistName, part = partPath(), stop = stopFlag()] {
            const std::optional<std::string> fault = joinPieces(playlist, part, stop);
            return fault ? fault : faultOfFilm(part);
        },
        [this](const std::optional<std::string>& fault) {
            // Whole pieces that make no film would make none the next time either.
            std::error_code ignored;
            fs::remove_all(folder(), ignored);
            if (fault) {
                fs::remove(partPath(), ignored);
                fail({*fault});
                return;
            }
            takeName();
        });
}

} // namespace kavela::fetch
