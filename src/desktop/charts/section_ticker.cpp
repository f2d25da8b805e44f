#include "desktop/charts/section_ticker.h"

#include "desktop/shell/theme.h"

#include <cmath>

namespace kavela::desktop {

namespace {

// Pixels.
constexpr double NarrowestTitle = 30;
constexpr double NarrowestNumber = 20;

} // namespace

void SectionTicker::fit(double pixelsOfSection, const QFont& font) {
    m_pixels = pixelsOfSection - theme::Spacing;
    m_step = pixelsOfSection >= NarrowestNumber || pixelsOfSection <= 0
                 ? 1
                 : static_cast<qsizetype>(NarrowestNumber / pixelsOfSection) + 1;
    m_font = font;
}

QString SectionTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    const int section = static_cast<int>(std::floor(tick));
    const QString title = m_titles.value(section);
    if (m_pixels < NarrowestTitle)
        return QString::number(section + 1);
    return QFontMetrics(m_font).elidedText(title, Qt::ElideRight, static_cast<int>(m_pixels));
}

QVector<double> SectionTicker::createTickVector(double, const QCPRange&) {
    QVector<double> middles;
    for (qsizetype i = 0; i < m_titles.size(); i += m_step)
        middles.append(static_cast<double>(i) + 0.5);
    return middles;
}

QVector<double> SectionTicker::createSubTickVector(int, const QVector<double>&) {
    QVector<double> splits;
    for (qsizetype i = 0; i <= m_titles.size(); i += m_step)
        splits.append(static_cast<double>(i));
    return splits;
}

QString GapTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    // Ticks next to zero carry the rounding of their steps.
    const double value = std::round(tick * 1e4) / 1e4;
    if (value == 0)
        return QStringLiteral("0");
    const QString digits = QString::number(std::abs(value), 'g', 6);
    return (value > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) + digits;
}

QSharedPointer<SectionTicker> showSections(QCustomPlot& plot) {
    const auto ticker = QSharedPointer<SectionTicker>::create();
    plot.xAxis->setTicker(ticker);
    plot.xAxis->grid()->setPen(Qt::NoPen);
    plot.xAxis->grid()->setSubGridVisible(true);
    QObject::connect(&plot, &QCustomPlot::beforeReplot, &plot, [&plot, ticker] {
        const QMargins margins = plot.axisRect()->margins();
        const double width =
            plot.axisRect()->outerRect().width() - margins.left() - margins.right();
        ticker->fit(width / plot.xAxis->range().size(), plot.xAxis->tickLabelFont());
    });
    return ticker;
}

} // namespace kavela::desktop
