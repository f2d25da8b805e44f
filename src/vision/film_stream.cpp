#include "vision/film_stream.h"

#include "video/video_error.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr std::size_t FilmStreamCache = std::size_t{48} << 20;

bool isPlainPlanes(const AVFrame& frame) {
    return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

/// Brightness of two by two pixels in one; colour is stored so already.
HalfPlanes halved(const AVFrame& frame) {
    HalfPlanes half(frame.width / 2, frame.height / 2);
    for (int y = 0; y < half.height; ++y) {
        const std::uint8_t* const upper = frame.data[0] + std::ptrdiff_t{2} * y * frame.linesize[0];
        const std::uint8_t* const lower = upper + frame.linesize[0];
        std::uint8_t* const out = half.luma.data() + half.at(0, y);
        for (int x = 0; x < half.width; ++x)
            out[x] = static_cast<std::uint8_t>(
                (upper[2 * x] + upper[2 * x + 1] + lower[2 * x] + lower[2 * x + 1] + 2) / 4);
        const auto at = std::ptrdiff_t(half.at(0, y));
        std::copy_n(frame.data[1] + std::ptrdiff_t{y} * frame.linesize[1], half.width,
                    half.blue.begin() + at);
        std::copy_n(frame.data[2] + std::ptrdiff_t{y} * frame.linesize[2], half.width,
                    half.red.begin() + at);
    }
    return half;
}

bool liesSideways(const VideoFacts& facts) {
    return facts.rotation == 90 || facts.rotation == 270;
}

/// How many stored pixels one of the upright picture is, in the stored picture's directions.
SlitPoint storedScale(const VideoFacts& facts) {
    const double wide = liesSideways(facts) ? facts.shownSize.height : facts.shownSize.width;
    const double high = liesSideways(facts) ? facts.shownSize.width : facts.shownSize.height;
    return {facts.storedSize.width / wide, facts.storedSize.height / high};
}

} // namespace

FilmStream::FilmStream(std::shared_ptr<const VideoIndex> index)
    : m_index(std::move(index)),
      m_source(
          std::make_unique<FrameSource>(m_index, std::make_shared<FrameCache>(FilmStreamCache))) {}

std::optional<HalfPlanes> FilmStream::picture(FrameNumber number, const std::stop_token& stop) {
    if (m_endedEarly)
        return std::nullopt;
    FrameSource::Result result;
    try {
        result = m_source->frame(number, [&] { return stop.stop_requested(); });
    } catch (const VideoError&) {
        m_endedEarly = true; // what came so far counts
        return std::nullopt;
    }
    if (result.outcome != FrameSource::Outcome::Found)
        return std::nullopt;
    const AVFrame& samples = *result.frame.samples;
    const VideoSize stored = m_index->facts().storedSize;
    if (isPlainPlanes(samples) && samples.width == stored.width && samples.height == stored.height)
        return halved(samples);
    if (!m_planes)
        m_planes =
            newPlanes({std::max(stored.width / 2 * 2, 2), std::max(stored.height / 2 * 2, 2)});
    if (!m_scaler.scale(samples, *m_planes))
        return std::nullopt;
    return halved(*m_planes);
}

SlitPoint storedHalfPoint(const SlitPoint& point, const VideoFacts& facts) {
    const double right = facts.shownSize.width - point.x;
    const double below = facts.shownSize.height - point.y;
    SlitPoint lying = point;
    if (facts.rotation == 90)
        lying = {point.y, right};
    else if (facts.rotation == 180)
        lying = {right, below};
    else if (facts.rotation == 270)
        lying = {below, point.x};
    const SlitPoint scale = storedScale(facts);
    return {lying.x * scale.x / 2 - 0.5, lying.y * scale.y / 2 - 0.5};
}

BoatBox storedHalfBox(const BoatBox& box, const VideoFacts& facts) {
    const SlitPoint scale = storedScale(facts);
    const double width = liesSideways(facts) ? box.height : box.width;
    const double height = liesSideways(facts) ? box.width : box.height;
    return {0, 0, width * scale.x / 2, height * scale.y / 2};
}

} // namespace kavela
