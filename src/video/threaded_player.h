#pragma once

#include "video/frame_cache.h"
#include "video/frame_source.h"
#include "video/player.h"

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <thread>

namespace kavela {

/// A player whose worker thread owns the decoder, beside one that reads the index. A long film can
/// be used while its index is still being read; a request beyond what was read waits for it.
class ThreadedPlayer final : public VideoPlayer {
public:
    /// Opens the film in the background; faults come as events.
    ThreadedPlayer(std::filesystem::path path, std::shared_ptr<FrameCache> cache,
                   PlayerEvents events);
    /// Ends all work at once. No event comes afterwards.
    ~ThreadedPlayer() override;

    void showFrame(FrameNumber number) override;
    void requestStamp(const CMTime& stamp) override;
    void requestPosition(double seconds) override;
    void expect(std::optional<double> seconds) override;
    [[nodiscard]] std::shared_ptr<const VideoIndex> index() const override;
    [[nodiscard]] std::optional<FrameRequest> asked() const override;
    [[nodiscard]] std::optional<FrameNumber> target() const override;
    [[nodiscard]] std::uint64_t requests() const override;
    [[nodiscard]] std::optional<VideoFrame> shown() const override;

private:
    struct Task {
        std::shared_ptr<const VideoIndex> index;
        FrameNumber number = 0;
        Motion motion = Motion::None;
        bool isRequest = false;                   ///< otherwise to decode ahead of that frame
        std::uint64_t request = 0;                ///< how many there had been with this one
        std::optional<FrameNumber> expected = {}; ///< to decode around, before anything else
    };
    enum class Idleness {
        Busy,    ///< there is something to decode ahead
        Pausing, ///< nothing more in the direction of the motion
        Resting  ///< nothing more in either direction
    };

    void request(const FrameRequest& request);
    void readIndex(const std::stop_token& stop);
    void takeIndex(std::shared_ptr<const VideoIndex> index, double fraction);
    void work(const std::stop_token& stop);
    [[nodiscard]] Idleness perform(FrameSource& source, const Task& task,
                                   const std::stop_token& stop);
    [[nodiscard]] std::optional<Task> nextTask(Idleness& idleness, const std::stop_token& stop);
    void show(FrameSource& source, const Task& task, const std::stop_token& stop);
    void showNearest(FrameSource& source, const Task& task, const std::stop_token& stop);
    void deliver(const Task& task, const VideoFrame& frame, bool isPreview);
    void fail(const std::string& message);
    [[nodiscard]] std::optional<FrameNumber> resolved(const FrameRequest& request) const;
    [[nodiscard]] bool isReady(const std::optional<FrameRequest>& request) const;
    [[nodiscard]] bool waitForRequestAfter(std::uint64_t before, const std::stop_token& stop);
    [[nodiscard]] bool isOvertaken(FrameNumber number) const;

    const std::filesystem::path m_path;
    const std::shared_ptr<FrameCache> m_cache;
    const PlayerEvents m_events;

    mutable std::mutex m_guard;
    std::mutex m_eventGuard;
    std::condition_variable_any m_changed;
    std::shared_ptr<const VideoIndex> m_index;
    std::optional<FrameRequest> m_request; ///< not begun yet
    std::uint64_t m_requests = 0;
    std::optional<FrameNumber> m_target; ///< begun last
    std::optional<VideoFrame> m_shown;
    Motion m_motion = Motion::None;
    bool m_mayBeOvertaken = true; ///< something was shown since a request was last given up
    std::optional<double> m_expected;
    bool m_isExpectedNew = false;

    std::jthread m_indexer;
    std::jthread m_worker;
};

} // namespace kavela
