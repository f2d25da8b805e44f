#include "desktop/team/charts/chart_tabs.h"

#include "desktop/shell/theme.h"
#include "desktop/team/charts/progression_chart.h"
#include "desktop/team/charts/season_chart.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

namespace kavela::desktop {

ChartTabs::ChartTabs(QWidget* parent)
    : QTabWidget(parent), m_season(new SeasonChart), m_progression(new ProgressionChart) {
    auto* averages = new QTableView;
    averages->setObjectName("averages");
    averages->setModel(&m_averages);
    averages->setShowGrid(false);
    averages->verticalHeader()->hide();
    averages->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    averages->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    averages->setTabKeyNavigation(false);
    addTab(m_season, tr("Season"));
    addTab(m_progression, tr("Race progression"));
    addTab(averages, tr("Averages"));
    setCornerWidget(makeCorner());
    connect(m_season, &TeamChart::raceClicked, this, &ChartTabs::raceClicked);
    connect(m_progression, &TeamChart::raceClicked, this, &ChartTabs::raceClicked);
}

QWidget* ChartTabs::makeCorner() {
    m_allSeasons = new QCheckBox(tr("&All seasons"));
    m_allSeasons->setObjectName("allSeasons");
    m_allSeasons->setToolTip(tr("The season chart shows every season, not the chosen one alone"));
    auto* save = new QPushButton(tr("Save chart…"));
    save->setToolTip(tr("As a picture (PNG, SVG) or as CSV (Ctrl+E)"));
    save->setFlat(true);
    connect(m_allSeasons, &QCheckBox::toggled, this, &ChartTabs::showCharts);
    connect(save, &QPushButton::clicked, this, &ChartTabs::saveRequested);
    connect(this, &QTabWidget::currentChanged, this, [this, save] {
        m_allSeasons->setVisible(current() == m_season);
        save->setVisible(current() != nullptr);
    });
    auto* corner = new QWidget;
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(m_allSeasons);
    row->addWidget(save);
    return corner;
}

void ChartTabs::show(const QString& athlete, const mtCatsStruct* results,
                     std::optional<SeasonPlace> place) {
    m_athlete = athlete;
    m_results = results ? std::optional(*results) : std::nullopt;
    m_place = place && results && place->season < results->seasons.size() ? place : std::nullopt;
    showCharts();
}

void ChartTabs::showCharts() {
    const mtSeasonStruct* const season = m_place ? &m_results->seasons[m_place->season] : nullptr;
    m_averages.show(season, m_results ? &*m_results : nullptr);
    if (!season) {
        m_season->show({}, {});
        m_progression->showNothing({});
        return;
    }
    const bool isAll = m_allSeasons->isChecked();
    const QString who = m_athlete + ", " + QString::fromStdString(m_results->cat);
    const QString year = QString::number(season->year);
    m_season->show(tr("%1, %2").arg(who, isAll ? tr("all seasons") : year),
                   racesInTime(*m_results, isAll ? std::nullopt : std::optional(m_place->season)));
    m_progression->show(tr("%1, %2").arg(who, year), *season, m_place->season, m_place->race);
}

TeamChart* ChartTabs::current() const {
    return qobject_cast<TeamChart*>(currentWidget());
}

void ChartTabs::saveCurrent(const QString& folder) {
    TeamChart* const chart = current();
    if (!chart || !chart->hasData())
        return;
    const QString name = chart->chart()->title().remove('/') + ".png";
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the chart"), QDir(folder).filePath(name),
                                     tr("Pictures (*.png);;Vector pictures (*.svg);;Data (*.csv)"));
    if (!path.isEmpty())
        saveTeamChart(*chart, path.toStdString());
}

} // namespace kavela::desktop
