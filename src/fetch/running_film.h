#pragma once

#include "fetch/file_transfer.h"
#include "fetch/film_files.h"
#include "fetch/small_fetch.h"

#include <filesystem>
#include <set>
#include <string>

namespace kavela::fetch {

/// What became of a film.
struct FilmResult {
    enum class Kind { Fetched, NotThere, Failed, Cancelled };

    Kind kind = Kind::Fetched;
    std::string name = {};      ///< of its file, where it was fetched
    std::string reason = {};    ///< a sentence, where it was not
    std::string otherSite = {}; ///< the server that would have to be ticked
    bool wantsLogin = false;
};

/// What a film is fetched with; network and rules outlive it.
struct FilmWay {
    QNetworkAccessManager* network = nullptr;
    const WebRules* rules = nullptr;
    TakeBytes mayTake;
    std::filesystem::path folder;
};

/// A film on its way from its address to its name. Until it is whole and opens, it is a part.
class RunningFilm : public QObject {
    Q_OBJECT

public:
    RunningFilm(FilmWay way, Address address, std::string name, QObject* parent);
    ~RunningFilm() override;

    virtual void start() = 0;
    /// Nothing is told after it; what is there stays for the next time.
    virtual void stop();

signals:
    /// Bytes, or pieces of a film in pieces; of 0 where it is not known.
    void progressed(qint64 done, qint64 all);
    void ended(const kavela::fetch::FilmResult& result);

protected:
    [[nodiscard]] const FilmWay& way() const { return m_way; }
    [[nodiscard]] const Address& address() const { return m_address; }
    /// Where the film grows.
    [[nodiscard]] std::filesystem::path partPath() const;
    [[nodiscard]] const StopFlag& stopFlag() const { return m_stop; }
    /// Gives the part its name and ends.
    void takeName();
    void fail(const TransferFault& fault);

private:
    FilmWay m_way;
    Address m_address;
    std::string m_name;
    StopFlag m_stop;
};

/// A film in one file.
class PlainFilm : public RunningFilm {
    Q_OBJECT

public:
    PlainFilm(FilmWay way, Address address, std::string name, QObject* parent);

    void start() override;
    void stop() override;

private:
    void findChecksum();
    void check(const std::string& expected);
    void checkFilm();

    FileTransfer m_transfer;
    SmallFetch m_checksum;
};

/// A film in pieces: they are fetched one after the other into a folder, and put together there.
class FilmInPieces : public RunningFilm {
    Q_OBJECT

public:
    FilmInPieces(FilmWay way, Address address, std::string name, QObject* parent);

    void start() override;
    void stop() override;

private:
    void readPlaylist(const SmallAnswer& answer);
    void prepare();
    void fetchNext();
    void takePiece(const std::filesystem::path& piece);
    void join();
    [[nodiscard]] std::filesystem::path folder() const;

    SmallFetch m_playlist;
    FileTransfer* m_piece = nullptr;
    std::vector<Address> m_pieces;
    std::string m_localText;
    std::set<std::string> m_held; ///< names of the pieces that were there before
    std::size_t m_next = 0;
    int m_levels = 0; ///< of playlists that led here
};

} // namespace kavela::fetch
