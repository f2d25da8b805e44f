#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "common/text_file.h"
#include "fetch/beside.h"
#include "fetch/listing.h"
#include "fetch/playlist.h"
#include "fetch/running_film.h"

#include <set>
#include <utility>

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostPlaylistBytes = 8'388'608;
constexpr int MostPlaylistLevels = 3;
constexpr const char* LocalPlaylistName = "film.m3u8";
constexpr const char* KnownPiecesName = "pieces";

/// What a folder for pieces holds already, or why it takes none.
struct ReadyFolder {
    std::set<std::string> held; ///< names of whole pieces
    std::string fault;
};

std::string textOfFile(const fs::path& path) {
    try {
        return readTextFile(path);
    } catch (const std::runtime_error&) {
        return {};
    }
}

ReadyFolder readyFolder(const fs::path& folder, const std::string& known,
                        const std::string& playlist) {
    ReadyFolder ready;
    try {
        if (textOfFile(folder / KnownPiecesName) != known)
            fs::remove_all(folder);
        fs::create_directories(folder);
        writeFileSafely(folder / LocalPlaylistName, playlist);
        writeFileSafely(folder / KnownPiecesName, known);
        for (const auto& entry : fs::directory_iterator(folder))
            ready.held.insert(entry.path().filename().string());
    } catch (const std::runtime_error& error) {
        ready.fault = error.what();
    }
    return ready;
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
        fail({say("The playlists lead from one to the other without an end.")});
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
            fail({say("Pieces of the film lie on {}, which is not ticked.", piece.site()),
                  piece.site()});
            return;
        }
    }
    runBeside(
        this,
        [folder = folder(), known = std::move(known), playlist = m_localText] {
            return readyFolder(folder, known, playlist);
        },
        [this, stop = stopFlag()](const ReadyFolder& ready) {
            if (*stop)
                return;
            if (!ready.fault.empty()) {
                fail({say("The folder takes no file: {}", ready.fault)});
                return;
            }
            m_held = ready.held;
            fetchNext();
        });
}

void FilmInPieces::fetchNext() {
    while (m_next < m_pieces.size() && m_held.contains(localNameOfPiece(m_next)))
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
        fail({.reason = say("A piece of the film is missing: {}", fault.reason),
              .otherSite = fault.otherSite,
              .wantsLogin = fault.wantsLogin});
    });
    connect(m_piece, &FileTransfer::whole, this, [this, piece] { takePiece(piece); });
    m_piece->start(m_pieces[m_next], piece.string() + ".part");
}

void FilmInPieces::takePiece(const fs::path& piece) {
    const fs::path part = m_piece->part();
    m_piece->deleteLater();
    m_piece = nullptr;
    runBeside(
        this,
        [part, piece] {
            std::error_code fault;
            fs::rename(part, piece, fault);
            return fault ? fault.message() : std::string();
        },
        [this, stop = stopFlag()](const std::string& fault) {
            if (*stop)
                return;
            if (!fault.empty()) {
                fail({say("The folder takes no file: {}", fault)});
                return;
            }
            ++m_next;
            fetchNext();
        });
}

void FilmInPieces::join() {
    runBeside(
        this,
        [folder = folder(), part = partPath(), stop = stopFlag()] {
            std::optional<std::string> fault = joinPieces(folder / LocalPlaylistName, part, stop);
            if (!fault)
                fault = faultOfFilm(part);
            if (*stop)
                return fault; // the pieces are for the next time
            // Whole pieces that make no film would make none the next time either.
            std::error_code ignored;
            fs::remove_all(folder, ignored);
            if (fault)
                fs::remove(part, ignored);
            return fault;
        },
        [this](const std::optional<std::string>& fault) {
            if (fault)
                fail({*fault});
            else
                takeName();
        });
}

} // namespace kavela::fetch
