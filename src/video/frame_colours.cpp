#include "video/frame_colours.h"

#include "video/av_handles.h"

#include <string_view>

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace kavela {

int colourMatrixOf(const AVFrame& frame) {
    // From this size on films are in the colours of high definition unless they say otherwise.
    constexpr int HighDefinitionHeight = 720;
    constexpr int HighDefinitionWidth = 1280;
    switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
        return SWS_CS_ITU709;
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return SWS_CS_ITU601;
    case AVCOL_SPC_SMPTE240M:
        return SWS_CS_SMPTE240M;
    case AVCOL_SPC_FCC:
        return SWS_CS_FCC;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return SWS_CS_BT2020;
    default:
        return frame.height >= HighDefinitionHeight || frame.width >= HighDefinitionWidth
                   ? SWS_CS_ITU709
                   : SWS_CS_ITU601;
    }
}

bool hasFullRange(const AVFrame& frame) {
    const char* const name = av_get_pix_fmt_name(static_cast<AVPixelFormat>(frame.format));
    return frame.color_range == AVCOL_RANGE_JPEG ||
           (name != nullptr && std::string_view(name).starts_with("yuvj"));
}

} // namespace kavela
