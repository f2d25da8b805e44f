#include "desktop/shell/theme.h"

#include <QVBoxLayout>

namespace kavela::desktop::theme {

namespace {

QFont scaled(const QWidget& widget, double factor, QFont::Weight weight) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto mix = [&](double x, double y) { return static_cast<float>(x + (y - x) * share); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

/// The colours in which the two palettes differ.
struct Scheme {
    QColor window;
    QColor base;
    QColor alternate;
    QColor text;
    QColor button;
    QColor highlight; ///< white is read on it
    QColor link;
    QColor quiet; ///< text that only helps; read all the same
    QColor disabled;
};

QPalette paletteOf(const Scheme& scheme) {
    QPalette palette;
    palette.setColor(QPalette::Window, scheme.window);
    palette.setColor(QPalette::Base, scheme.base);
    palette.setColor(QPalette::AlternateBase, scheme.alternate);
    palette.setColor(QPalette::Button, scheme.button);
    palette.setColor(QPalette::ToolTipBase, scheme.base);
    palette.setColor(QPalette::Highlight, scheme.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, scheme.link);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, scheme.text);
        palette.setColor(QPalette::Disabled, role, scheme.disabled);
    }
    palette.setColor(QPalette::PlaceholderText, scheme.quiet);
    return palette;
}

} // namespace

QFont headlineFont(const QWidget& widget) {
    return scaled(widget, 1.9, QFont::DemiBold);
}

QFont titleFont(const QWidget& widget) {
    return scaled(widget, 1.2, QFont::DemiBold);
}

QFont captionFont(const QWidget& widget) {
    return scaled(widget, 0.95, QFont::Normal);
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

QColor quietText(const QPalette& palette) {
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.33);
}

QColor hairline(const QPalette& palette) {
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.82);
}

QColor boxEdge(const QPalette& palette) {
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.42);
}

QColor surface(const QPalette& palette) {
    return palette.color(QPalette::Base);
}

QFrame* floatingFrame(QWidget& window) {
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    auto* whole = new QVBoxLayout(&window);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(frame);
    return frame;
}

QPalette darkPalette() {
    return paletteOf({QColor(0x1F, 0x22, 0x25), QColor(0x27, 0x2B, 0x2F), QColor(0x2D, 0x32, 0x36),
                      QColor(0xE8, 0xEA, 0xEC), QColor(0x2F, 0x34, 0x39), QColor(0x16, 0x82, 0x8C),
                      QColor(0x5C, 0xC4, 0xCE), QColor(0x9B, 0xA2, 0xA7),
                      QColor(0x80, 0x86, 0x8B)});
}

QPalette lightPalette() {
    return paletteOf({QColor(0xF5, 0xF6, 0xF7), QColor(0xFF, 0xFF, 0xFF), QColor(0xF0, 0xF2, 0xF3),
                      QColor(0x1D, 0x21, 0x24), QColor(0xFB, 0xFB, 0xFC), Accent,
                      QColor(0x0B, 0x6E, 0x77), QColor(0x62, 0x69, 0x6E),
                      QColor(0x8D, 0x93, 0x98)});
}

} // namespace kavela::desktop::theme
