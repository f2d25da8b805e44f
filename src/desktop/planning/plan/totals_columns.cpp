#include "desktop/planning/plan/totals_columns.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

constexpr double Behind = 90; ///< percent of the plan
constexpr double Beyond = 110;
constexpr double MostSessions = 999;
constexpr double MostQuantity = 1e6; ///< in whatever unit

QString tr(const char* text) {
    return QCoreApplication::translate("TotalsColumns", text);
}

Cell numberCell(double number) {
    if (number == 0)
        return {};
    return {.text = shownNumbers(QString::number(number, 'g', 8)), .number = number};
}

/// Says in sign and number how much of the plan is in the sessions.
Cell doneCell(const CategoryTotal& total) {
    if (total.plannedQuantity <= 0)
        return {.text = total.quantity > 0 ? tr("not planned") : QString()};
    const double percent = total.percentDone();
    const QString mark = percent < Behind ? "▼ " : percent > Beyond ? "▲ " : "";
    return {.text = mark + shownNumber(percent, 0) + " %", .number = percent};
}

Column<CategoryTotal> numbers(const QString& title, double (*number)(const CategoryTotal&)) {
    return {.title = title,
            .kind = ColumnKind::Number,
            .show = [number](const CategoryTotal& total) { return numberCell(number(total)); }};
}

Column<CategoryTotal> planned(double (*number)(const CategoryTotal&),
                              std::function<bool()> canBeTyped,
                              std::function<void(std::size_t, const QString&)> take) {
    Column<CategoryTotal> column = numbers(tr("planned"), number);
    column.show = [number, canBeTyped = std::move(canBeTyped)](const CategoryTotal& total) {
        Cell cell = numberCell(number(total));
        cell.isLocked = !canBeTyped();
        return cell;
    };
    column.take = [take = std::move(take)](std::size_t category, const CategoryTotal&,
                                           const QString& text) { take(category, text); };
    return column;
}

} // namespace

std::vector<Column<CategoryTotal>> totalsColumns(const TypedTotals& typed) {
    using Total = const CategoryTotal&;
    std::vector<Column<CategoryTotal>> columns;
    columns.push_back(textColumn<CategoryTotal>(
        tr("Category"), [](Total total) { return QString::fromStdString(total.category); }));
    columns.push_back(
        numbers(tr("Sessions"), [](Total total) { return static_cast<double>(total.sessions); }));
    columns.push_back(planned(
        [](Total total) { return static_cast<double>(total.plannedSessions); }, typed.canBeTyped,
        [take = typed.takeSessions](std::size_t category, const QString& text) {
            take(category, typedWholeOrNone(text, {0, MostSessions, {}}));
        }));
    columns.push_back(numbers(tr("Quantity"), [](Total total) { return total.quantity; }));
    columns.back().tip = tr("What the sessions add up to, in the unit that they are written in");
    columns.push_back(
        planned([](Total total) { return total.plannedQuantity; }, typed.canBeTyped,
                [take = typed.takeQuantity](std::size_t category, const QString& text) {
                    take(category, typedRealOrNone(text, {0, MostQuantity, {}}));
                }));
    columns.push_back(
        {.title = tr("In the sessions"), .kind = ColumnKind::Number, .show = doneCell});
    return columns;
}

} // namespace kavela::desktop
