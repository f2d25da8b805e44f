#pragma once

#include "video/frame_source.h"
#include "video/writing/plane_scaler.h"
#include "vision/track_picture.h"

#include <functional>
#include <memory>

namespace kavela {

/// The pictures of a film for those that look at it: upright, with square pixels, in planes of
/// eight bits. Used from one thread at a time.
class FilmPlanes {
public:
    /// Throws VideoError when the film cannot be opened.
    explicit FilmPlanes(std::shared_ptr<const VideoIndex> index);
    FilmPlanes(std::shared_ptr<const VideoIndex> index, std::shared_ptr<FrameCache> cache);

    [[nodiscard]] const VideoIndex& index() const { return m_source.index(); }
    [[nodiscard]] VideoSize size() const { return m_size; }
    /// A frame; null where it cannot be decoded, and when interrupted. Throws VideoError when the
    /// file cannot be read any more.
    [[nodiscard]] std::shared_ptr<const AVFrame> at(FrameNumber frame,
                                                    const std::function<bool()>& interrupt = {});

private:
    FrameSource m_source;
    PlaneScaler m_scaler{PlaneColours::Own};
    VideoSize m_size;
};

} // namespace kavela
