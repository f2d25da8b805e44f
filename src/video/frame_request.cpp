#include "video/frame_request.h"

#include <algorithm>

namespace kavela {

std::optional<FrameNumber> frameOf(const VideoIndex& index, const FrameRequest& request) {
    if (index.frameCount() == 0)
        return std::nullopt;
    const FrameNumber last = index.frameCount() - 1;
    std::optional<FrameNumber> number;
    if (const auto* const wanted = std::get_if<FrameNumber>(&request))
        number = std::clamp<FrameNumber>(*wanted, 0, last);
    else if (const auto* const stamp = std::get_if<CMTime>(&request))
        number = index.frameAt(*stamp);
    else
        number = index.frameAt(std::get<double>(request));
    // The frame behind the last one that was read may be nearer to what is meant.
    if (!index.isComplete() && number == last)
        return std::nullopt;
    return number;
}

} // namespace kavela
