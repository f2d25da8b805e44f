#pragma once

#include <QColor>
#include <QFont>
#include <QFrame>
#include <QPalette>
#include <QWidget>

/// One scale of spacing and type for every window.
namespace kavela::desktop::theme {

// Pixels.
inline constexpr int SmallSpacing = 4;
inline constexpr int Spacing = 8;
inline constexpr int LargeSpacing = 16;
inline constexpr int PageMargin = 32;

/// The accent of the house: the blue-green of white water.
inline constexpr QColor Accent{0x0E, 0x7C, 0x86};

[[nodiscard]] QFont headlineFont(const QWidget& widget); ///< one per window
[[nodiscard]] QFont titleFont(const QWidget& widget);    ///< of a group
[[nodiscard]] QFont captionFont(const QWidget& widget);  ///< what explains

/// Whether a palette is a dark one.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Text that explains, quieter than the text it stands beside.
[[nodiscard]] QColor quietText(const QPalette& palette);

/// A hairline or the edge of a tile.
[[nodiscard]] QColor hairline(const QPalette& palette);

/// The edge of a box to tick, seen on a window and on a list alike.
[[nodiscard]] QColor boxEdge(const QPalette& palette);

/// A surface that stands out a little from the window.
[[nodiscard]] QColor surface(const QPalette& palette);

/// Gives a window without a title bar an edge to stand out by; its content goes into what is
/// returned.
[[nodiscard]] QFrame* floatingFrame(QWidget& window);

/// A palette of our own where the platform offers no dark scheme.
[[nodiscard]] QPalette darkPalette();
[[nodiscard]] QPalette lightPalette();

} // namespace kavela::desktop::theme
