#include "desktop/charts/read_out.h"

#include "desktop/shell/theme.h"

#include <QColor>
#include <QStringList>

#include <algorithm>

namespace kavela::desktop {

ReadOut::ReadOut(QWidget* chart) : QLabel(chart) {
    setTextFormat(Qt::RichText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setMargin(theme::Spacing);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    hide();
}

void ReadOut::showAt(const QPointF& place, const QString& text) {
    setFont(theme::captionFont(*parentWidget()));
    setText(text);
    adjustSize();
    const QRect room = parentWidget()->rect();
    QPoint corner = place.toPoint() + QPoint(theme::LargeSpacing, theme::LargeSpacing);
    if (corner.x() + width() > room.right())
        corner.setX(place.toPoint().x() - theme::LargeSpacing - width());
    corner.setX(std::max(corner.x(), 0));
    corner.setY(std::clamp(corner.y(), 0, std::max(0, room.bottom() - height())));
    move(corner);
    show();
    raise();
}

QString readOutRow(const QStringList& cells, const QColor& mark) {
    QString row = QStringLiteral("<tr>");
    if (mark.isValid())
        row += QStringLiteral("<td style='color:%1'>\u25A0</td>").arg(mark.name());
    for (qsizetype i = 0; i < cells.size(); ++i)
        row +=
            QStringLiteral("<td align='%1' style='padding-left:%2px; white-space:nowrap'>%3</td>")
                .arg(i == 0 ? "left" : "right")
                .arg(i == 0 ? theme::SmallSpacing : theme::LargeSpacing)
                .arg(cells[i].toHtmlEscaped());
    return row + QStringLiteral("</tr>");
}

QString readOutText(const QString& heading, const QStringList& rows) {
    return QStringLiteral("<b>%1</b><table cellspacing='0' cellpadding='1'>%2</table>")
        .arg(heading.toHtmlEscaped(), rows.join(QString()));
}

} // namespace kavela::desktop
