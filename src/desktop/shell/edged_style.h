#pragma once

#include <QProxyStyle>

namespace kavela::desktop {

/// The style of all windows, where boxes to tick have an edge that is seen on every ground: that of
/// the style beneath sinks into a dark one.
class EdgedStyle : public QProxyStyle {
    Q_OBJECT

public:
    EdgedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace kavela::desktop
