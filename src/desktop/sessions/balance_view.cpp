#include "desktop/sessions/balance_view.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double NoFinding = 15;  // percent: a smaller difference may be chance
constexpr double BarHeight = 14;  // pixels
constexpr double ValueWidth = 70; // pixels beside the bars

QString unknownText() {
    return BalanceView::tr("Side unknown: nothing tells which side of the phone points to the bow. "
                           "Name its mount in the menu Edit, and left and right are found.");
}

} // namespace

BalanceView::BalanceView(QWidget* parent) : QWidget(parent) {}

void BalanceView::show(const std::array<SideFigures, 2>& sides, bool isSideKnown) {
    m_sides = sides;
    m_isSideKnown = isSideKnown;
    setAccessibleDescription(isSideKnown ? QString() : unknownText());
    update();
}

QString BalanceView::differenceText(std::optional<double> left, std::optional<double> right) {
    const auto difference = imbalance(left, right);
    if (!difference)
        return valueText({}, 0);
    const double size = std::round(std::abs(*difference));
    if (size == 0)
        return tr("even");
    return (*difference < 0 ? tr("left +%1 %") : tr("right +%1 %")).arg(size);
}

std::vector<BalanceView::Row> BalanceView::rows() const {
    const auto& [left, right] = m_sides;
    const auto phase = [](const SideFigures& side) {
        return side.strokes > 0 ? std::optional(side.waterPhase) : std::nullopt;
    };
    const auto count = [](const SideFigures& side) {
        return std::optional(static_cast<double>(side.strokes));
    };
    return {{tr("Strokes"), count(left), count(right), 0},
            {tr("Force (N)"), left.force, right.force, 1},
            {tr("Impulse (N·s)"), left.impulse, right.impulse, 1},
            {tr("Power (W)"), left.power, right.power, 1},
            {tr("Water phase (s)"), phase(left), phase(right), 3}};
}

void BalanceView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double rowHeight = 2 * fontMetrics().height() + theme::Spacing;
    QRectF area = QRectF(rect()).adjusted(theme::Spacing, theme::SmallSpacing, -theme::Spacing, 0);
    painter.setPen(theme::quietText(palette()));
    if (!m_isSideKnown) {
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, unknownText());
        return;
    }
    painter.setFont(theme::captionFont(*this));
    const double caption = painter.fontMetrics().height() + theme::SmallSpacing;
    painter.drawText(QRectF(area.left(), area.top(), area.width(), caption), Qt::AlignLeft,
                     tr("Left"));
    painter.drawText(QRectF(area.left(), area.top(), area.width(), caption), Qt::AlignRight,
                     tr("Right"));
    painter.drawText(QRectF(area.left(), area.top(), area.width(), caption), Qt::AlignHCenter,
                     tr("Differences under %1 % are no finding").arg(NoFinding));
    area.setTop(area.top() + caption);
    painter.setFont(font());
    for (const Row& row : rows()) {
        area.setHeight(rowHeight);
        paintRow(painter, area, row);
        area.moveTop(area.bottom());
    }
}

void BalanceView::paintRow(QPainter& painter, const QRectF& area, const Row& row) const {
    const auto difference = imbalance(row.left, row.right);
    const bool isFinding = difference && std::abs(*difference) >= NoFinding;
    painter.setPen(palette().color(QPalette::WindowText));
    QFont font = this->font();
    font.setBold(isFinding);
    painter.setFont(font);
    const double line = fontMetrics().height();
    painter.drawText(QRectF(area.left(), area.top(), area.width(), line), Qt::AlignHCenter,
                     row.name + ": " + differenceText(row.left, row.right));
    painter.setFont(this->font());
    const double values = ValueWidth * growthOf(*this);
    const QRectF bars(area.left() + values, area.top() + line, area.width() - 2 * values,
                      BarHeight);
    painter.drawText(QRectF(area.left(), bars.top(), values, line), Qt::AlignLeft,
                     valueText(row.left, row.decimals));
    painter.drawText(QRectF(bars.right(), bars.top(), values, line), Qt::AlignRight,
                     valueText(row.right, row.decimals));
    const double most = std::max(row.left.value_or(0), row.right.value_or(0));
    if (most <= 0)
        return;
    const double half = bars.width() / 2;
    const double left = row.left.value_or(0) / most * half;
    const double right = row.right.value_or(0) / most * half;
    const double middle = bars.center().x();
    painter.fillRect(QRectF(middle - left, bars.top(), left - 1, BarHeight),
                     seriesStyle(0, palette()).colour);
    painter.fillRect(QRectF(middle + 1, bars.top(), right - 1, BarHeight),
                     seriesStyle(1, palette()).colour);
}

} // namespace kavela::desktop
