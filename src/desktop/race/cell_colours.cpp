#include "desktop/race/cell_colours.h"

namespace kavela::desktop {

namespace {

// From the fastest to the slowest; steps of a diverging scale that stays apart in lightness for
// every common kind of colour blindness.
constexpr std::array BlueOrangeTints{
    QColor(0x2F, 0x7B, 0xC4), QColor(0x5F, 0xA3, 0xDB), QColor(0x92, 0xC2, 0xE8),
    QColor(0xB9, 0xD8, 0xF0), QColor(0xDC, 0xEB, 0xF7), QColor(0xFF, 0xFF, 0xFF),
    QColor(0xFF, 0xFF, 0xFF), QColor(0xFD, 0xEA, 0xD3), QColor(0xFB, 0xD0, 0xA0),
    QColor(0xF5, 0xB0, 0x65), QColor(0xE6, 0x85, 0x1C), QColor(0xD0, 0x6A, 0x00)};

QColor qtColour(const Colour& colour) {
    return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                            static_cast<float>(colour.blue), static_cast<float>(colour.alpha));
}

} // namespace

std::optional<QColor> bandTint(Band band, bool blueOrange) {
    if (blueOrange && band >= Band::Fastest && band <= Band::Slowest)
        return BlueOrangeTints[static_cast<std::size_t>(band) -
                               static_cast<std::size_t>(Band::Fastest)];
    const auto colour = bandColour(band);
    return colour ? std::optional(qtColour(*colour)) : std::nullopt;
}

QColor raceText(const Colour& colour, bool blueOrange, bool isDark) {
    const bool isBest = colour == NamedGreen;
    if (blueOrange)
        return isBest ? (isDark ? QColor(0x6C, 0xB6, 0xF0) : QColor(0x1B, 0x62, 0xA5))
                      : (isDark ? QColor(0xF2, 0xA3, 0x4E) : QColor(0xB3, 0x5A, 0x00));
    return isBest ? (isDark ? QColor(0x4C, 0xD9, 0x7B) : QColor(0x0B, 0x84, 0x3A))
                  : (isDark ? QColor(0xFF, 0x7B, 0x72) : QColor(0xC9, 0x2A, 0x2A));
}

} // namespace kavela::desktop
