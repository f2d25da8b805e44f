#pragma once

#include "video/index.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kavela {

/// A picture for the screen: four bytes a pixel, blue, green, red and 255, the rows from the top.
/// Copies share the pixels.
struct Picture {
    int width = 0;
    int height = 0;
    std::ptrdiff_t bytesPerLine = 0;
    std::shared_ptr<const std::uint8_t[]> pixels;
};

/// Turns decoded frames into pictures. Used from one thread at a time; keeps what successive
/// frames have in common.
class PictureMaker {
public:
    /// For the frames of this film: its turn and the shape of its pixels count.
    explicit PictureMaker(const VideoFacts& facts);
    ~PictureMaker();
    PictureMaker(const PictureMaker&) = delete;
    PictureMaker& operator=(const PictureMaker&) = delete;

    /// The frame upright, with square pixels, as large as fits into the box; in its own size for
    /// an empty box. Colours follow the matrix and range that the frame names, otherwise those
    /// usual for its size. Null for a frame in a format that cannot be converted.
    [[nodiscard]] std::shared_ptr<const Picture> make(const AVFrame& frame, VideoSize box = {});

private:
    struct Scaler;
    [[nodiscard]] bool prepare(const AVFrame& frame, VideoSize size);

    int m_rotation = 0;
    PixelAspect m_aspect; ///< of the container, before that of the frames
    std::unique_ptr<Scaler> m_scaler;
};

/// The largest size of the same shape that fits into the box, at least 1 × 1.
[[nodiscard]] VideoSize fitInto(VideoSize size, VideoSize box);

} // namespace kavela
