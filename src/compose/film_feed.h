#pragma once

#include "compose/film_pictures.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace kavela {

/// The pictures of a film in the order in which a composition takes them, made ahead by a thread of
/// its own.
class FilmFeed {
public:
    /// `numberOf` tells which frame is wanted for each picture of the composition, from 0 to
    /// `count` − 1; it is called from the thread.
    FilmFeed(std::unique_ptr<FilmPictures> pictures, std::int64_t count,
             std::function<FrameNumber(std::int64_t)> numberOf);
    /// Ends all work at once.
    ~FilmFeed();
    FilmFeed(const FilmFeed&) = delete;
    FilmFeed& operator=(const FilmFeed&) = delete;

    /// The next picture, as soon as it is there; null for none. Ends early, with null, once `stop`
    /// is requested. Throws what the making of it threw. To be called `count` times at most.
    [[nodiscard]] PlanesPtr next(const std::stop_token& stop);

    /// What was wrong with the film; to be asked behind the last picture.
    [[nodiscard]] const std::optional<FilmPictures::PictureFault>& fault() const {
        return m_pictures->fault();
    }
    [[nodiscard]] const VideoIndex& index() const { return m_pictures->index(); }

private:
    void work(const std::stop_token& stop);

    std::unique_ptr<FilmPictures> m_pictures;
    std::int64_t m_count;
    std::function<FrameNumber(std::int64_t)> m_numberOf;
    std::mutex m_guard;
    std::condition_variable_any m_changed;
    std::deque<PlanesPtr> m_ready;
    std::exception_ptr m_failure;
    std::jthread m_worker; ///< the last one: it uses all of the others
};

} // namespace kavela
