#pragma once

#include "video/index.h"
#include "video/picture.h"
#include "video/video_frame.h"
#include "vision/slit_line.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace kavela {

/// Takes the pixels along a line out of decoded frames. Only what stands on the line is converted,
/// so that a film is hardly read slower than it is decoded.
class LineSampler {
public:
    /// `height` pixels along each line, at least 1.
    LineSampler(const VideoFacts& facts, const SlitLine& line, int height);
    ~LineSampler();
    LineSampler(LineSampler&&) noexcept;
    LineSampler& operator=(LineSampler&&) = delete;

    [[nodiscard]] int height() const { return m_height; }
    /// The column of a frame from the first end of the line on, in the bytes of a Picture: blue in
    /// the lowest. Black for a frame in a format that cannot be read.
    [[nodiscard]] const std::vector<std::uint32_t>& column(const AVFrame& frame);

private:
    struct Place {
        double x = 0; ///< as shares of the stored picture
        double y = 0;
    };
    void sampleColours(const AVFrame& frame);
    void samplePicture(const AVFrame& frame);

    int m_height;
    int m_perPixel; ///< places whose mean is one pixel
    std::vector<Place> m_stored;
    std::vector<Place> m_upright; ///< the same in the upright picture
    std::vector<std::uint32_t> m_column;
    VideoFacts m_facts;
    std::unique_ptr<PictureMaker> m_maker; ///< for formats that are not read directly
};

} // namespace kavela
