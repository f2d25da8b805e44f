#include "fetch/fetch_job.h"

#include "common/text.h"

#include <utility>

namespace kavela::fetch {

FetchJob::FetchJob(QObject* parent) : QObject(parent) {
    // A password is given by us or not at all: nobody is asked within an answer.
    m_network.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

/// The films use the network, which would be gone before the children of this are.
FetchJob::~FetchJob() {
    qDeleteAll(findChildren<RunningFilm*>(Qt::FindDirectChildrenOnly));
}

void FetchJob::start(std::vector<PlannedFilm> films, std::filesystem::path folder, WebRules rules,
                     std::int64_t most) {
    m_films = std::move(films);
    m_folder = std::move(folder);
    m_rules = std::move(rules);
    m_bytesLeft = most;
    for (std::size_t place = 0; place < m_films.size(); ++place)
        m_waiting.push_back(place);
    startNext();
}

void FetchJob::startNext() {
    while (m_running.size() < FilmsAtOnce && !m_waiting.empty()) {
        const std::size_t place = m_waiting.front();
        m_waiting.pop_front();
        startFilm(place);
    }
    if (!isRunning())
        emit ended();
}

void FetchJob::startFilm(std::size_t place) {
    const PlannedFilm& film = m_films[place];
    const FilmWay way{&m_network, &m_rules,
                      [this](std::int64_t bytes) { return (m_bytesLeft -= bytes) >= 0; }, m_folder};
    RunningFilm* running = nullptr;
    if (film.isPlaylist)
        running = new FilmInPieces(way, film.address, film.name, this);
    else
        running = new PlainFilm(way, film.address, film.name, this);
    m_running.emplace(place, running);
    connect(running, &RunningFilm::progressed, this,
            [this, place](qint64 done, qint64 all) { emit filmProgressed(place, done, all); });
    // The next one starts when the call that ends this one is over.
    connect(
        running, &RunningFilm::ended, this,
        [this, place](const FilmResult& result) { endFilm(place, result); }, Qt::QueuedConnection);
    emit filmStarted(place);
    running->start();
}

void FetchJob::endFilm(std::size_t place, const FilmResult& result) {
    const auto running = m_running.find(place);
    if (running == m_running.end())
        return; // cancelled meanwhile
    running->second->deleteLater();
    m_running.erase(running);
    emit filmEnded(place, result);
    startNext();
}

void FetchJob::cancel() {
    if (!isRunning())
        return;
    const auto running = std::exchange(m_running, {});
    const auto waiting = std::exchange(m_waiting, {});
    const FilmResult cancelled{.kind = FilmResult::Kind::Cancelled, .reason = say("Cancelled.")};
    for (const auto& [place, film] : running) {
        film->stop();
        film->deleteLater();
        emit filmEnded(place, cancelled);
    }
    for (const std::size_t place : waiting)
        emit filmEnded(place, cancelled);
    emit ended();
}

} // namespace kavela::fetch
