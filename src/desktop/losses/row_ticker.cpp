#include "desktop/losses/row_ticker.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

void RowTicker::setNames(const QStringList& names, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    m_names.clear();
    for (const QString& name : names)
        m_names << metrics.elidedText(name, Qt::ElideRight, width);
    m_height = metrics.ascent();
}

QString RowTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    return m_names.value(static_cast<int>(std::floor(tick)));
}

QVector<double> RowTicker::createTickVector(double, const QCPRange& range) {
    const double room = std::max(1, m_rect.height()) / std::max(1.0, range.size());
    const auto step = std::max<qsizetype>(1, static_cast<qsizetype>(std::ceil(m_height / room)));
    QVector<double> middles;
    for (qsizetype row = 0; row < m_names.size(); row += step)
        middles.append(static_cast<double>(row) + 0.5);
    return middles;
}

} // namespace kavela::desktop
