#include "desktop/penalties/figure_cells.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"

namespace kavela::desktop {

namespace {

constexpr double Percent = 100;
constexpr int Decimals = 1;

Cell noCell(Cell::Look look) {
    return {.text = QStringLiteral("–"), .look = look};
}

} // namespace

QString shownWords(std::string_view words) {
    return shownNumbers(qtText(words));
}

Cell percentCell(std::optional<double> rate, Cell::Look look) {
    return rate ? numberCell(Percent * *rate, Decimals, look) : noCell(look);
}

Cell percentRangeCell(const std::optional<Interval>& interval, Cell::Look look) {
    if (!interval)
        return noCell(look);
    return {.text = shownNumber(Percent * interval->low, Decimals) + QStringLiteral("–") +
                    shownNumber(Percent * interval->high, Decimals),
            .sortValue = Percent * interval->low,
            .look = look};
}

Cell countCell(std::optional<std::size_t> count, Cell::Look look) {
    if (!count)
        return noCell(look);
    return {.text = QString::number(*count), .number = static_cast<double>(*count), .look = look};
}

Cell numberCell(double value, int decimals, Cell::Look look) {
    return {.text = shownNumber(value, decimals), .number = value, .look = look};
}

Cell textCell(const QString& text, Cell::Look look) {
    return {.text = text, .tip = text, .look = look};
}

} // namespace kavela::desktop
