#pragma once

#include "captions/film_captions.h"
#include "compose/preview.h"
#include "desktop/compose/compare_player.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <stop_token>
#include <thread>

namespace kavela::desktop {

/// The thread of a ComparePlayer: reads what is asked for and makes its pictures. The newest wish
/// counts; what is told and not taken yet is replaced by what comes after it.
class PreviewWorker {
public:
    struct Wish {
        std::uint64_t number = 0;
        composejob002 job;
        VideoSize box;
    };
    /// What there is to tell since it was taken last.
    struct News {
        std::uint64_t number = 0; ///< of the job that all of it is about
        std::optional<PreparedComparison> prepared = {};
        std::optional<std::pair<QString, QString>> fault = {}; ///< where and what
        std::shared_ptr<const Picture> picture = {};
        double position = 0;
        bool hasStopped = false; ///< it came to the end
    };

    PreviewWorker(ComparePlayer& player, std::shared_ptr<FrameCache> frames);
    /// Ends all work at once.
    ~PreviewWorker();
    PreviewWorker(const PreviewWorker&) = delete;
    PreviewWorker& operator=(const PreviewWorker&) = delete;

    // Interface thread.
    void ask(Wish wish);
    void clear(std::uint64_t number);
    void seek(double seconds);
    void setPlaying(bool isPlaying, double from);
    [[nodiscard]] News takeNews();

private:
    using SteadyClock = std::chrono::steady_clock;

    void work(const std::stop_token& stop);
    [[nodiscard]] bool waitForWork(const std::stop_token& stop);
    void prepareWish(const std::stop_token& stop);
    void prepare(const Wish& wish, const std::stop_token& stop);
    [[nodiscard]] std::vector<OpenedFilm> openedFilms(const Composition& composition,
                                                      const std::stop_token& stop);
    [[nodiscard]] PreparedComparison describe(const Composition& composition,
                                              const std::vector<OpenedFilm>& films) const;
    void showNext(const std::stop_token& stop);
    [[nodiscard]] double nextPosition();
    void tell(const std::function<void(News&)>& add);
    void tellFault(std::uint64_t number, const std::string& where, const std::string& what);

    ComparePlayer& m_player;
    std::shared_ptr<FrameCache> m_frames;

    // Of the thread alone.
    FilmCaptions m_captions;
    std::map<std::filesystem::path, OpenedFilm> m_opened; ///< that are there
    std::unique_ptr<ComposePreview> m_preview;
    std::uint64_t m_number = 0; ///< of the job that is shown
    double m_frameSeconds = 0.02;
    double m_at = 0; ///< seconds of the composed film

    std::mutex m_guard; ///< of all that follows
    std::condition_variable_any m_wake;
    std::optional<Wish> m_wish;
    std::optional<double> m_seek;
    bool m_isPlaying = false;
    double m_playedFrom = 0;
    SteadyClock::time_point m_playedSince;
    News m_news;
    bool m_isTold = false; ///< an event for the news is on its way

    std::atomic<bool> m_hasWish = false;
    std::jthread m_thread; ///< the last one: it uses all of the others
};

} // namespace kavela::desktop
