#include "video/threaded_player.h"

#include "common/text.h"
#include "video/video_error.h"

#include <algorithm>
#include <chrono>

namespace kavela {

namespace {

/// A request so near to the one under way does not replace it: its frame comes out on the way.
constexpr FrameNumber NearFrames = 30;

/// Somebody who has not moved for so long may start in either direction next.
constexpr auto QuietBeforeRest = std::chrono::milliseconds(150);

/// Between two trials to read a film that could not be read.
constexpr auto RestBetweenTrials = std::chrono::milliseconds(500);

} // namespace

ThreadedPlayer::ThreadedPlayer(std::filesystem::path path, std::shared_ptr<FrameCache> cache,
                               PlayerEvents events)
    : m_path(std::move(path)), m_cache(std::move(cache)), m_events(std::move(events)) {
    m_indexer = std::jthread([this](const std::stop_token& stop) { readIndex(stop); });
    m_worker = std::jthread([this](const std::stop_token& stop) { work(stop); });
}

ThreadedPlayer::~ThreadedPlayer() {
    m_indexer.request_stop();
    m_worker.request_stop();
}

void ThreadedPlayer::showFrame(FrameNumber number) {
    request(number);
}
void ThreadedPlayer::requestStamp(const CMTime& stamp) {
    request(stamp);
}
void ThreadedPlayer::requestPosition(double seconds) {
    request(seconds);
}

void ThreadedPlayer::request(const FrameRequest& request) {
    {
        const std::lock_guard lock(m_guard);
        m_request = request;
        ++m_requests;
    }
    m_changed.notify_all();
}

void ThreadedPlayer::expect(std::optional<double> seconds) {
    {
        const std::lock_guard lock(m_guard);
        if (m_expected == seconds)
            return;
        m_expected = seconds;
        m_isExpectedNew = true;
    }
    m_changed.notify_all();
}

std::shared_ptr<const VideoIndex> ThreadedPlayer::index() const {
    const std::lock_guard lock(m_guard);
    return m_index;
}

std::optional<FrameRequest> ThreadedPlayer::asked() const {
    const std::lock_guard lock(m_guard);
    return m_request ? m_request : m_target ? std::optional<FrameRequest>(*m_target) : std::nullopt;
}

std::optional<FrameNumber> ThreadedPlayer::target() const {
    const std::lock_guard lock(m_guard);
    return m_request ? resolved(*m_request) : m_target;
}

std::uint64_t ThreadedPlayer::requests() const {
    const std::lock_guard lock(m_guard);
    return m_requests;
}

std::optional<VideoFrame> ThreadedPlayer::shown() const {
    const std::lock_guard lock(m_guard);
    return m_shown;
}

/// A film that cannot be read, such as one on a disk that was unplugged, is tried again when
/// something is asked of it.
void ThreadedPlayer::readIndex(const std::stop_token& stop) {
    std::uint64_t before = 0;
    do {
        before = requests();
        try {
            auto index = readVideoIndex(m_path, stop, [this](const IndexProgress& progress) {
                takeIndex(progress.soFar, progress.fraction);
            });
            if (index)
                takeIndex(std::move(index), 1);
            return;
        } catch (const std::exception& fault) {
            fail(fault.what());
        }
    } while (waitForRequestAfter(before, stop));
}

/// A film that plays asks many times a second.
bool ThreadedPlayer::waitForRequestAfter(std::uint64_t before, const std::stop_token& stop) {
    std::unique_lock lock(m_guard);
    const auto isAsked = [this, before] { return m_requests != before; };
    m_changed.wait_for(lock, stop, RestBetweenTrials, [] { return false; });
    return m_changed.wait(lock, stop, isAsked);
}

void ThreadedPlayer::takeIndex(std::shared_ptr<const VideoIndex> index, double fraction) {
    // From before the other thread knows it: a frame of it would else be told first.
    const std::lock_guard events(m_eventGuard);
    std::shared_ptr<const VideoIndex> known;
    {
        const std::lock_guard lock(m_guard);
        if (index && index->frameCount() > 0)
            m_index = std::move(index);
        known = m_index;
    }
    m_changed.notify_all();
    if (m_events.onIndex)
        m_events.onIndex(known, fraction);
}

void ThreadedPlayer::fail(const std::string& message) {
    const std::lock_guard lock(m_eventGuard);
    if (m_events.onError)
        m_events.onError(message);
}

/// The frame of a request; none while the index does not reach so far.
std::optional<FrameNumber> ThreadedPlayer::resolved(const FrameRequest& request) const {
    return m_index ? frameOf(*m_index, request) : std::nullopt;
}

bool ThreadedPlayer::isReady(const std::optional<FrameRequest>& request) const {
    return request && resolved(*request).has_value();
}

/// Whether the way to a frame should be given up for what was asked meanwhile. Somebody who drags
/// on and on still sees something between two that are given up.
bool ThreadedPlayer::isOvertaken(FrameNumber number) const {
    const std::lock_guard lock(m_guard);
    const auto next = m_request ? resolved(*m_request) : std::nullopt;
    return next && m_mayBeOvertaken && std::abs(*next - number) > NearFrames;
}

/// What fails does not end the player: the film is opened anew for the next request.
void ThreadedPlayer::work(const std::stop_token& stop) {
    std::optional<FrameSource> source;
    Idleness idleness = Idleness::Resting;
    while (const auto task = nextTask(idleness, stop)) {
        try {
            if (!source)
                source.emplace(task->index, m_cache);
            else if (&source->index() != task->index.get())
                source->setIndex(task->index);
            idleness = perform(*source, *task, stop);
        } catch (const std::exception& fault) {
            source.reset();
            idleness = Idleness::Resting;
            if (task->isRequest)
                fail(fault.what());
        }
    }
}

ThreadedPlayer::Idleness ThreadedPlayer::perform(FrameSource& source, const Task& task,
                                                 const std::stop_token& stop) {
    if (task.isRequest) {
        show(source, task, stop);
        return Idleness::Busy;
    }
    const auto isDisturbed = [&] {
        const std::lock_guard lock(m_guard);
        return stop.stop_requested() || isReady(m_request);
    };
    if (task.expected && !source.prepare(*task.expected, isDisturbed))
        return Idleness::Busy;
    if (!source.prefetch(task.number, task.motion, isDisturbed))
        return Idleness::Busy;
    return task.motion == Motion::None ? Idleness::Resting : Idleness::Pausing;
}

/// The newest request, otherwise something to decode ahead. None once the player is to end.
std::optional<ThreadedPlayer::Task> ThreadedPlayer::nextTask(Idleness& idleness,
                                                             const std::stop_token& stop) {
    const auto hasRequest = [this] { return isReady(m_request); };
    std::unique_lock lock(m_guard);
    if (idleness == Idleness::Resting)
        m_changed.wait(lock, stop,
                       [&] { return hasRequest() || (m_isExpectedNew && m_index && m_target); });
    const bool isQuiet = idleness == Idleness::Pausing &&
                         !m_changed.wait_for(lock, stop, QuietBeforeRest, hasRequest);
    if (stop.stop_requested())
        return std::nullopt;
    if (!hasRequest()) {
        idleness = Idleness::Busy;
        m_isExpectedNew = false;
        m_motion = isQuiet ? Motion::None : m_motion;
        Task task{m_index, m_target.value_or(0), m_motion, false, m_requests};
        if (m_expected && m_motion == Motion::None)
            task.expected = resolved(*m_expected);
        return task;
    }
    const FrameNumber number = *resolved(*m_request);
    const FrameNumber before = m_target.value_or(number);
    m_request.reset();
    if (number != before)
        m_motion = number < before ? Motion::Backward : Motion::Forward;
    m_target = number;
    return Task{m_index, number, m_motion, true, m_requests};
}

void ThreadedPlayer::show(FrameSource& source, const Task& task, const std::stop_token& stop) {
    const auto interrupt = [&] { return stop.stop_requested() || isOvertaken(task.number); };
    const auto preview = [&](const VideoFrame& frame) { deliver(task, frame, true); };
    const FrameSource::Result result = source.frame(task.number, interrupt, preview);
    if (stop.stop_requested())
        return;
    if (result.outcome == FrameSource::Outcome::Found) {
        deliver(task, result.frame, false);
    } else if (result.outcome == FrameSource::Outcome::Damaged) {
        showNearest(source, task, stop);
    } else {
        const std::lock_guard lock(m_guard);
        m_mayBeOvertaken = false;
    }
}

/// Instead of a frame that cannot be decoded comes the next one that can, first in the direction
/// of the motion, so that stepping leads across a damaged stretch.
void ThreadedPlayer::showNearest(FrameSource& source, const Task& task,
                                 const std::stop_token& stop) {
    const auto interrupt = [&] { return stop.stop_requested() || isOvertaken(task.number); };
    const FrameNumber direction = task.motion == Motion::Backward ? -1 : 1;
    for (const FrameNumber step : {direction, -direction}) {
        FrameNumber near = task.number + step;
        for (; 0 <= near && near < source.index().frameCount(); near += step) {
            const FrameSource::Result result = source.frame(near, interrupt);
            if (result.outcome == FrameSource::Outcome::Interrupted)
                return;
            if (result.outcome != FrameSource::Outcome::Found)
                continue;
            {
                const std::lock_guard lock(m_guard);
                m_target = near;
            }
            deliver(task, result.frame, false);
            return;
        }
    }
    fail(VideoError(m_path, say("no frame of the video can be decoded")).what());
}

void ThreadedPlayer::deliver(const Task& task, const VideoFrame& frame, bool isPreview) {
    {
        const std::lock_guard lock(m_guard);
        m_mayBeOvertaken = true;
        if (!isPreview)
            m_shown = frame;
    }
    const std::lock_guard lock(m_eventGuard);
    if (m_events.onFrame)
        m_events.onFrame({frame, isPreview, task.request});
}

} // namespace kavela
