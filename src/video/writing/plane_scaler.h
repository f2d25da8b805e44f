#pragma once

#include "video/av_handles.h"
#include "video/index.h"

#include <tuple>

namespace kavela {

/// In which colours planes are stored.
enum class PlaneColours {
    HighDefinition, ///< as in films of 720 lines or more, 16 to 235
    Own             ///< those of the frame that goes in, brought to 16 to 235
};

/// Brings decoded frames to the planes that films are encoded from: eight bits, colour for every
/// two by two pixels. Used from one thread at a time; keeps what successive frames share.
class PlaneScaler {
public:
    explicit PlaneScaler(PlaneColours colours = PlaneColours::HighDefinition)
        : m_colours(colours) {}

    /// Fills the target, whose size is taken as it is; its samples must be its own. False for a
    /// frame in a format that cannot be converted.
    [[nodiscard]] bool scale(const AVFrame& from, AVFrame& to);

private:
    [[nodiscard]] bool prepare(const AVFrame& from, const AVFrame& to);

    using Kind = std::tuple<int, int, int, int, int, int, bool>;
    PlaneColours m_colours;
    Kind m_kind;
    AvOwner<SwsContext> m_context;
};

/// Planes of a size with samples of their own. Throws std::bad_alloc.
[[nodiscard]] AvOwner<AVFrame> newPlanes(VideoSize size);

} // namespace kavela
