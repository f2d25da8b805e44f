#pragma once

class QWidget;

/// Pixels that hold text: chosen by eye for the usual font of 10 points, and more where the system
/// asks for a larger one.
namespace kavela::desktop {

/// How much higher the font of a widget is than it is at 10 points; 1 for any smaller font.
[[nodiscard]] double growthOf(const QWidget& widget);

/// Pixels of the usual font in the font of a widget; never fewer.
[[nodiscard]] int grown(const QWidget& widget, int pixels);

} // namespace kavela::desktop
