#include "desktop/losses/loss_charts_panel.h"

#include "desktop/charts/chart_plot.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/series_chart.h"
#include "desktop/losses/heat_map_chart.h"
#include "desktop/losses/loss_contents.h"
#include "desktop/losses/loss_state.h"
#include "desktop/losses/waterfall_chart.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"

#include <QAction>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

/// Which number of the run a bar of the waterfall is.
LossNumber numberOf(WaterfallPart part) {
    switch (part) {
    case WaterfallPart::Stretch:
        return LossNumber::Loss;
    case WaterfallPart::Penalties:
        return LossNumber::Penalties;
    case WaterfallPart::Timing:
        return LossNumber::Timing;
    case WaterfallPart::Reference:
    case WaterfallPart::Own:
        return LossNumber::Gap; // which tells both totals
    }
    return LossNumber::None;
}

/// The whole number along a chart nearest to a place of its plot.
int placeAcross(SeriesChart& chart, const QPoint& at) {
    return static_cast<int>(std::lround(chart.plot().xAxis->pixelToCoord(at.x())));
}

} // namespace

LossChartsPanel::LossChartsPanel(LossState& state, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_tabs(new QTabBar(this)),
      m_stack(new QStackedWidget(this)),
      m_waterfall(new WaterfallChart),
      m_pareto(new SeriesChart),
      m_heatMap(new HeatMapChart),
      m_growth(new SeriesChart) {
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->setAccessibleName(tr("Charts"));
    makeBar();
    addChart(*m_waterfall, tr("Sum"), tr("From the reference's total to the run's own"));
    addChart(*m_heatMap, tr("Heat map"), tr("Percent lost by run and section"));
    addChart(*m_pareto, tr("Most lost"), tr("The sections that lost most, in their order"));
    addChart(*m_growth, tr("Along the course"), tr("The gap after each section"));
    connect(m_tabs, &QTabBar::currentChanged, m_stack, &QStackedWidget::setCurrentIndex);
    connectCharts();
    makeAnswers();
    showState();
}

void LossChartsPanel::makeBar() {
    auto* bar = new QToolBar(this);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(bar->addAction(tr("Fit")), &QAction::triggered, this, &LossChartsPanel::fit);
    connect(bar->addAction(tr("Save chart…")), &QAction::triggered, this,
            &LossChartsPanel::askAndSave);
    bar->actions().constFirst()->setToolTip(tr("Show everything again (or double click)"));
    bar->actions().constLast()->setToolTip(tr("Save as PNG, SVG or CSV"));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(theme::Spacing, theme::SmallSpacing, theme::Spacing, 0);
    row->addWidget(m_tabs);
    row->addStretch();
    row->addWidget(bar);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_stack, 1);
}

void LossChartsPanel::addChart(ChartFrame& chart, const QString& name, const QString& purpose) {
    m_stack->addWidget(&chart);
    const int tab = m_tabs->addTab(name);
    m_tabs->setTabToolTip(tab, purpose);
    connect(&chart.interaction(), &PlotInteraction::savingFailed, this,
            &LossChartsPanel::savingFailed);
}

void LossChartsPanel::connectCharts() {
    connect(&m_state, &LossState::changed, this, &LossChartsPanel::showState);
    connect(&m_state, &LossState::scaleChanged, this, &LossChartsPanel::showState);
    connect(&m_state, &LossState::sectionChosen, this, [this] {
        m_waterfall->markSection(m_state.section());
        m_heatMap->markSection(m_state.section());
    });
    connect(m_waterfall, &WaterfallChart::stretchActivated, this, &LossChartsPanel::activate);
    connect(m_heatMap, &HeatMapChart::cellActivated, this,
            [this](std::size_t run, std::size_t section) {
                m_state.setRun(run);
                m_state.chooseSection(section);
            });
    connect(m_heatMap, &HeatMapChart::referenceRequested, this, [this](std::size_t run) {
        m_state.setReference({LossReferenceKind::Run, m_state.facts().runs()[run].number});
    });
    connect(m_pareto, &SeriesChart::pointActivated, this, [this](int, int bar) {
        if (const auto stretch = stretchOfPareto(bar))
            activate(*stretch);
    });
    connect(m_growth, &SeriesChart::pointActivated, this, [this](int series, int point) {
        if (series == 0 && point > 0) // the first one is the start
            activate(static_cast<std::size_t>(point) - 1);
    });
}

std::optional<std::size_t> LossChartsPanel::stretchOfPareto(int bar) const {
    const std::vector<ParetoBar> bars = paretoOf(m_state.losses());
    return bar >= 0 && bar < static_cast<int>(bars.size())
               ? std::optional(bars[static_cast<std::size_t>(bar)].stretch)
               : std::nullopt;
}

void LossChartsPanel::activate(std::size_t stretch) {
    if (stretch >= m_state.losses().stretches.size())
        return;
    m_state.chooseSection(m_state.losses().stretches[stretch].first);
    emit stretchActivated(stretch);
}

/// A key asks for what is marked: (-1, -1) is no place of a plot.
void LossChartsPanel::makeAnswers() {
    answerWhy(&m_waterfall->plot(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto bar = m_waterfall->barAt(at);
        if (!bar)
            return m_state.why(LossNumber::Gap);
        const WaterfallBar& shown = m_waterfall->bars()[*bar];
        const bool isStretch = shown.part == WaterfallPart::Stretch;
        return m_state.why(numberOf(shown.part),
                           isStretch ? m_state.losses().stretches[shown.stretch].first : 0);
    });
    answerWhy(&m_heatMap->plot(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto place = m_heatMap->placeAt(at);
        return place ? m_state.why(place->run, LossNumber::Percent, place->section) : std::nullopt;
    });
    answerWhy(&m_pareto->plot(), [this](const QPoint& at) -> std::optional<Reason> {
        if (at.x() < 0)
            return m_state.why(LossNumber::Loss, m_state.section());
        const auto stretch = stretchOfPareto(placeAcross(*m_pareto, at));
        return stretch ? m_state.why(LossNumber::Loss, m_state.losses().stretches[*stretch].first)
                       : std::nullopt;
    });
    answerWhy(&m_growth->plot(), [this](const QPoint& at) -> std::optional<Reason> {
        const int chosen = static_cast<int>(m_state.section());
        const int section = at.x() < 0 ? chosen : placeAcross(*m_growth, at);
        if (!m_state.hasRun() || section < 1)
            return std::nullopt;
        Why why;
        (void)gapAfter(m_state.facts(), m_state.losses(), static_cast<std::size_t>(section), &why);
        return why.reason();
    });
}

void LossChartsPanel::showState() {
    m_waterfall->show(m_state);
    m_heatMap->show(m_state);
    m_pareto->show(paretoContent(m_state));
    m_growth->show(growthContent(m_state));
}

ChartFrame& LossChartsPanel::currentChart() const {
    return *static_cast<ChartFrame*>(m_stack->currentWidget());
}

void LossChartsPanel::goToChart(int index) {
    m_tabs->setCurrentIndex(index);
    currentChart().setFocus();
}

void LossChartsPanel::fit() {
    currentChart().fit();
}

void LossChartsPanel::askAndSave() {
    currentChart().interaction().askAndSave();
}

} // namespace kavela::desktop
