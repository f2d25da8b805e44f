#include "desktop/shell/shown_number.h"

#include "common/number_text.h"

#include <QLocale>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double LongestPlain = 1e12; ///< longer ones only come from damaged files

} // namespace

/// Only a point between two digits is a decimal one: "Expected: 1.5." ends with another.
QString shownNumbers(QString text) {
    if (QLocale().decimalPoint() != QLatin1String(","))
        return text;
    for (qsizetype at = 1; at + 1 < text.size(); ++at)
        if (text[at] == '.' && text[at - 1].isDigit() && text[at + 1].isDigit())
            text[at] = ',';
    return text;
}

QString shownNumber(double value) {
    return shownNumbers(QString::fromStdString(
        std::abs(value) < LongestPlain ? plainText(value) : shortestText(value)));
}

QString shownNumber(double value, int decimals) {
    return shownNumbers(QString::number(value, 'f', decimals));
}

QString shownHundredths(double seconds) {
    return shownNumbers(QString::fromStdString(hundredthsText(seconds)));
}

QString hundredthsOrDash(double seconds) {
    return std::isfinite(seconds) && seconds != 0 ? shownHundredths(seconds) : QStringLiteral("–");
}

} // namespace kavela::desktop
