#pragma once

#include "vision/picture_stream.h"

#include "video/frame_source.h"
#include "video/writing/plane_scaler.h"

#include <memory>

namespace kavela {

/// The pictures of a film, as they are stored: neither turned nor with square pixels.
class FilmStream : public PictureStream {
public:
    /// Throws VideoError when the film cannot be opened.
    explicit FilmStream(std::shared_ptr<const VideoIndex> index);

    [[nodiscard]] FrameNumber frameCount() const override { return m_index->frameCount(); }
    [[nodiscard]] double secondsOf(FrameNumber number) const override {
        return m_index->secondsOf(number);
    }
    [[nodiscard]] std::optional<HalfPlanes> picture(FrameNumber number,
                                                    const std::stop_token& stop) override;
    /// Whether the file could not be read up to a frame that was asked for.
    [[nodiscard]] bool endedEarly() const { return m_endedEarly; }

private:
    std::shared_ptr<const VideoIndex> m_index;
    std::unique_ptr<FrameSource> m_source;
    PlaneScaler m_scaler{PlaneColours::Own};
    AvOwner<AVFrame> m_planes;
    bool m_endedEarly = false;
};

/// A place of the upright picture in half pixels of the stored one, where the middle of the first
/// sample is at 0, 0.
[[nodiscard]] SlitPoint storedHalfPoint(const SlitPoint& point, const VideoFacts& facts);

/// A box's size in half pixels of the stored picture.
[[nodiscard]] BoatBox storedHalfBox(const BoatBox& box, const VideoFacts& facts);

} // namespace kavela
