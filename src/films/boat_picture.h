#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

#include <array>
#include <string>

namespace kavela::films {

/// What tells one boat from another on the water.
struct BoatLook {
    int athletes = 1;
    bool hasDoubleBlade = true; ///< a kayak's paddle
    bool paddlesRight = true;   ///< with a single blade; the second of two on the other side
    QColor deck;
};

/// The look of a category's boat. Athletes have colours of their own.
[[nodiscard]] BoatLook boatLook(const std::string& category, const std::string& hand,
                                const std::string& crew);

/// An image and where its upper left corner goes, at even pixels.
struct Sprite {
    QImage image;
    int x = 0;
    int y = 0;
};

/// The boat with its bow and heading on the picture; `stroke` goes from 0 to 1 for each pair of
/// strokes.
[[nodiscard]] Sprite boatSprite(const BoatLook& look, QPointF bow, QPointF heading, double stroke);

/// A pole from above: green for a downstream gate, red for an upstream one.
[[nodiscard]] Sprite poleSprite(QPointF centre, bool isUpstream);

/// Poles that hang still, painted once.
class PoleImages {
public:
    PoleImages();
    /// The pole at a pixel.
    [[nodiscard]] Sprite at(int x, int y, bool isUpstream) const;

private:
    static std::size_t index(int oddX, int oddY, bool isUpstream) {
        return static_cast<std::size_t>(oddX + 2 * oddY + (isUpstream ? 4 : 0));
    }
    std::array<QImage, 8> m_images; ///< by where they lie on an even pixel, and kind
};

} // namespace kavela::films
