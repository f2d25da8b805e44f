#pragma once

#include "compose/caption_plan.h"
#include "compose/layout.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

struct AVFrame;

namespace kavela {

/// A picture to be laid over films, in the terms of their planes, so that laying it costs little.
/// It never changes once it is made.
class Overlay {
public:
    /// From rows of four bytes a pixel, blue, green, red and opacity, the colours multiplied with
    /// it. Width and height are even.
    Overlay(VideoSize size, const std::uint8_t* pixels, std::ptrdiff_t bytesPerLine);

    [[nodiscard]] VideoSize size() const { return m_size; }
    /// Lays it over planes with its corner at an even place; what lies beyond them is left out.
    void layOver(AVFrame& planes, int x, int y) const;

private:
    struct Plane {
        int width = 0;
        int height = 0;
        std::vector<std::uint8_t> shades; ///< multiplied with the opacity
        std::vector<std::uint8_t> rest;   ///< what is seen of the picture below, 255 is all
    };
    static void layPlane(const Plane& plane, AVFrame& planes, int number, int x, int y);

    VideoSize m_size;
    Plane m_brightness;
    Plane m_blue;
    Plane m_red;
};

/// An overlay and where its corner stands, even.
struct PlacedOverlay {
    std::shared_ptr<const Overlay> overlay;
    int x = 0;
    int y = 0;
};

/// What is to be written on a composed picture.
struct CaptionScene {
    VideoSize size; ///< of the whole picture
    std::span<const FilmPlace> places;
    std::vector<Caption> captions;
    std::span<const GapLine> gaps; ///< of the second film on; empty where no chart is wanted
    double common = 0;             ///< moment of common time
    double from = 0;               ///< the stretch of common time that the chart shows
    double to = 0;
};

/// Paints captions. Used from one thread at a time.
class CaptionPainter {
public:
    CaptionPainter() = default;
    CaptionPainter(const CaptionPainter&) = delete;
    CaptionPainter& operator=(const CaptionPainter&) = delete;
    virtual ~CaptionPainter() = default;

    [[nodiscard]] virtual std::vector<PlacedOverlay> paint(const CaptionScene& scene) = 0;
};

} // namespace kavela
