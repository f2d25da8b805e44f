#include "desktop/shell/edged_style.h"

#include "desktop/shell/theme.h"

#include <QPainter>
#include <QStyleOption>

namespace kavela::desktop {

namespace {

constexpr double RoundEdge = 1.6; ///< pixels; smoothed, one alone would be too faint

} // namespace

EdgedStyle::EdgedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
        return;
    const bool isChosenRow =
        element == PE_IndicatorItemViewItemCheck && option->state.testFlag(State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, isRound);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(isChosenRow ? option->palette.color(QPalette::HighlightedText)
                                     : theme::boxEdge(option->palette),
                         isRound ? RoundEdge : 1));
    if (isRound)
        painter->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
    else
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace kavela::desktop
