#include "vision/line_sampler.h"

#include "video/av_handles.h"
#include "video/frame_colours.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace kavela {

namespace {

constexpr std::uint32_t Opaque = 0xFF000000U;

/// The planes of brightness and colour of a frame, each read between its samples.
class SampledPlane {
public:
    SampledPlane(const AVFrame& frame, const AVPixFmtDescriptor& format, int component)
        : m_part(format.comp[component]), m_data(frame.data[m_part.plane]) {
        const bool isColour = component > 0;
        m_lineBytes = frame.linesize[m_part.plane];
        m_width = isColour ? AV_CEIL_RSHIFT(frame.width, format.log2_chroma_w) : frame.width;
        m_height = isColour ? AV_CEIL_RSHIFT(frame.height, format.log2_chroma_h) : frame.height;
        m_scale = 1.0 / static_cast<double>(1U << static_cast<unsigned>(m_part.depth - 8));
    }

    /// At shares of width and height; in steps of 8 bits.
    [[nodiscard]] double at(double x, double y) const {
        const double column = x * m_width - 0.5;
        const double row = y * m_height - 0.5;
        const double left = std::floor(column);
        const double top = std::floor(row);
        const double byX = column - left;
        const double byY = row - top;
        const int x0 = static_cast<int>(left);
        const int y0 = static_cast<int>(top);
        const double upper = raw(x0, y0) * (1 - byX) + raw(x0 + 1, y0) * byX;
        const double lower = raw(x0, y0 + 1) * (1 - byX) + raw(x0 + 1, y0 + 1) * byX;
        return (upper * (1 - byY) + lower * byY) * m_scale;
    }

private:
    [[nodiscard]] double raw(int x, int y) const {
        const std::uint8_t* const at =
            m_data + std::ptrdiff_t{std::clamp(y, 0, m_height - 1)} * m_lineBytes +
            std::ptrdiff_t{std::clamp(x, 0, m_width - 1)} * m_part.step + m_part.offset;
        if (m_part.depth <= 8)
            return *at;
        std::uint16_t value = 0;
        std::memcpy(&value, at, sizeof value);
        return value >> m_part.shift;
    }

    AVComponentDescriptor m_part;
    const std::uint8_t* m_data;
    std::ptrdiff_t m_lineBytes = 0;
    int m_width = 0;
    int m_height = 0;
    double m_scale = 1;
};

/// Whether the planes of a format can be read as brightness and two colours.
bool hasReadablePlanes(const AVPixFmtDescriptor* format) {
    constexpr std::uint64_t Others = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL |
                                     AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BITSTREAM |
                                     AV_PIX_FMT_FLAG_BE | AV_PIX_FMT_FLAG_FLOAT;
    return format != nullptr && (format->flags & Others) == 0 && format->nb_components >= 3 &&
           format->comp[0].depth >= 8 && format->comp[0].depth <= 16;
}

/// From brightness and colours to red, green and blue.
struct ColourMatrix {
    double scale = 1;
    double black = 0;
    double redOfV = 0;
    double greenOfU = 0;
    double greenOfV = 0;
    double blueOfU = 0;

    explicit ColourMatrix(const AVFrame& frame) {
        constexpr double Unit = 65536;
        const int* const parts = sws_getCoefficients(colourMatrixOf(frame));
        const bool isFull = hasFullRange(frame);
        const double share = isFull ? 224.0 / 255 : 1; // the parts are those of a limited range
        scale = isFull ? 1 : 255.0 / 219;
        black = isFull ? 0 : 16;
        redOfV = parts[0] / Unit * share;
        blueOfU = parts[1] / Unit * share;
        greenOfU = parts[2] / Unit * share;
        greenOfV = parts[3] / Unit * share;
    }

