#pragma once

#include "video/sound_source.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace kavela::desktop {

/// Decodes the sound of a film ahead of its being played, on a thread of its own. Whoever plays
/// takes sample after sample and never waits: what is not decoded in time is replaced by silence of
/// the same length, so that the rest stays at its moment.
class SoundFeed {
public:
    /// `onReady` is called on the feed's thread when the sound of a start lies ready, with the
    /// number of that start; never for a film whose sound cannot be played.
    explicit SoundFeed(std::function<void(int start)> onReady);
    ~SoundFeed();
    SoundFeed(const SoundFeed&) = delete;
    SoundFeed& operator=(const SoundFeed&) = delete;

    /// Decodes from a moment of the film on, in place of what was decoded before. Returns the
    /// number of this start.
    int start(const std::filesystem::path& film, SamplePosition position);
    /// Decodes nothing more; the film stays open, so that it starts again soon.
    void stop();
    /// Stops and closes the film.
    void close();

    /// Where the sample belongs that is taken next.
    [[nodiscard]] SamplePosition position() const;
    /// Leaves out or repeats sound, so that the next sample taken belongs there.
    void moveTo(SamplePosition position);
    /// Fills all with the next samples; silence after stop() and outside the film.
    void take(std::span<std::int16_t> samples);

private:
    /// What the thread is to do next.
    struct Task {
        std::filesystem::path film; ///< empty: to close the one that is open
        int start = 0;
        std::optional<SamplePosition> seek;
    };
    struct Opened {
        std::filesystem::path film;
        std::unique_ptr<SoundSource> source; ///< null for a film without sound
    };

    void work(const std::stop_token& stop);
    [[nodiscard]] std::optional<Task> nextTask(const std::stop_token& stop);
    [[nodiscard]] bool hasWork() const;
    void decode(const Task& task, Opened& opened, const std::stop_token& stop);
    void store(const Task& task, SamplePosition position, std::span<const std::int16_t> samples,
               bool isEnd);
    [[nodiscard]] SamplePosition aheadEnd() const;
    void dropPassed();
    void clearAhead();

    const std::function<void(int start)> m_onReady;
    mutable std::mutex m_guard;
    std::condition_variable_any m_changed;
    std::filesystem::path m_film;
    int m_start = 0;
    bool m_isRunning = false;
    bool m_isEnded = false; ///< nothing follows what was decoded
    bool m_isReady = false; ///< told for this start
    bool m_isClosing = false;
    std::optional<SamplePosition> m_seek; ///< not done yet
    SamplePosition m_position = 0;
    SamplePosition m_aheadStart = 0;
    std::deque<std::int16_t> m_ahead;
    std::jthread m_worker;
};

} // namespace kavela::desktop
