#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

class QImage;

namespace kavela::films {

/// The size of all films of the season, in pixels.
inline constexpr int FilmWidth = 480;
inline constexpr int FilmHeight = 270;

/// A shade in the terms of the encoder: brightness from 16 to 235, two colour differences around
/// 128.
struct Shade {
    std::uint8_t y = 16;
    std::uint8_t u = 128;
    std::uint8_t v = 128;
};

/// A place in a picture, in whole pixels.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// A picture as encoders take it: brightness for every pixel, colour for every two by two. What is
/// drawn beyond its edges is left out.
class YuvPicture {
public:
    YuvPicture(int width, int height);

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] int colourWidth() const { return (m_width + 1) / 2; }
    [[nodiscard]] int colourHeight() const { return (m_height + 1) / 2; }

    [[nodiscard]] std::uint8_t* yLine(int line) { return &m_y[at(line, m_width)]; }
    [[nodiscard]] std::uint8_t* uLine(int line) { return &m_u[at(line, colourWidth())]; }
    [[nodiscard]] std::uint8_t* vLine(int line) { return &m_v[at(line, colourWidth())]; }
    [[nodiscard]] const std::uint8_t* yLine(int line) const { return &m_y[at(line, m_width)]; }
    [[nodiscard]] const std::uint8_t* uLine(int line) const {
        return &m_u[at(line, colourWidth())];
    }
    [[nodiscard]] const std::uint8_t* vLine(int line) const {
        return &m_v[at(line, colourWidth())];
    }

    /// Fills a place; colours are exact where its edges are even.
    void fill(Box box, Shade shade);

    /// Lays an image of premultiplied colours over the picture, its corner at an even place.
    void blend(const QImage& image, int x, int y);

    /// Copies a picture of even size to an even place within this one.
    void copy(const YuvPicture& picture, int x, int y);

private:
    static std::size_t at(int line, int width) {
        return static_cast<std::size_t>(line) * static_cast<std::size_t>(width);
    }
    /// Two by two premultiplied pixels.
    void blendBlock(const std::array<std::uint32_t, 4>& pixels, int x, int y);

    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_y;
    std::vector<std::uint8_t> m_u;
    std::vector<std::uint8_t> m_v;
};

/// The picture of an opaque image.
[[nodiscard]] YuvPicture yuvPictureOf(const QImage& image);

} // namespace kavela::films
