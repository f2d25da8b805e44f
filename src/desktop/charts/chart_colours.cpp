#include "desktop/charts/chart_colours.h"

#include "desktop/shell/theme.h"

#include <array>

namespace kavela::desktop {

namespace {

using enum MarkerShape;

struct Hue {
    QColor onLight;
    QColor onDark;
    MarkerShape shape;
};

const std::array<Hue, 7>& hues() {
    static const std::array<Hue, 7> all{{
        {QColor(0x00, 0x72, 0xB2), QColor(0x56, 0xB4, 0xE9), Circle},       // blue
        {QColor(0xD5, 0x5E, 0x00), QColor(0xFF, 0x8A, 0x3D), Square},       // vermilion
        {QColor(0x00, 0x8F, 0x69), QColor(0x2C, 0xC4, 0x98), Triangle},     // green
        {QColor(0xB8, 0x5A, 0x93), QColor(0xE3, 0x9A, 0xC6), Diamond},      // purple
        {QColor(0xC2, 0x86, 0x00), QColor(0xF0, 0xC2, 0x42), TriangleDown}, // orange
        {QColor(0x50, 0x55, 0x5A), QColor(0xD5, 0xD8, 0xDA), Plus},         // grey
        {QColor(0x3A, 0x9B, 0xD6), QColor(0x8C, 0xA8, 0xFF), Pentagon},     // sky blue
    }};
    return all;
}

QColor inPalette(std::size_t hue, const QPalette& palette) {
    return theme::isDark(palette) ? hues()[hue].onDark : hues()[hue].onLight;
}

} // namespace

SeriesStyle seriesStyle(std::size_t slot, const QPalette& palette) {
    static constexpr std::array Lines{Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    static_assert(MostSeries == 7 * Lines.size());
    const std::size_t hue = slot % hues().size();
    return {inPalette(hue, palette), hues()[hue].shape, Lines[slot / hues().size() % Lines.size()]};
}

QColor touchColour(const QPalette& palette) {
    return theme::isDark(palette) ? QColor(0xF0, 0xC2, 0x42) : QColor(0xE6, 0x9F, 0x00);
}

QColor missedColour(const QPalette& palette) {
    return theme::isDark(palette) ? QColor(0xE0, 0x6A, 0x2C) : QColor(0xB8, 0x4A, 0x00);
}

QColor upstreamColour(const QPalette& palette) {
    return theme::isDark(palette) ? theme::Accent.lighter(175) : theme::Accent;
}

QColor chartGround(const QPalette& palette) {
    return theme::surface(palette);
}

QColor gridColour(const QPalette& palette) {
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlphaF(0.12F);
    return colour;
}

QColor backgroundRuns(const QPalette& palette) {
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlphaF(0.32F);
    return colour;
}

} // namespace kavela::desktop
