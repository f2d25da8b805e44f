#include "desktop/watertests/eight_texts.h"

#include "desktop/shell/shown_number.h"
#include "planning/eight_test.h"
#include "planning/test_entry.h"

#include <QCoreApplication>

#include <algorithm>

namespace kavela::desktop {

QString totalText(const datafor8& eight) {
    return isWhole(eight) ? hundredthsOrDash(eight.totalsplit) : QStringLiteral("–");
}

QString deviationText(const datafor8& eight) {
    return isWhole(eight) ? shownHundredths(eight.sdv) : QStringLiteral("–");
}

QString scoreText(const datafor8& eight) {
    const auto splits = splitsOf(eight);
    if (!isWhole(eight))
        return QCoreApplication::translate("EightTest", "Total – · %1 of %2 splits are timed")
            .arg(std::ranges::count_if(splits, [](double split) { return split > 0; }))
            .arg(splits.size());
    return QCoreApplication::translate("EightTest", "Total %1 s · standard deviation %2 s")
        .arg(totalText(eight), deviationText(eight));
}

} // namespace kavela::desktop
