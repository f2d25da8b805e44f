#include "vision/film_planes.h"

#include "video/frame_colours.h"
#include "video/writing/turned_planes.h"

#include <cstddef>
#include <utility>

namespace kavela {

namespace {

/// Some pictures of the largest films: going back decodes a stretch at a time.
constexpr std::size_t FilmPlanesCacheBytes = std::size_t{256} << 20;

} // namespace

FilmPlanes::FilmPlanes(std::shared_ptr<const VideoIndex> index)
    : FilmPlanes(std::move(index), std::make_shared<FrameCache>(FilmPlanesCacheBytes)) {}

FilmPlanes::FilmPlanes(std::shared_ptr<const VideoIndex> index, std::shared_ptr<FrameCache> cache)
    : m_source(std::move(index), std::move(cache)) {
    const VideoSize shown = m_source.index().facts().shownSize;
    m_size = {shown.width / 2 * 2, shown.height / 2 * 2};
}

std::shared_ptr<const AVFrame> FilmPlanes::at(FrameNumber frame,
                                              const std::function<bool()>& interrupt) {
    constexpr int HalfTurn = 180;
    const FrameSource::Result result = m_source.frame(frame, interrupt);
    if (result.outcome != FrameSource::Outcome::Found)
        return nullptr;
    const int rotation = index().facts().rotation;
    // Most films have such planes, and a copy of each would cost as much as following does.
    const AVFrame& decoded = *result.frame.samples;
    if (rotation == 0 && decoded.format == AV_PIX_FMT_YUV420P && !hasFullRange(decoded) &&
        decoded.width == m_size.width && decoded.height == m_size.height)
        return result.frame.samples;
    const bool isSideways = rotation % HalfTurn != 0;
    AvOwner<AVFrame> planes =
        newPlanes(isSideways ? VideoSize{m_size.height, m_size.width} : m_size);
    if (!m_scaler.scale(decoded, *planes))
        return nullptr;
    if (rotation != 0)
        planes = turnedPlanes(*planes, rotation);
    return {planes.release(), AvDeleter()};
}

} // namespace kavela
