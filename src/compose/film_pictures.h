#pragma once

#include "compose/layout.h"
#include "video/frame_source.h"
#include "video/writing/plane_scaler.h"
#include "video/writing/turned_planes.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kavela {

/// Planes of a picture, shared and never written to again.
using PlanesPtr = std::shared_ptr<const AVFrame>;

/// The pictures of one film as a composition needs them: upright, of one size, in the colours of
/// high definition. Used from one thread at a time.
class FilmPictures {
public:
    using Interrupt = std::function<bool()>;

    /// Throws VideoError when the film cannot be opened.
    FilmPictures(std::shared_ptr<const VideoIndex> index, std::shared_ptr<FrameCache> cache,
                 VideoSize size);

    [[nodiscard]] const VideoIndex& index() const { return *m_index; }

    /// The picture of a frame; for one that cannot be decoded the last one that could. Null where
    /// there is none at all, and when interrupted.
    [[nodiscard]] PlanesPtr at(FrameNumber number, const Interrupt& interrupt = {});

    /// The first frame that could not be shown so far, and why.
    struct PictureFault {
        FrameNumber frame = 0;
        std::string reason;
    };
    [[nodiscard]] const std::optional<PictureFault>& fault() const { return m_fault; }

private:
    void noteFault(FrameNumber number, const std::string& reason);
    [[nodiscard]] PlanesPtr made(const AVFrame& samples);

    std::shared_ptr<const VideoIndex> m_index;
    std::shared_ptr<FrameCache> m_cache;
    std::unique_ptr<FrameSource> m_source; ///< null once the file cannot be read any more
    PlaneScaler m_scaler;
    VideoSize m_size;
    FrameNumber m_number = -1; ///< of the picture made last
    PlanesPtr m_picture;
    std::optional<PictureFault> m_fault;
};

} // namespace kavela
