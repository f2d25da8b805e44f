#pragma once

#include "video/frame_request.h"
#include "video/index.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kavela {

/// A frame as a player shows it.
struct ShownFrame {
    VideoFrame frame;
    bool isPreview = false; ///< stands in until the frame that was asked for is decoded
    /// How many requests the player had been given, up to the one that this frame comes for.
    std::uint64_t request = 0;
};

/// What a player tells. Called from threads of the player, never two at once; each must return
/// soon, and must not destroy the player.
struct PlayerEvents {
    std::function<void(const ShownFrame&)> onFrame;
    /// The film's index, so far or complete, and the fraction of the file that was read; before the
    /// first frame.
    std::function<void(const std::shared_ptr<const VideoIndex>&, double fraction)> onIndex;
    /// The film cannot be opened or read, or no frame of it can be decoded. The next request tries
    /// again.
    std::function<void(const std::string& message)> onError;
};

/// Shows frames of a film. No call waits: a newer request takes the place of one that is not done.
class VideoPlayer {
public:
    VideoPlayer() = default;
    VideoPlayer(const VideoPlayer&) = delete;
    VideoPlayer& operator=(const VideoPlayer&) = delete;
    virtual ~VideoPlayer() = default;

    /// The frame of a number, brought into the film.
    virtual void showFrame(FrameNumber number) = 0;
    /// The frame with exactly this stamp, or the one shown at that moment.
    virtual void requestStamp(const CMTime& stamp) = 0;
    /// The frame due at a number of seconds.
    virtual void requestPosition(double seconds) = 0;
    /// Where somebody is likely to go next, in seconds: while he rests, the frames around that
    /// place are decoded. None without a value.
    virtual void expect(std::optional<double> seconds) = 0;

    /// The index as far as it is known; null until then.
    [[nodiscard]] virtual std::shared_ptr<const VideoIndex> index() const = 0;
    /// What was asked for last, by its number once that is known; nothing before the first request.
    [[nodiscard]] virtual std::optional<FrameRequest> asked() const = 0;
    /// The frame asked for last, as soon as its number is known; steps are counted from it.
    [[nodiscard]] virtual std::optional<FrameNumber> target() const = 0;
    /// How many requests there were.
    [[nodiscard]] virtual std::uint64_t requests() const = 0;
    /// The frame shown last, previews left out.
    [[nodiscard]] virtual std::optional<VideoFrame> shown() const = 0;
};

} // namespace kavela
