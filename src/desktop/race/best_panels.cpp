#include "desktop/race/best_panels.h"

#include "analysis/athlete_potential.h"
#include "analysis/ideal_run.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int RunRole = Qt::UserRole;

QString timeOrDash(const std::optional<double>& seconds) {
    return seconds && *seconds != 0 ? shownHundredths(*seconds) : "–";
}

QString aheadOf(const std::optional<double>& seconds) {
    return seconds ? '+' + shownHundredths(*seconds) : "–";
}

QTableWidget* listTable(const QStringList& headers, int stretched) {
    auto* table = new QTableWidget(0, static_cast<int>(headers.size()));
    table->setHorizontalHeaderLabels(headers);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setShowGrid(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + theme::Spacing);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(stretched, QHeaderView::Stretch);
    return table;
}

/// Adds a row; the texts but that of `leftColumns` stand to the right, as numbers do.
void addRow(QTableWidget& table, const QStringList& texts, const QList<int>& leftColumns,
            std::optional<std::size_t> run) {
    const int row = table.rowCount();
    table.insertRow(row);
    for (int column = 0; column < texts.size(); ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        if (!leftColumns.contains(column))
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(texts[column]);
        if (run)
            item->setData(RunRole, QVariant::fromValue(*run));
        table.setItem(row, column, item);
    }
}

QString sectionTitle(const RaceSet& set, std::size_t section) {
    return section < set.sectiontitles.size() && !set.sectiontitles[section].empty()
               ? qtText(set.sectiontitles[section])
               : 'S' + QString::number(section + 1);
}

} // namespace

IdealPanel::IdealPanel(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_summary(new QLabel),
      m_sections(listTable({tr("Section"), tr("Best"), tr("By")}, 2)) {
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_summary);
    column->addWidget(m_sections, 1);
    connect(m_sections, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem* item) {
        if (const QVariant run = item->data(RunRole); run.isValid())
            emit runActivated(run.value<std::size_t>());
    });
}

void IdealPanel::refresh() {
    const RaceSet& set = m_document.shownSet();
    const IdealRun ideal = idealRun(set);
    QString summary = ideal.total ? tr("Ideal run %1 s").arg(timeOrDash(ideal.total))
                                  : tr("No ideal run: a section has no time.");
    if (ideal.total && ideal.fastest) {
        const analyzerdata& fastest = set.alldata[*ideal.fastest];
        summary += tr("\nFastest run %1 s, %2\n%3 s behind the ideal run")
                       .arg(timeOrDash(fastest.sectioninfo.totaltime), qtText(fastest.name),
                            aheadOf(fastest.sectioninfo.totaltime - *ideal.total));
    }
    m_summary->setText(summary + tr("\nPenalties are left out."));
    m_sections->setRowCount(0);
    for (std::size_t i = 0; i < ideal.sections.size(); ++i) {
        const IdealSection& best = ideal.sections[i];
        addRow(*m_sections,
               {sectionTitle(set, i), timeOrDash(best.time),
                best.run ? qtText(set.alldata[*best.run].name) : QString()},
               {0, 2}, best.run);
    }
}

PotentialPanel::PotentialPanel(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_athletes(listTable({tr("Athlete"), tr("Potential"), tr("Best run"), tr("Left")}, 0)) {
    auto* text = new QLabel(tr("The best of every own section put together, without penalties. "
                               "What is left is how far the best run is from it."));
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(text);
    column->addWidget(m_athletes, 1);
    connect(m_athletes, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem* item) {
        if (const QVariant run = item->data(RunRole); run.isValid())
            emit runActivated(run.value<std::size_t>());
    });
}

void PotentialPanel::refresh() {
    std::vector<AthletePotential> athletes = athletePotentials(m_document.shownSet());
    std::ranges::stable_sort(athletes, [](const auto& a, const auto& b) {
        return a.potential && (!b.potential || *a.potential < *b.potential);
    });
    m_athletes->setRowCount(0);
    for (const AthletePotential& athlete : athletes)
        addRow(*m_athletes,
               {qtText(athlete.name), timeOrDash(athlete.potential), timeOrDash(athlete.bestTotal),
                aheadOf(athlete.difference)},
               {0}, athlete.bestRun ? athlete.bestRun : std::optional(athlete.runs.front()));
}

} // namespace kavela::desktop
