#include "desktop/team/charts/chart_tabs.h"

#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/charts/progression_chart.h"
#include "desktop/team/charts/season_chart.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace kavela::desktop {

ChartTabs::ChartTabs(QWidget* parent)
    : QTabWidget(parent), m_season(new SeriesChart), m_progression(new SeriesChart) {
    auto* averages = new ColumnTable(m_averages, "averages");
    addTab(m_season, tr("Season"));
    addTab(m_progression, tr("Race progression"));
    addTab(averages, tr("Averages"));
    setCornerWidget(makeCorner());
    connectCharts();
}

/// A click on a point leads to its race.
void ChartTabs::connectCharts() {
    connect(m_season, &SeriesChart::pointActivated, this, [this](int series, int index) {
        const auto& points = m_season->content().series[static_cast<std::size_t>(series)].points;
        const double place = points[static_cast<std::size_t>(index)].x();
        const SeasonPlace race = m_seasonRaces[static_cast<std::size_t>(place)];
        emit raceClicked(race); // which may fill the list anew
    });
    connect(m_progression, &SeriesChart::pointActivated, this, [this](int series, int) {
        const SeasonPlace race = m_progressed[static_cast<std::size_t>(series)];
        emit raceClicked(race);
    });
    for (const SeriesChart* chart : {m_season, m_progression})
        connect(&chart->interaction(), &PlotInteraction::savingFailed, this,
                &ChartTabs::savingFailed);
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
    m_seasonRaces.clear();
    m_progressed.clear();
    if (!season) {
        ChartContent none;
        none.emptyText = tr("The results of an athlete stand here as charts.");
        m_season->show(none);
        m_progression->show(none);
        return;
    }
    const bool isAll = m_allSeasons->isChecked();
    const QString who = m_athlete + ", " + QString::fromStdString(m_results->cat);
    const QString year = QString::number(season->year);
    const std::vector<SeasonRace> races =
        racesInTime(*m_results, isAll ? std::nullopt : std::optional(m_place->season));
    for (const SeasonRace& race : races)
        m_seasonRaces.push_back({race.season, race.race});
    for (const std::size_t race : progressedRaces(*season))
        m_progressed.push_back({m_place->season, race});
    m_season->show(seasonContent(tr("%1, %2").arg(who, isAll ? tr("all seasons") : year), races));
    m_progression->show(progressionContent(tr("%1, %2").arg(who, year), *season, m_place->race));
}

SeriesChart* ChartTabs::current() const {
    return qobject_cast<SeriesChart*>(currentWidget());
}

void ChartTabs::setFolder(const QString& folder) {
    for (const SeriesChart* chart : {m_season, m_progression})
        chart->interaction().setFolder(folder);
}

void ChartTabs::saveCurrent() {
    if (SeriesChart* const chart = current(); chart && chart->emptyMessage().isEmpty())
        chart->interaction().askAndSave();
}

} // namespace kavela::desktop
