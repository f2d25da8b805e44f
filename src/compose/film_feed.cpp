#include "compose/film_feed.h"

namespace kavela {

namespace {
/// Enough to even out frames that take longer than others.
constexpr std::size_t PicturesAhead = 6;
} // namespace

FilmFeed::FilmFeed(std::unique_ptr<FilmPictures> pictures, std::int64_t count,
                   std::function<FrameNumber(std::int64_t)> numberOf)
    : m_pictures(std::move(pictures)),
      m_count(count),
      m_numberOf(std::move(numberOf)),
      m_worker([this](const std::stop_token& stop) { work(stop); }) {}

FilmFeed::~FilmFeed() = default;

void FilmFeed::work(const std::stop_token& stop) {
    try {
        for (std::int64_t i = 0; i < m_count && !stop.stop_requested(); ++i) {
            PlanesPtr picture =
                m_pictures->at(m_numberOf(i), [&] { return stop.stop_requested(); });
            std::unique_lock lock(m_guard);
            if (!m_changed.wait(lock, stop, [this] { return m_ready.size() < PicturesAhead; }))
                return;
            m_ready.push_back(std::move(picture));
            m_changed.notify_all();
        }
    } catch (...) {
        const std::lock_guard lock(m_guard);
        m_failure = std::current_exception();
        m_changed.notify_all();
    }
}

PlanesPtr FilmFeed::next(const std::stop_token& stop) {
    std::unique_lock lock(m_guard);
    if (!m_changed.wait(lock, stop, [this] { return !m_ready.empty() || m_failure; }))
        return nullptr;
    if (m_ready.empty())
        std::rethrow_exception(m_failure);
    PlanesPtr picture = std::move(m_ready.front());
    m_ready.pop_front();
    m_changed.notify_all();
    return picture;
}

} // namespace kavela
