#include "video/picture.h"

#include "video/av_handles.h"
#include "video/frame_colours.h"
#include "video/video_facts.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace kavela {

namespace {

constexpr std::ptrdiff_t BytesPerPixel = 4;
/// The converter writes whole vectors, past the end of a row that is no multiple of them.
constexpr std::ptrdiff_t LineAlignment = 64;

struct Pixels {
    VideoSize size;
    std::ptrdiff_t bytesPerLine = 0;
    std::shared_ptr<std::uint8_t[]> data;

    explicit Pixels(VideoSize wanted)
        : size(wanted),
          bytesPerLine((wanted.width * BytesPerPixel + LineAlignment - 1) / LineAlignment *
                       LineAlignment),
          data(std::make_shared_for_overwrite<std::uint8_t[]>(
              static_cast<std::size_t>(bytesPerLine * wanted.height + LineAlignment))) {}

    [[nodiscard]] std::uint32_t* line(int y) const {
        return reinterpret_cast<std::uint32_t*>(data.get() + y * bytesPerLine);
    }
};

/// Turns tile by tile: a tile's lines and columns both stay in the processor's cache.
Pixels turned(const Pixels& from, int rotation) {
    constexpr int Tile = 32;
    const VideoSize size = from.size;
    const bool isSideways = rotation == 90 || rotation == 270;
    Pixels to(isSideways ? VideoSize{size.height, size.width} : size);
    const auto source = [&](int x, int y) {
        if (rotation == 90)
            return from.line(size.height - 1 - x)[y];
        if (rotation == 270)
            return from.line(x)[size.width - 1 - y];
        return from.line(size.height - 1 - y)[size.width - 1 - x];
    };
    for (int top = 0; top < to.size.height; top += Tile)
        for (int left = 0; left < to.size.width; left += Tile)
            for (int y = top; y < std::min(top + Tile, to.size.height); ++y)
                for (int x = left; x < std::min(left + Tile, to.size.width); ++x)
                    to.line(y)[x] = source(x, y);
    return to;
}

} // namespace

VideoSize fitInto(VideoSize size, VideoSize box) {
    if (box.width <= 0 || box.height <= 0 || size.width <= 0 || size.height <= 0)
        return {std::max(size.width, 1), std::max(size.height, 1)};
    const std::int64_t byWidth = std::int64_t{box.width} * size.height;
    const std::int64_t byHeight = std::int64_t{box.height} * size.width;
    VideoSize fitting = box;
    if (byWidth <= byHeight)
        fitting.height = static_cast<int>(av_rescale(box.width, size.height, size.width));
    else
        fitting.width = static_cast<int>(av_rescale(box.height, size.width, size.height));
    return {std::clamp(fitting.width, 1, box.width), std::clamp(fitting.height, 1, box.height)};
}

struct PictureMaker::Scaler {
    using Kind = std::tuple<int, int, int, int, int, int, bool>;
    Kind kind;
    AvOwner<SwsContext> context;
};

PictureMaker::PictureMaker(const VideoFacts& facts)
    : m_rotation(facts.rotation),
      m_aspect(facts.pixelAspect),
      m_scaler(std::make_unique<Scaler>()) {}

PictureMaker::~PictureMaker() = default;

bool PictureMaker::prepare(const AVFrame& frame, VideoSize size) {
    const Scaler::Kind kind(frame.width, frame.height, frame.format, size.width, size.height,
                            colourMatrixOf(frame), hasFullRange(frame));
    if (m_scaler->context && m_scaler->kind == kind)
        return true;
    m_scaler->kind = kind;
    m_scaler->context.reset(sws_getContext(
        frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), size.width,
        size.height, AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!m_scaler->context)
        return false;
    constexpr int Neutral = 1 << 16;
    // Refused for what is in red, green and blue already, and not needed there.
    sws_setColorspaceDetails(m_scaler->context.get(), sws_getCoefficients(colourMatrixOf(frame)),
                             hasFullRange(frame) ? 1 : 0, sws_getCoefficients(SWS_CS_DEFAULT), 1, 0,
                             Neutral, Neutral);
    return true;
}

std::shared_ptr<const Picture> PictureMaker::make(const AVFrame& frame, VideoSize box) {
    if (frame.width <= 0 || frame.height <= 0)
        return nullptr;
    const PixelAspect aspect = m_aspect.num > 0 ? m_aspect
                                                : PixelAspect{frame.sample_aspect_ratio.num,
                                                              frame.sample_aspect_ratio.den};
    const VideoSize upright =
        fitInto(shownSize({frame.width, frame.height}, aspect, m_rotation), box);
    const bool isSideways = m_rotation == 90 || m_rotation == 270;
    const VideoSize lying = isSideways ? VideoSize{upright.height, upright.width} : upright;
    if (!prepare(frame, lying))
        return nullptr;
    Pixels pixels(lying);
    const std::array<std::uint8_t*, 4> planes = {pixels.data.get()};
    const std::array<int, 4> lines = {static_cast<int>(pixels.bytesPerLine)};
    if (sws_scale(m_scaler->context.get(), frame.data, frame.linesize, 0, frame.height,
                  planes.data(), lines.data()) <= 0)
        return nullptr;
    if (m_rotation != 0)
        pixels = turned(pixels, m_rotation);
    return std::make_shared<const Picture>(
        Picture{pixels.size.width, pixels.size.height, pixels.bytesPerLine, pixels.data});
}

} // namespace kavela
