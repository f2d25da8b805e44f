#pragma once

#include "common/cm_time.h"

#include <cstdint>
#include <memory>

struct AVFrame;

namespace kavela {

/// The place of a frame in the order in which a film is shown, from 0.
using FrameNumber = std::int64_t;

/// Decoded samples, shared by reference and never written to again.
using FramePtr = std::shared_ptr<const AVFrame>;

/// A decoded frame and which one it is.
struct VideoFrame {
    FrameNumber number = 0;
    CMTime stamp;
    FramePtr samples;
};

} // namespace kavela
