#include "desktop/race/cell_colours.h"

namespace kavela::desktop {

namespace {

QColor qtColour(const Colour& colour) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(colour.alpha));
}

} // namespace

std::optional<QColor> bandTint(Band band, ColourScale scale) {
    const auto colour = bandColour(band, scale);
    return colour ? std::optional(qtColour(*colour)) : std::nullopt;
}

QColor fadedTint(const QColor& tint) {
    return qtColour(faded({tint.redF(), tint.greenF(), tint.blueF(), tint.alphaF()}));
}

QColor raceText(const Colour& colour, ColourScale scale, bool isDark) {
    const bool isBest = colour == NamedGreen;
    if (scale == ColourScale::BlueOrange)
        return isBest ? (isDark ? QColor(0x6C, 0xB6, 0xF0) : QColor(0x1B, 0x62, 0xA5))
                      : (isDark ? QColor(0xF2, 0xA3, 0x4E) : QColor(0xB3, 0x5A, 0x00));
    return isBest ? (isDark ? QColor(0x4C, 0xD9, 0x7B) : QColor(0x0B, 0x84, 0x3A))
                  : (isDark ? QColor(0xFF, 0x7B, 0x72) : QColor(0xC9, 0x2A, 0x2A));
}

} // namespace kavela::desktop
