#pragma once

#include "vision/half_planes.h"
#include "vision/light_barrier.h"

#include <optional>

namespace kavela {

/// Pictures one after the other, from a film or from anything else. Used from one thread.
class PictureStream {
public:
    virtual ~PictureStream() = default;

    [[nodiscard]] virtual FrameNumber frameCount() const = 0;
    /// When a frame is shown; rises with its number.
    [[nodiscard]] virtual double secondsOf(FrameNumber number) const = 0;
    /// The picture of a frame; nothing for one that cannot be had, or once `stop` is requested.
    [[nodiscard]] virtual std::optional<HalfPlanes> picture(FrameNumber number,
                                                            const std::stop_token& stop) = 0;
};

/// What findCrossings() does, with the pictures of a stream, from frame `first` to before `last`.
/// The line is in half pixels of the stream's pictures, where the middle of the first sample is at
/// 0, 0; of the box the width and height count, in half pixels as well.
[[nodiscard]] std::optional<Crossings>
findCrossings(PictureStream& stream, FrameNumber first, FrameNumber last, const SlitLine& halfLine,
              const BoatBox& halfBoat, const std::stop_token& stop = {},
              const std::function<void(const BarrierProgress&)>& onProgress = {});

} // namespace kavela
