#include "desktop/race/best_panels.h"

#include "analysis/analysis_reasons.h"
#include "analysis/athlete_potential.h"
#include "analysis/ideal_run.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString timeOrDash(const std::optional<double>& seconds) {
    return seconds && *seconds != 0 ? shownHundredths(*seconds) : "–";
}

QString aheadOf(const std::optional<double>& seconds) {
    return seconds ? '+' + shownHundredths(*seconds) : "–";
}

ColumnTable* listTable(RowModel& rows, int stretched) {
    auto* table = new ColumnTable(rows, "");
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setAlternatingRowColors(false);
    table->stretch({stretched});
    return table;
}

Cell textCell(const QString& text) {
    return {.text = text, .tip = text};
}

/// A time of 0 is none.
Cell timeCell(const std::optional<double>& seconds, const QString& text) {
    return {.text = text, .number = text == "–" ? std::nullopt : seconds, .tip = text};
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
      m_bests(columns()),
      m_sections(listTable(m_bests, 2)) {
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_summary);
    column->addWidget(m_sections, 1);
    connect(m_sections, &ColumnTable::activated, this, [this](const QModelIndex& cell) {
        if (const auto run = m_bests.row(m_sections->placeAt(cell)).run)
            emit runActivated(*run);
    });
    const auto explain = [this](const std::string& id) {
        return explainRace(m_document.shownSet(), m_document.settings(), "ideal/" + id);
    };
    answerWhy(m_sections, [this, explain](const QModelIndex& cell) {
        return explain(std::to_string(m_sections->placeAt(cell) + 1));
    });
    answerWhy(m_summary, [explain](const QPoint&) { return explain("total"); });
}

std::vector<Column<IdealPanel::Best>> IdealPanel::columns() {
    std::vector<Column<Best>> columns;
    columns.push_back(
        {.title = tr("Section"), .show = [](const Best& best) { return textCell(best.section); }});
    columns.push_back(
        {.title = tr("Best"), .kind = ColumnKind::Number, .show = [](const Best& best) {
             return timeCell(best.time, timeOrDash(best.time));
         }});
    columns.push_back(
        {.title = tr("By"), .show = [](const Best& best) { return textCell(best.by); }});
    return columns;
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
    std::vector<Best> bests;
    for (std::size_t i = 0; i < ideal.sections.size(); ++i) {
        const IdealSection& best = ideal.sections[i];
        bests.push_back({sectionTitle(set, i), best.time,
                         best.run ? qtText(set.alldata[*best.run].name) : QString(), best.run});
    }
    m_bests.show(std::move(bests), true);
}

PotentialPanel::PotentialPanel(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_potentials(columns()),
      m_athletes(listTable(m_potentials, 0)) {
    auto* text = new QLabel(tr("The best of every own section put together, without penalties. "
                               "What is left is how far the best run is from it."));
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(text);
    column->addWidget(m_athletes, 1);
    connect(m_athletes, &ColumnTable::activated, this, [this](const QModelIndex& cell) {
        const AthletePotential& athlete = m_potentials.row(m_athletes->placeAt(cell));
        emit runActivated(athlete.bestRun ? *athlete.bestRun : athlete.runs.front());
    });
}

std::vector<Column<AthletePotential>> PotentialPanel::columns() {
    using Athlete = const AthletePotential&;
    std::vector<Column<AthletePotential>> columns;
    columns.push_back({.title = tr("Athlete"),
                       .show = [](Athlete athlete) { return textCell(qtText(athlete.name)); }});
    const auto add = [&](const QString& title, std::function<Cell(Athlete)> show) {
        columns.push_back({.title = title, .kind = ColumnKind::Number, .show = std::move(show)});
    };
    add(tr("Potential"),
        [](Athlete athlete) { return timeCell(athlete.potential, timeOrDash(athlete.potential)); });
    add(tr("Best run"),
        [](Athlete athlete) { return timeCell(athlete.bestTotal, timeOrDash(athlete.bestTotal)); });
    add(tr("Left"),
        [](Athlete athlete) { return timeCell(athlete.difference, aheadOf(athlete.difference)); });
    return columns;
}

void PotentialPanel::refresh() {
    std::vector<AthletePotential> athletes = athletePotentials(m_document.shownSet());
    std::ranges::stable_sort(athletes, [](const auto& a, const auto& b) {
        return a.potential && (!b.potential || *a.potential < *b.potential);
    });
    m_potentials.show(std::move(athletes), true);
}

} // namespace kavela::desktop
