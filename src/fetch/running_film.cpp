#include "fetch/running_film.h"

#include "common/error.h"
#include "common/text.h"
#include "fetch/beside.h"

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MostChecksumBytes = 4'096;

/// A name or why there is none.
struct NamedFilm {
    std::string name;
    std::string fault;
};

NamedFilm namedFilm(const fs::path& part, const fs::path& folder, const std::string& name) {
    try {
        NamedFilm named{nameFilm(part, folder, name), {}};
        std::error_code ignored;
        fs::remove(part.string() + ".note", ignored);
        return named;
    } catch (const FileError& error) {
        return {{}, error.reason()};
    }
}

} // namespace

RunningFilm::RunningFilm(FilmWay way, Address address, std::string name, QObject* parent)
    : QObject(parent),
      m_way(std::move(way)),
      m_address(std::move(address)),
      m_name(std::move(name)),
      m_stop(std::make_shared<std::atomic<bool>>(false)) {}

RunningFilm::~RunningFilm() {
    *m_stop = true;
}

void RunningFilm::stop() {
    *m_stop = true;
    disconnect(this, nullptr, nullptr, nullptr);
}

fs::path RunningFilm::partPath() const {
    return m_way.folder / (m_name + ".part");
}

void RunningFilm::takeName() {
    runBeside(
        this,
        [part = partPath(), folder = m_way.folder, name = m_name, stop = m_stop] {
            return *stop ? NamedFilm() : namedFilm(part, folder, name);
        },
        [this](const NamedFilm& named) {
            if (!named.fault.empty()) {
                fail({say("The film could not be given its name: {}", named.fault)});
                return;
            }
            emit ended({.name = named.name});
        });
}

void RunningFilm::fail(const TransferFault& fault) {
    emit ended({.kind = fault.isNotThere ? FilmResult::Kind::NotThere : FilmResult::Kind::Failed,
                .reason = fault.reason,
                .otherSite = fault.otherSite,
                .wantsLogin = fault.wantsLogin});
}

PlainFilm::PlainFilm(FilmWay way, Address address, std::string name, QObject* parent)
    : RunningFilm(std::move(way), std::move(address), std::move(name), parent),
      m_transfer(*this->way().network, *this->way().rules, this->way().mayTake, this),
      m_checksum(*this->way().network, *this->way().rules, MostChecksumBytes, this) {
    connect(&m_transfer, &FileTransfer::progressed, this, &RunningFilm::progressed);
    connect(&m_transfer, &FileTransfer::failed, this,
            [this](const TransferFault& fault) { fail(fault); });
    connect(&m_transfer, &FileTransfer::whole, this, &PlainFilm::findChecksum);
}

void PlainFilm::start() {
    m_transfer.start(address(), partPath());
}

void PlainFilm::stop() {
    m_transfer.stop();
    RunningFilm::stop();
}

/// Where the answer told none, one may lie beside the film.
void PlainFilm::findChecksum() {
    Address beside = address();
    beside.path += ".sha256";
    if (!m_transfer.digest().empty() || !beside.query.empty()) {
        check(m_transfer.digest());
        return;
    }
    m_checksum.start({.address = beside}, [this](const SmallAnswer& answer) {
        check(answer.isThere ? sha256OfFile(answer.body) : std::string());
    });
}

void PlainFilm::check(const std::string& expected) {
    if (expected.empty()) {
        checkFilm();
        return;
    }
    runBeside(
        this, [part = partPath()] { return sha256OfFilm(part); },
        [this, expected](const std::string& found) {
            if (found == expected)
                checkFilm();
            else
                m_transfer.startAnew(say("The film is not what its checksum says."));
        });
}

void PlainFilm::checkFilm() {
    runBeside(
        this, [part = partPath()] { return faultOfFilm(part); },
        [this](const std::optional<std::string>& fault) {
            if (!fault) {
                takeName();
                return;
            }
            // It is whole: nothing would be gone on with.
            m_transfer.dropPart([this, fault = *fault] { fail({fault}); });
        });
}

} // namespace kavela::fetch