    [[nodiscard]] std::uint32_t pixel(double y, double u, double v) const {
        constexpr double Middle = 128;
        const auto byte = [](double value) {
            return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 255.0)));
        };
        const double light = (y - black) * scale;
        const double blue = u - Middle;
        const double red = v - Middle;
        return Opaque | byte(light + redOfV * red) << 16U |
               byte(light - greenOfU * blue - greenOfV * red) << 8U | byte(light + blueOfU * blue);
    }
};

/// Where a place of the upright picture is stored, both as shares of the picture.
std::pair<double, double> storedPlace(double x, double y, int rotation) {
    switch (rotation) {
    case 90:
        return {y, 1 - x};
    case 180:
        return {1 - x, 1 - y};
    case 270:
        return {1 - y, x};
    default:
        return {x, y};
    }
}

} // namespace

LineSampler::LineSampler(const VideoFacts& facts, const SlitLine& line, int height)
    : m_height(std::max(height, 1)),
      m_perPixel(std::max(1, static_cast<int>(std::lround(lengthOf(line) / m_height)))),
      m_column(static_cast<std::size_t>(m_height), Opaque),
      m_facts(facts) {
    const int places = m_height * m_perPixel;
    for (int i = 0; i < places; ++i) {
        const double along = (i + 0.5) / places;
        const Place upright{
            (line.first.x + along * (line.second.x - line.first.x)) / facts.shownSize.width,
            (line.first.y + along * (line.second.y - line.first.y)) / facts.shownSize.height};
        const auto [x, y] = storedPlace(upright.x, upright.y, facts.rotation);
        m_upright.push_back(upright);
        m_stored.push_back({x, y});
    }
}

LineSampler::~LineSampler() = default;
LineSampler::LineSampler(LineSampler&&) noexcept = default;

const std::vector<std::uint32_t>& LineSampler::column(const AVFrame& frame) {
    const auto* const format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if (hasReadablePlanes(format))
        sampleColours(frame);
    else
        samplePicture(frame);
    return m_column;
}

void LineSampler::sampleColours(const AVFrame& frame) {
    const auto& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const std::array<SampledPlane, 3> planes{SampledPlane(frame, format, 0),
                                             SampledPlane(frame, format, 1),
                                             SampledPlane(frame, format, 2)};
    const ColourMatrix matrix(frame);
    std::size_t place = 0;
    for (std::uint32_t& pixel : m_column) {
        std::array<double, 3> sums{};
        for (int i = 0; i < m_perPixel; ++i, ++place)
            for (std::size_t plane = 0; plane < planes.size(); ++plane)
                sums[plane] += planes[plane].at(m_stored[place].x, m_stored[place].y);
        pixel = matrix.pixel(sums[0] / m_perPixel, sums[1] / m_perPixel, sums[2] / m_perPixel);
    }
}

/// Grey, palettes and red, green and blue: seldom, so that the whole picture is made of them.
void LineSampler::samplePicture(const AVFrame& frame) {
    if (!m_maker)
        m_maker = std::make_unique<PictureMaker>(m_facts);
    const auto picture = m_maker->make(frame);
    if (!picture) {
        std::ranges::fill(m_column, Opaque);
        return;
    }
    std::size_t place = 0;
    for (std::uint32_t& pixel : m_column) {
        std::array<int, 3> sums{};
        for (int i = 0; i < m_perPixel; ++i, ++place) {
            const auto x = std::clamp(static_cast<int>(m_upright[place].x * picture->width), 0,
                                      picture->width - 1);
            const auto y = std::clamp(static_cast<int>(m_upright[place].y * picture->height), 0,
                                      picture->height - 1);
            const std::uint8_t* const at =
                picture->pixels.get() + y * picture->bytesPerLine + std::ptrdiff_t{x} * 4;
            for (std::size_t part = 0; part < sums.size(); ++part)
                sums[part] += at[part];
        }
        const auto byte = [&](std::size_t part) {
            return static_cast<std::uint32_t>(sums[part] / m_perPixel);
        };
        pixel = Opaque | byte(2) << 16U | byte(1) << 8U | byte(0);
    }
}

} // namespace kavela
