#include "films/yuv_picture.h"

#include <QImage>

#include <algorithm>
#include <array>

namespace kavela::films {

namespace {

constexpr int Opaque = 255;

/// The sum of some premultiplied pixels.
struct Ink {
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 0;

    void add(QRgb pixel) {
        red += qRed(pixel);
        green += qGreen(pixel);
        blue += qBlue(pixel);
        alpha += qAlpha(pixel);
    }
};

// The integer form of the matrix of ITU-R BT.601, for colours from 16 to 235. Each takes the sum
// of `Count` pixels, and lays it over what was there.
template <int Count>
std::uint8_t over(int weighted, int offset, const Ink& ink, std::uint8_t below) {
    constexpr int Unit = 256;
    constexpr int Full = Count * Opaque;
    const int colour = weighted / (Unit * Count) + offset * ink.alpha / Full;
    return static_cast<std::uint8_t>(
        std::clamp(colour + below * (Full - ink.alpha) / Full, 0, 255));
}

std::uint8_t brightnessOver(const Ink& ink, std::uint8_t below) {
    return over<1>(66 * ink.red + 129 * ink.green + 25 * ink.blue, 16, ink, below);
}

std::uint8_t bluenessOver(const Ink& ink, std::uint8_t below) {
    return over<4>(-38 * ink.red - 74 * ink.green + 112 * ink.blue, 128, ink, below);
}

std::uint8_t rednessOver(const Ink& ink, std::uint8_t below) {
    return over<4>(112 * ink.red - 94 * ink.green - 18 * ink.blue, 128, ink, below);
}

/// Those beyond the edge of the image are transparent.
std::array<QRgb, 4> blockOf(const QRgb* line, const QRgb* nextLine, int x, int width) {
    const bool isInside = x + 1 < width;
    return {line[x], isInside ? line[x + 1] : 0, nextLine != nullptr ? nextLine[x] : 0,
            nextLine != nullptr && isInside ? nextLine[x + 1] : 0};
}

} // namespace

YuvPicture::YuvPicture(int width, int height)
    : m_width(width),
      m_height(height),
      m_y(at(height, width), 16),
      m_u(at(colourHeight(), colourWidth()), 128),
      m_v(m_u) {}

void YuvPicture::fill(Box box, Shade shade) {
    const int left = std::clamp(box.x, 0, m_width);
    const int right = std::clamp(box.x + box.width, left, m_width);
    const int top = std::clamp(box.y, 0, m_height);
    const int bottom = std::clamp(box.y + box.height, top, m_height);
    for (int y = top; y < bottom; ++y) {
        std::fill(yLine(y) + left, yLine(y) + right, shade.y);
        std::fill(uLine(y / 2) + left / 2, uLine(y / 2) + (right + 1) / 2, shade.u);
        std::fill(vLine(y / 2) + left / 2, vLine(y / 2) + (right + 1) / 2, shade.v);
    }
}

void YuvPicture::blend(const QImage& image, int x, int y) {
    const auto* const bits = reinterpret_cast<const QRgb*>(image.constBits());
    const auto perLine = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    const int width = image.width();
    const int height = image.height();
    const int firstRow = std::max(0, -y);
    const int firstColumn = std::max(0, -x);
    for (int row = firstRow; row < std::min(height, m_height - y); row += 2) {
        const QRgb* const line = bits + row * perLine;
        const QRgb* const nextLine = row + 1 < height ? line + perLine : nullptr;
        for (int column = firstColumn; column < std::min(width, m_width - x); column += 2) {
            const auto block = blockOf(line, nextLine, column, width);
            if ((block[0] | block[1] | block[2] | block[3]) != 0)
                blendBlock(block, x + column, y + row);
        }
    }
}

void YuvPicture::blendBlock(const std::array<std::uint32_t, 4>& pixels, int x, int y) {
    Ink sum;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const int row = y + static_cast<int>(i / 2);
        const int column = x + static_cast<int>(i % 2);
        Ink ink;
        ink.add(pixels[i]);
        sum.add(pixels[i]);
        if (row < m_height && column < m_width) {
            std::uint8_t& below = yLine(row)[column];
            below = brightnessOver(ink, below);
        }
    }
    std::uint8_t& u = uLine(y / 2)[x / 2];
    std::uint8_t& v = vLine(y / 2)[x / 2];
    u = bluenessOver(sum, u);
    v = rednessOver(sum, v);
}

void YuvPicture::copy(const YuvPicture& picture, int x, int y) {
    for (int row = 0; row < picture.height(); ++row)
        std::copy_n(picture.yLine(row), picture.width(), yLine(y + row) + x);
    for (int row = 0; row < picture.colourHeight(); ++row) {
        std::copy_n(picture.uLine(row), picture.colourWidth(), uLine(y / 2 + row) + x / 2);
        std::copy_n(picture.vLine(row), picture.colourWidth(), vLine(y / 2 + row) + x / 2);
    }
}

YuvPicture yuvPictureOf(const QImage& image) {
    YuvPicture picture(image.width(), image.height());
    picture.blend(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), 0, 0);
    return picture;
}

} // namespace kavela::films
