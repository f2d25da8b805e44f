#include "desktop/watertests/eight_texts.h"

#include "common/number_text.h"
#include "planning/test_entry.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

QString shownNumber(double value) {
    return std::isfinite(value) && value != 0 ? QString::fromStdString(hundredthsText(value))
                                              : QString("–");
}

QString deviationText(const datafor8& eight) {
    const bool isWhole =
        std::ranges::all_of(splitsOf(eight), [](double split) { return split > 0; });
    return isWhole ? QString::fromStdString(hundredthsText(eight.sdv)) : QString("–");
}

QString scoreText(const datafor8& eight) {
    return QCoreApplication::translate("EightTest", "Total %1 s · standard deviation %2 s")
        .arg(shownNumber(eight.totalsplit), deviationText(eight));
}

} // namespace kavela::desktop
