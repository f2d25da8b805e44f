#include "desktop/season/season_pages.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/season/comparison_panel.h"
#include "desktop/season/figures_panel.h"
#include "desktop/season/progression_panel.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr std::array SeasonPairsShown{RacePair::Heats, RacePair::SemifinalToFinal,
                                      RacePair::HeatsToFinal};
constexpr std::array SeasonRatesShown{RaceRate::Medals, RaceRate::Finals, RaceRate::Semifinals};

/// Nobody's races tell how far the winner was, but the splits do.
bool hasOnlySplits(const ShownSeason& season) {
    const std::size_t athletes = season.season.athletes.size();
    for (std::size_t athlete = 0; athlete < athletes; ++athlete)
        if (usualProgression(season.season, athlete).of == TrendOf::Winner)
            return false;
    return athletes > 0;
}

} // namespace

SeasonPages::SeasonPages(Workspace& workspace, QWidget* parent)
    : QTabWidget(parent),
      m_workspace(workspace),
      m_progression(new ProgressionPanel(workspace)),
      m_compared(new ComparisonPanel(workspace)) {
    setDocumentMode(true);
    addTab(m_progression, tr("Progression"));
    addFigures(Pairs, "pairs", tr("Phases"), tr("From which phase to which"),
               {tr("Run 1 to run 2 of the heats"), tr("Semifinal to final"),
                tr("Heats to final, percent behind")});
    addFigures(Spread, "spread", tr("Spread"), {}, {});
    addFigures(Trend, "trend", tr("Trend"), tr("Behind whom"),
               {tr("Behind the winners"), tr("Behind the fastest splits")});
    addFigures(Heads, "heads", tr("Head to head"), {}, {});
    addFigures(Rates, "rates", tr("Medals and finals"), tr("How far"),
               {tr("Medals"), tr("Finals"), tr("Semifinals")});
    addFigures(Places, "places", tr("Expected places"), {}, {});
    addFigures(Benchmarks, "benchmarks", tr("What it takes"), {}, {});
    addTab(m_compared, tr("Athletes"));
}

SeasonPages::~SeasonPages() {
    disconnect(this);
    for (FiguresPanel* const panel : m_figures)
        panel->disconnect(this);
}

void SeasonPages::addFigures(Page page, const char* name, const QString& title,
                             const QString& label, const QStringList& choices) {
    auto* const panel = new FiguresPanel(m_workspace, name);
    m_figures[static_cast<std::size_t>(page - FirstOfFigures)] = panel;
    panel->offer(label, choices);
    addTab(panel, title);
    connect(panel, &FiguresPanel::choiceChanged, this, [this, page] { showFigures(page); });
}

void SeasonPages::take(const SharedSeason& season) {
    if (!m_season && hasOnlySplits(*season))
        figures(Trend).choose(1);
    m_season = season;
    m_athlete.reset();
    QStringList phases;
    for (const std::string& phase : benchmarkPhases(season->season))
        phases << qtText(phase);
    std::ranges::stable_partition(phases, [](const QString& phase) { return phase == "Final"; });
    figures(Benchmarks).offer(tr("Phase"), phases);
}

void SeasonPages::show(std::optional<std::size_t> athlete) {
    if (!m_season || !athlete || *athlete >= m_season->season.athletes.size())
        return;
    m_athlete = *athlete;
    m_progression->show(m_season, *athlete);
    for (int page = FirstOfFigures; page <= Benchmarks; ++page)
        showFigures(static_cast<Page>(page));
    m_compared->show(m_season);
}

void SeasonPages::showFigures(Page page) {
    FiguresPanel& panel = figures(page);
    const auto choice = static_cast<std::size_t>(std::max(panel.choice(), 0));
    if (!m_season || !m_athlete)
        return;
    const ShownSeason& season = *m_season;
    switch (page) {
    case Pairs:
        return panel.show(m_season, pairFigures(season, SeasonPairsShown.at(choice)));
    case Spread:
        return panel.show(m_season, spreadFigures(season));
    case Trend:
        return panel.show(m_season,
                          trendFigures(season, choice == 0 ? TrendOf::Winner : TrendOf::Splits));
    case Heads:
        return panel.show(m_season, headFigures(season, *m_athlete));
    case Rates:
        return panel.show(m_season, rateFigures(season, SeasonRatesShown.at(choice)));
    case Places:
        return panel.show(m_season, placeFigures(season));
    case Benchmarks:
        return panel.show(m_season,
                          benchmarkFigures(season,
                                           panel.choice() < 0 ? std::string("Final")
                                                              : panel.choiceText().toStdString(),
                                           *m_athlete));
    case Progression:
    case Compared:
        break;
    }
}

FiguresPanel& SeasonPages::figures(Page page) const {
    return *m_figures.at(static_cast<std::size_t>(page - FirstOfFigures));
}

void SeasonPages::showPage(Page page) {
    setCurrentIndex(page);
    table().setFocus();
}

ChartFrame& SeasonPages::chart() const {
    if (page() == Progression)
        return m_progression->chart();
    if (page() == Compared)
        return m_compared->chart();
    return figures(page()).chart();
}

ColumnTable& SeasonPages::table() const {
    if (page() == Progression)
        return m_progression->table();
    return page() == Compared ? m_compared->table() : figures(page()).table();
}

std::vector<ChartFrame*> SeasonPages::charts() const {
    std::vector<ChartFrame*> charts{&m_progression->chart(), &m_compared->chart()};
    for (const FiguresPanel* const panel : m_figures)
        charts.push_back(&panel->chart());
    return charts;
}

} // namespace kavela::desktop
