#include "desktop/charts/chart_panel.h"

#include "desktop/charts/gap_chart.h"
#include "desktop/charts/gate_chart.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/section_chart.h"
#include "desktop/charts/totals_chart.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

ChartPanel::ChartPanel(QWidget* parent)
    : QWidget(parent),
      m_tabs(new QTabBar(this)),
      m_bar(new QToolBar(this)),
      m_stack(new QStackedWidget(this)) {
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->setAccessibleName(tr("Charts"));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(theme::Spacing, theme::SmallSpacing, theme::Spacing, 0);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(m_tabs);
    row->addWidget(m_bar, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_stack, 1);

    makeBar();
    addChart(new GapChart);
    addChart(new SectionChart);
    addChart(new GateChart);
    addChart(new TotalsChart);
    makeActions();
    connect(m_tabs, &QTabBar::currentChanged, this, [this] { showCurrent(); });
    fillReferences();
    m_bar->setMinimumHeight(m_bar->sizeHint().height()); // of the tallest chart: no jump
    showCurrent();
}

void ChartPanel::makeBar() {
    m_bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* stretch = new QWidget;
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_bar->addWidget(stretch);
    auto* label = new QLabel(tr("&Reference") + QStringLiteral("  "));
    m_references = new QComboBox;
    m_references->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_references->setMinimumContentsLength(18);
    m_references->setAccessibleName(tr("Reference"));
    m_references->setToolTip(tr("What the runs are held against"));
    label->setBuddy(m_references);
    m_referenceLabelAction = m_bar->addWidget(label);
    m_referenceAction = m_bar->addWidget(m_references);
    connect(m_references, &QComboBox::activated, this, &ChartPanel::chooseReference);
}

void ChartPanel::addChart(Chart* chart) {
    m_charts.push_back(chart);
    const int tab = m_tabs->addTab(chart->name());
    m_tabs->setTabToolTip(tab, chart->purpose());
    m_stack->addWidget(chart);
    m_bar->addActions(chart->options());
    connect(chart, &Chart::runActivated, this, &ChartPanel::runActivated);
    connect(&chart->interaction(), &PlotInteraction::saved, this, &ChartPanel::chartSaved);
    connect(&chart->interaction(), &PlotInteraction::savingFailed, this, &ChartPanel::savingFailed);
}

void ChartPanel::makeActions() {
    m_bar->addSeparator();
    QAction* fitted = m_bar->addAction(tr("Fit"));
    fitted->setToolTip(tr("Show everything again (or double click)"));
    connect(fitted, &QAction::triggered, this, &ChartPanel::fit);
    QAction* save = m_bar->addAction(tr("Save chart\u2026"));
    save->setToolTip(tr("Save as PNG, SVG or CSV"));
    connect(save, &QAction::triggered, this, &ChartPanel::askAndSave);
}

void ChartPanel::goToChart(int index) {
    setCurrentChart(index);
    currentChart().setFocus();
}

void ChartPanel::fit() {
    currentChart().fit();
}

Chart& ChartPanel::currentChart() const {
    return *m_charts[static_cast<std::size_t>(m_tabs->currentIndex())];
}

void ChartPanel::setCurrentChart(int index) {
    m_tabs->setCurrentIndex(index);
}

void ChartPanel::showCurrent() {
    m_stack->setCurrentWidget(&currentChart());
    for (const Chart* chart : m_charts)
        for (QAction* option : chart->options())
            option->setVisible(chart == &currentChart());
    m_referenceLabelAction->setVisible(currentChart().usesReference());
    m_referenceAction->setVisible(currentChart().usesReference());
}

void ChartPanel::setRace(const RaceSet& set, bool isFiltered) {
    m_race = ChartRace(set, isFiltered);
    m_selection.clear();
    for (Chart* chart : m_charts)
        chart->setRace(m_race);
    followReferenceRun();
    fillReferences();
}

