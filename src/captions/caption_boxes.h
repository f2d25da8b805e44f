#pragma once

#include "compose/overlay.h"

#include <QColor>
#include <QImage>

#include <string>

/// The pictures that captions are made of.
namespace kavela {

/// A text in a box of its own.
struct CaptionBox {
    CaptionKind kind = CaptionKind::Names;
    std::string text;
    int pixels = 30;      ///< height of a line of text
    int widest = 0;       ///< longer texts are cut with an ellipsis
    std::size_t film = 0; ///< its colour stands beside the names
};

/// The colour by which a film is known beside names and in the chart.
[[nodiscard]] QColor colourOfFilm(std::size_t film);

/// The box, of an even size; no wider than asked for.
[[nodiscard]] QImage captionBoxImage(const CaptionBox& box);

/// The chart of the gaps up to a column: lines dashed between the splits where they are known,
/// which have a dot, the last known gap beside it.
struct GapChartLook {
    VideoSize size;
    int column = 0; ///< pixels that are over already
};
[[nodiscard]] QImage gapChartImage(const CaptionScene& scene, const GapChartLook& look);

/// An image as it is laid over films.
[[nodiscard]] std::shared_ptr<const Overlay> overlayOf(const QImage& image);

} // namespace kavela
