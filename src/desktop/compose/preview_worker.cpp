#include "desktop/compose/preview_worker.h"

#include "common/error.h"
#include "video/video_error.h"

#include <QMetaObject>

#include <algorithm>
#include <exception>
#include <utility>

namespace kavela::desktop {

namespace {

/// The pictures of films of some minutes: their films are opened once.
constexpr std::size_t MostOpenedFilms = 16;

} // namespace

PreviewWorker::PreviewWorker(ComparePlayer& player, std::shared_ptr<FrameCache> frames)
    : m_player(player),
      m_frames(std::move(frames)),
      m_thread([this](const std::stop_token& stop) { work(stop); }) {}

PreviewWorker::~PreviewWorker() = default;

void PreviewWorker::ask(Wish wish) {
    const std::scoped_lock lock(m_guard);
    m_wish = std::move(wish);
    m_hasWish = true;
    m_wake.notify_all();
}

/// A wish without films shows nothing.
void PreviewWorker::clear(std::uint64_t number) {
    ask({.number = number, .job = {}, .box = {}});
}

void PreviewWorker::seek(double seconds) {
    const std::scoped_lock lock(m_guard);
    m_seek = seconds;
    m_playedFrom = seconds;
    m_playedSince = SteadyClock::now();
    m_wake.notify_all();
}

void PreviewWorker::setPlaying(bool isPlaying, double from) {
    const std::scoped_lock lock(m_guard);
    m_isPlaying = isPlaying;
    m_playedFrom = from;
    m_playedSince = SteadyClock::now();
    m_wake.notify_all();
}

PreviewWorker::News PreviewWorker::takeNews() {
    const std::scoped_lock lock(m_guard);
    m_isTold = false;
    return std::exchange(m_news, News{});
}

void PreviewWorker::work(const std::stop_token& stop) {
    while (waitForWork(stop)) {
        prepareWish(stop);
        if (m_preview && !stop.stop_requested())
            showNext(stop);
    }
}

/// While it plays, until the next picture is due.
bool PreviewWorker::waitForWork(const std::stop_token& stop) {
    std::unique_lock lock(m_guard);
    const auto hasNew = [this] { return m_wish || m_seek; };
    if (m_isPlaying && m_preview && !hasNew()) {
        const std::chrono::duration<double> ahead(m_at + m_frameSeconds - m_playedFrom);
        m_wake.wait_until(lock, stop,
                          m_playedSince + std::chrono::duration_cast<SteadyClock::duration>(ahead),
                          [&] { return hasNew() || !m_isPlaying; });
    } else {
        m_wake.wait(lock, stop, [&] { return hasNew() || (m_isPlaying && m_preview); });
    }
    return !stop.stop_requested();
}

void PreviewWorker::prepareWish(const std::stop_token& stop) {
    std::optional<Wish> wish;
    {
        const std::scoped_lock lock(m_guard);
        wish = std::exchange(m_wish, std::nullopt);
        m_hasWish = false;
    }
    if (!wish)
        return;
    m_number = wish->number;
    m_preview.reset();
    if (wish->job.films.empty())
        return;
    try {
        prepare(*wish, stop);
    } catch (const DecodeError& error) {
        tellFault(wish->number, error.fault().path, error.fault().text);
    } catch (const VideoError& error) {
        tellFault(wish->number, {}, error.what());
    } catch (const std::exception& error) {
        tellFault(wish->number, {}, error.what());
    }
}

void PreviewWorker::prepare(const Wish& wish, const std::stop_token& stop) {
    // Every name is a full one, so that the folder plays no part.
    const Composition composition = compositionOf(wish.job, {});
    const std::vector<OpenedFilm> films = openedFilms(composition, stop);
    if (stop.stop_requested())
        return;
    m_preview =
        std::make_unique<ComposePreview>(composition, films, wish.box, m_frames, &m_captions);
    PreparedComparison prepared = describe(composition, films);
    m_frameSeconds = prepared.frameSeconds;
    const std::scoped_lock lock(m_guard);
    m_at = std::clamp(m_seek.value_or(m_at), 0.0, prepared.length);
    m_seek = m_at;
    if (m_isPlaying) {
        m_playedFrom = m_at;
        m_playedSince = SteadyClock::now();
    }
    m_news = {.number = wish.number, .prepared = std::move(prepared), .position = m_at};
    if (!std::exchange(m_isTold, true))
        QMetaObject::invokeMethod(&m_player, &ComparePlayer::takeNews, Qt::QueuedConnection);
}

/// One that is not there is looked for again the next time.
std::vector<OpenedFilm> PreviewWorker::openedFilms(const Composition& composition,
                                                   const std::stop_token& stop) {
    if (m_opened.size() > MostOpenedFilms)
        m_opened.clear();
    std::vector<OpenedFilm> films;
    for (const ComposedFilm& film : composition.films) {
        const auto known = m_opened.find(film.path);
        if (known != m_opened.end()) {
            films.push_back(known->second);
            continue;
        }
        try {
            films.push_back({readVideoIndex(film.path, stop), {}});
            if (films.back().index)
                m_opened.emplace(film.path, films.back());
        } catch (const VideoError& error) {
            films.push_back({nullptr, error.reason()});
        }
    }
    return films;
}

PreparedComparison PreviewWorker::describe(const Composition& composition,
                                           const std::vector<OpenedFilm>& films) const {
    const FrameMixer& mixer = m_preview->mixer();
    PreparedComparison prepared;
    prepared.length = mixer.length();
    prepared.speed = composition.speed;
    prepared.shown = mixer.range();
    prepared.splits = splitMomentsOf(composition, mixer.map());
    prepared.places = mixer.places();
    prepared.size = {mixer.size().width, mixer.size().height};
    prepared.titles = composition.splitTitles;
    if (composition.sound && composition.speed == 1 && films[*composition.sound].index)
        prepared.heard = HeardFilm{composition.films[*composition.sound].path,
                                   mixer.map().pieces(*composition.sound)};
    std::vector<double> rates;
    for (std::size_t film = 0; film < films.size(); ++film) {
        const auto& index = films[film].index;
        if (index)
            rates.push_back(index->facts().nominalRate);
        else
            prepared.faults.append(QString::fromStdString(
                composition.films[film].path.filename().string() + ": " + films[film].fault));
    }
    prepared.frameSeconds = 1 / composedRate(rates).perSecond();
    prepared.choice = choiceRangeOf(composition, mixer.map(), lengthsOf(films), mixer.range());
    return prepared;
}

double PreviewWorker::nextPosition() {
    const std::scoped_lock lock(m_guard);
    if (const auto asked = std::exchange(m_seek, std::nullopt))
        return *asked;
    const std::chrono::duration<double> played = SteadyClock::now() - m_playedSince;
    return m_isPlaying ? m_playedFrom + played.count() : m_at;
}

void PreviewWorker::showNext(const std::stop_token& stop) {
    const double length = m_preview->length();
    const double wanted = nextPosition();
    m_at = std::clamp(wanted, 0.0, length);
    std::shared_ptr<const Picture> picture;
    try {
        picture =
            m_preview->previewAt(m_at, [&] { return stop.stop_requested() || m_hasWish.load(); });
    } catch (const std::exception& error) {
        m_preview.reset();
        tellFault(m_number, {}, error.what());
        return;
    }
    if (!picture)
        return;
    tell([&](News& news) {
        news.picture = picture;
        news.position = m_at;
        if (m_isPlaying && wanted >= length) {
            m_isPlaying = false;
            news.hasStopped = true;
        }
    });
}

void PreviewWorker::tell(const std::function<void(News&)>& add) {
    const std::scoped_lock lock(m_guard);
    m_news.number = m_number;
    add(m_news);
    if (!std::exchange(m_isTold, true))
        QMetaObject::invokeMethod(&m_player, &ComparePlayer::takeNews, Qt::QueuedConnection);
}

void PreviewWorker::tellFault(std::uint64_t number, const std::string& where,
                              const std::string& what) {
    tell([&](News& news) {
        news = {.number = number,
                .fault = std::pair(QString::fromStdString(where), QString::fromStdString(what))};
        m_isPlaying = false;
        news.hasStopped = true;
    });
}

} // namespace kavela::desktop