/// A filter may leave out the run that the coach holds all others against: its times stay.
void ChartPanel::followReferenceRun() {
    if (!m_referenceRun)
        return;
    const auto run = m_race.find(*m_referenceRun);
    if (run)
        m_referenceRun = m_race.run(*run);
    const CourseReference followed =
        run ? CourseReference{CourseReferenceKind::Run, *run}
            : CourseReference{CourseReferenceKind::Times, 0, m_referenceRun->name,
                              comparedTimes(m_race.set(), *m_referenceRun, m_penaltiesIncluded)};
    if (followed == m_reference)
        return;
    m_reference = followed;
    applyReference();
    emit referenceChanged(m_reference);
}

void ChartPanel::setSelection(const std::vector<std::size_t>& runs) {
    m_selection = runs;
    std::erase_if(m_selection, [this](std::size_t run) { return run >= m_race.size(); });
    for (Chart* chart : m_charts)
        chart->setSelection(m_selection);
    fillReferences();
}

void ChartPanel::setPenaltiesIncluded(bool included) {
    m_penaltiesIncluded = included;
    for (Chart* chart : m_charts)
        chart->setPenaltiesIncluded(included);
    followReferenceRun(); // by its times it has others now
}

void ChartPanel::setReference(const CourseReference& reference) {
    m_reference = reference;
    if (m_reference.kind == CourseReferenceKind::Run && m_reference.run >= m_race.size())
        m_reference = {};
    noteReferenceRun();
    applyReference();
    fillReferences();
}

void ChartPanel::noteReferenceRun() {
    m_referenceRun.reset();
    if (m_reference.kind == CourseReferenceKind::Run)
        m_referenceRun = m_race.run(m_reference.run);
}

void ChartPanel::setForeignReferences(const std::vector<CourseReference>& references) {
    if (references == m_foreign)
        return;
    m_foreign = references;
    if (m_reference.kind == CourseReferenceKind::Times && !m_referenceRun) {
        const auto same = std::ranges::find(m_foreign, m_reference.name, &CourseReference::name);
        m_reference = same == m_foreign.end() ? CourseReference{} : *same;
        applyReference();
        emit referenceChanged(m_reference);
    }
    fillReferences();
}

void ChartPanel::applyReference() {
    for (Chart* chart : m_charts)
        chart->setReference(m_reference);
}

QString ChartPanel::titleOf(const CourseReference& reference) const {
    switch (reference.kind) {
    case CourseReferenceKind::BestRun:
        return tr("Best run");
    case CourseReferenceKind::Median:
        return tr("Median");
    case CourseReferenceKind::Ideal:
        return tr("Ideal run");
    case CourseReferenceKind::Run:
        return m_race.label(reference.run);
    case CourseReferenceKind::Times:
        return QString::fromStdString(reference.name).simplified();
    }
    return {};
}

void ChartPanel::offerReference(const CourseReference& reference) {
    if (std::ranges::find(m_offered, reference) != m_offered.end())
        return;
    m_offered.push_back(reference);
    m_references->addItem(titleOf(reference));
}

/// The chooser offers the selected runs, not all: sixty names are for the table to search.
void ChartPanel::fillReferences() {
    constexpr std::size_t MostOffered = 30;
    m_references->clear();
    m_offered.clear();
    using Kind = CourseReferenceKind;
    for (const Kind kind : {Kind::BestRun, Kind::Median, Kind::Ideal})
        offerReference({kind});
    for (const CourseReference& foreign : m_foreign)
        offerReference(foreign);
    offerReference(m_reference);
    for (std::size_t i = 0; i < std::min(m_selection.size(), MostOffered); ++i)
        offerReference({Kind::Run, m_selection[i]});
    const auto chosen = std::ranges::find(m_offered, m_reference);
    m_references->setCurrentIndex(static_cast<int>(chosen - m_offered.begin()));
}

void ChartPanel::chooseReference(int index) {
    const CourseReference& chosen = m_offered[static_cast<std::size_t>(index)];
    if (chosen == m_reference)
        return; // maybe a run that is not shown, which is still meant
    m_reference = chosen;
    noteReferenceRun();
    applyReference();
    emit referenceChanged(m_reference);
}

void ChartPanel::saveChart(const QString& path) {
    currentChart().save(path.toStdU16String());
    emit chartSaved(path);
}

void ChartPanel::askAndSave() {
    currentChart().interaction().askAndSave();
}

} // namespace kavela::desktop
