#include "desktop/shell/growth.h"

#include <QFontMetricsF>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

double growthOf(const QWidget& widget) {
    constexpr double UsualPoints = 10;
    QFont usual = widget.font();
    usual.setPointSizeF(UsualPoints);
    return std::max(1.0, QFontMetricsF(widget.font()).height() / QFontMetricsF(usual).height());
}

int grown(const QWidget& widget, int pixels) {
    return static_cast<int>(std::ceil(growthOf(widget) * pixels));
}

} // namespace kavela::desktop
