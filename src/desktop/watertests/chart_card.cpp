#include "desktop/watertests/chart_card.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int ChartHeight = 250;

/// The labels of the figures as titles of columns, and a row for each test under its colour.
QString figureTable(const std::vector<ChartSummary>& summaries, const QPalette& palette) {
    QString rows;
    QString titles = "<td></td>";
    for (const ChartSummary& summary : summaries) {
        QString cells = QString("<td><span style=\"color:%1\">■</span> %2</td>")
                            .arg(seriesStyle(summary.slot, palette).colour.name(),
                                 summary.name.toHtmlEscaped());
        for (const QString& line : summary.text.split('\n')) {
            const qsizetype colon = line.lastIndexOf(':') + 1;
            if (rows.isEmpty())
                titles +=
                    QString("<td align=\"right\" style=\"color:%1\">%2</td>")
                        .arg(theme::quietText(palette).name(), line.left(colon).toHtmlEscaped());
            cells += QString("<td align=\"right\">%1</td>").arg(line.mid(colon).toHtmlEscaped());
        }
        rows += "<tr>" + cells + "</tr>";
    }
    return "<table cellspacing=\"0\" cellpadding=\"2\" width=\"100%\"><tr>" + titles + "</tr>" +
           rows + "</table>";
}

} // namespace

ChartCard::ChartCard(QWidget* parent)
    : QWidget(parent), m_chart(new SeriesChart), m_help(new QLabel), m_figures(new QLabel) {
    m_chart->setFixedHeight(grown(*this, ChartHeight));
    m_help->setWordWrap(true);
    m_help->setFont(theme::captionFont(*this));
    m_help->setForegroundRole(QPalette::PlaceholderText);
    m_figures->setObjectName("figures");
    m_figures->setWordWrap(true);
    m_figures->setTextFormat(Qt::RichText);
    m_figures->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, theme::Spacing);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_chart);
    column->addWidget(m_help);
    column->addWidget(m_figures);
    column->addStretch(1);
}

void ChartCard::showChart(TestChart chart) {
    m_help->setText(chart.help);
    m_help->setVisible(!chart.help.isEmpty());
    m_summaries = std::move(chart.summaries);
    showFigures();
    m_chart->show(std::move(chart.content));
}

/// With one test each figure has a line of its own; with more, each test has one in a table.
void ChartCard::showFigures() {
    QStringList plain;
    for (const ChartSummary& summary : m_summaries)
        plain.append(m_summaries.size() == 1 ? summary.text : summary.name + '\n' + summary.text);
    m_plainFigures = plain.join('\n');
    m_figures->setText(m_summaries.size() == 1
                           ? m_plainFigures.toHtmlEscaped().replace('\n', "<br>")
                           : figureTable(m_summaries, palette()));
    m_figures->setVisible(!m_summaries.empty());
}

void ChartCard::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        showFigures();
    QWidget::changeEvent(event);
}

} // namespace kavela::desktop
