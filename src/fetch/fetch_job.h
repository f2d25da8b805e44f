#pragma once

#include "fetch/fetch_plan.h"
#include "fetch/running_film.h"

#include <QNetworkAccessManager>

#include <deque>
#include <map>
#include <vector>

namespace kavela::fetch {

/// Films are fetched so many at a time.
inline constexpr std::size_t FilmsAtOnce = 3;

/// Fetches the films of a plan that a coach has seen, three at a time. One job runs at a time; it
/// is for a thread with an event loop.
class FetchJob : public QObject {
    Q_OBJECT

public:
    explicit FetchJob(QObject* parent = nullptr);
    /// What runs ends as by cancel(), and nothing is told of it.
    ~FetchJob() override;

    /// Fetches these films into a folder that exists. `most` bytes are brought in all.
    void start(std::vector<PlannedFilm> films, std::filesystem::path folder, WebRules rules,
               std::int64_t most = MostJobBytes);
    /// Ends all that runs and waits at once; parts stay for the next time. Each film that had not
    /// ended is told of as cancelled.
    void cancel();
    [[nodiscard]] bool isRunning() const { return !m_running.empty() || !m_waiting.empty(); }

signals:
    /// Places are those in the list that was given.
    void filmStarted(std::size_t place);
    /// Bytes, or pieces of a film in pieces; of 0 where it is not known.
    void filmProgressed(std::size_t place, qint64 done, qint64 all);
    void filmEnded(std::size_t place, const kavela::fetch::FilmResult& result);
    /// After the last film.
    void ended();

private:
    void startNext();
    void startFilm(std::size_t place);
    void endFilm(std::size_t place, const FilmResult& result);

    QNetworkAccessManager m_network;
    WebRules m_rules;
    std::vector<PlannedFilm> m_films;
    std::filesystem::path m_folder;
    std::deque<std::size_t> m_waiting;
    std::map<std::size_t, RunningFilm*> m_running;
    std::int64_t m_bytesLeft = 0;
};

} // namespace kavela::fetch
