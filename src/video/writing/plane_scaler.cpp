#include "video/writing/plane_scaler.h"

#include "video/frame_colours.h"

#include <new>

namespace kavela {

bool PlaneScaler::prepare(const AVFrame& from, const AVFrame& to) {
    const Kind kind(from.width, from.height, from.format, to.width, to.height, colourMatrixOf(from),
                    hasFullRange(from));
    if (m_context && m_kind == kind)
        return true;
    m_kind = kind;
    const bool isSameSize = from.width == to.width && from.height == to.height;
    m_context.reset(sws_getContext(
        from.width, from.height, static_cast<AVPixelFormat>(from.format), to.width, to.height,
        AV_PIX_FMT_YUV420P, isSameSize ? SWS_POINT : SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!m_context)
        return false;
    constexpr int Neutral = 1 << 16;
    const int matrix =
        m_colours == PlaneColours::Own ? colourMatrixOf(from) : static_cast<int>(SWS_CS_ITU709);
    sws_setColorspaceDetails(m_context.get(), sws_getCoefficients(colourMatrixOf(from)),
                             hasFullRange(from) ? 1 : 0, sws_getCoefficients(matrix), 0, 0, Neutral,
                             Neutral);
    return true;
}

bool PlaneScaler::scale(const AVFrame& from, AVFrame& to) {
    if (from.width <= 0 || from.height <= 0 || !prepare(from, to))
        return false;
    return sws_scale(m_context.get(), from.data, from.linesize, 0, from.height, to.data,
                     to.linesize) > 0;
}

AvOwner<AVFrame> newPlanes(VideoSize size) {
    AvOwner<AVFrame> planes(av_frame_alloc());
    if (!planes)
        throw std::bad_alloc();
    planes->format = AV_PIX_FMT_YUV420P;
    planes->width = size.width;
    planes->height = size.height;
    if (av_frame_get_buffer(planes.get(), 0) < 0)
        throw std::bad_alloc();
    return planes;
}

} // namespace kavela
