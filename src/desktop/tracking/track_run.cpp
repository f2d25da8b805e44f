#include "desktop/tracking/track_run.h"

#include <iterator>
#include <mutex>
#include <utility>

namespace kavela::desktop {

/// As the thread that follows tells it.
struct TrackRun::Shared {
    std::mutex guard;
    std::vector<TrackPoint> found; ///< since it was last taken
    FrameNumber frame = 0;
    double done = 0;
    bool hasNews = false;
};

namespace {

struct RunResult {
    FilmTrack track;
    std::optional<FrameNumber> lostAt;
};

/// The stretches that end and begin at a box.
RunResult runStretches(FilmPlanes& film, FilmTrack track, std::size_t key,
                       const std::stop_token& stop, const TrackListener& tell) {
    const FrameNumber last = film.index().frameCount() - 1;
    RunResult result;
    for (std::size_t from = key > 0 ? key - 1 : key; from <= key && !stop.stop_requested();
         ++from) {
        const FollowedStretch stretch =
            followStretch(film, stretchOf(track, from, last), stop, tell);
        track = withStretch(std::move(track), stretch);
        result.lostAt = stop.stop_requested() ? std::nullopt : stretch.lostAt;
    }
    result.track = std::move(track);
    return result;
}

} // namespace

TrackRun::TrackRun(QObject* parent) : QObject(parent) {
    constexpr int PollMilliseconds = 60;
    m_poll.setInterval(PollMilliseconds);
    connect(&m_poll, &QTimer::timeout, this, &TrackRun::showProgress);
}

TrackRun::~TrackRun() {
    m_stop.request_stop();
}

void TrackRun::start(const std::shared_ptr<const VideoIndex>& index, const FilmTrack& track,
                     std::size_t key) {
    m_stop = std::stop_source();
    m_shared = std::make_shared<Shared>();
    m_found.clear();
    m_isRunning = true;
    m_poll.start();
    const auto task = [index, track, key, stop = m_stop,
                       shared = m_shared](const WorkSteps& steps) {
        std::stop_source source = stop;
        const std::stop_callback also(steps.stopToken(), [&source] { source.request_stop(); });
        FilmPlanes film(index);
        return runStretches(film, track, key, source.get_token(), [&](const TrackProgress& now) {
            const std::scoped_lock lock(shared->guard);
            if (now.point)
                shared->found.push_back(*now.point);
            shared->frame = now.frame;
            shared->done = now.fraction;
            shared->hasNews = true;
        });
    };
    const auto end = [this] {
        m_poll.stop();
        m_isRunning = false;
        m_found.clear();
    };
    m_work.run(task,
               [this, end](const RunResult& result) {
                   end();
                   emit ended(result.track, result.lostAt.value_or(-1));
               },
               {.failed =
                    [this, end](const std::exception_ptr& fault) {
                        end();
                        emit failed(QString::fromStdString(messageOf(fault)));
                    },
                .cancelled = end});
}

void TrackRun::showProgress() {
    FrameNumber frame = 0;
    double done = 0;
    {
        const std::scoped_lock lock(m_shared->guard);
        if (!std::exchange(m_shared->hasNews, false))
            return;
        m_found.insert(m_found.end(), m_shared->found.begin(), m_shared->found.end());
        m_shared->found.clear();
        frame = m_shared->frame;
        done = m_shared->done;
    }
    emit advanced(frame, done);
}

} // namespace kavela::desktop
