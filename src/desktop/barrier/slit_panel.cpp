#include "desktop/barrier/slit_panel.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

SlitPanel::SlitPanel()
    : m_runs(slitRunColumns(), RowsKnownBy::Number),
      m_proposals(proposalColumns(), RowsKnownBy::Number),
      m_line(new QComboBox),
      m_split(new QComboBox),
      m_point(new QComboBox),
      m_race(new QLabel),
      m_openRace(new QPushButton(tr("Open the &race…"))),
      m_runTable(new ColumnTable(m_runs, "slitRuns")),
      m_proposalTable(new ColumnTable(m_proposals, "slitProposals")),
      m_finer(new QCheckBox(tr("Times &finer than the frame"))),
      m_progress(new QProgressBar),
      m_note(new FaultLabel) {
    m_race->setTextFormat(Qt::PlainText);
    m_race->setWordWrap(true);
    m_runTable->keepOrder();
    m_runTable->stretch({0});
    m_proposalTable->stretch({2});
    m_finer->setToolTip(tr("The time of the split follows the hair line between two frames; the "
                           "mark itself stays on the frame."));
    m_point->addItem(tr("the bow"), static_cast<int>(TimingPoint::Bow));
    m_point->addItem(tr("the body"), static_cast<int>(TimingPoint::Body));
    m_point->setToolTip(tr("What is timed at the lines of this film: one point for a whole race. "
                           "Proposals tell when it crosses."));
    makeLayout();
    connect(m_line, &QComboBox::activated, this,
            [this](int line) { emit lineChosen(static_cast<std::size_t>(line)); });
    connect(m_split, &QComboBox::activated, this,
            [this](int split) { emit splitChosen(static_cast<std::size_t>(split)); });
    connect(m_point, &QComboBox::activated, this,
            [this] { emit pointChosen(static_cast<TimingPoint>(m_point->currentData().toInt())); });
    connect(m_openRace, &QPushButton::clicked, this, &SlitPanel::raceWanted);
    connect(m_finer, &QCheckBox::toggled, this, &SlitPanel::finerChosen);
    connect(m_runTable, &ColumnTable::chosen, this, &SlitPanel::runChosen);
    connect(m_runTable, &ColumnTable::clicked, this, &SlitPanel::runClicked);
    connect(m_proposalTable, &ColumnTable::clicked, this, [this] {
        const int place = m_proposalTable->currentPlace();
        if (place < 0)
            return;
        const ProposalRow row = m_proposals.row(place); // who listens may show other rows
        emit proposalChosen(row.proposal.seconds, row.run);
    });
}

void SlitPanel::makeLayout() {
    setMinimumWidth(grown(*this, 300));
    m_progress->setMaximumHeight(grown(*this, 18));
    auto* const lines = new QHBoxLayout;
    lines->addWidget(m_line, 1);
    lines->addWidget(new QLabel(tr("marks")));
    lines->addWidget(m_split, 1);
    auto* const timed = new QLabel(tr("Ti&med is"));
    timed->setBuddy(m_point);
    auto* const points = new QHBoxLayout;
    points->addWidget(timed);
    points->addWidget(m_point, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->addLayout(lines);
    column->addLayout(points);
    column->addWidget(m_race);
    column->addWidget(m_openRace);
    column->addWidget(m_runTable, 3);
    column->addWidget(m_finer);
    column->addWidget(m_proposalTable, 2);
    column->addWidget(m_progress);
    column->addWidget(m_note);
}

void SlitPanel::showLines(const SlitMarking& marking, std::size_t lines, const SlitRace& race) {
    const QSignalBlocker quiet(m_line);
    const QSignalBlocker still(m_split);
    m_line->clear();
    for (std::size_t number = 1; number <= lines; ++number)
        m_line->addItem(tr("Line %1").arg(number));
    m_line->setCurrentIndex(marking.line() ? static_cast<int>(marking.number()) : -1);
    m_line->setEnabled(lines > 0);
    m_split->clear();
    for (std::size_t split = 0; split <= std::max(race.splits(), marking.split()); ++split)
        m_split->addItem(race.titleOf(split));
    m_split->setCurrentIndex(marking.line() ? static_cast<int>(marking.split()) : -1);
    m_split->setEnabled(marking.line() != nullptr);
    m_point->setCurrentIndex(m_point->findData(static_cast<int>(marking.point())));
    m_point->setEnabled(marking.line() != nullptr);
    const bool hasBoat = marking.line() && marking.line()->boatWidth > 0;
    m_proposalTable->setEmptyText(
        hasBoat ? tr("Look for boats (Ctrl+B): where they may have crossed is listed here.")
                : tr("Draw a box round one boat (B), then look for boats (Ctrl+B): where they may "
                     "have crossed is listed here."));
}

void SlitPanel::showRows(SlitMarking::Rows rows) {
    m_runs.show(std::move(rows.runs));
    m_proposals.show(std::move(rows.proposals));
}

void SlitPanel::showRace(const SlitRace& race, const QString& film, bool hasLine) {
    m_openRace->setVisible(!race.isThere() && !film.isEmpty());
    m_race->setText(race.isThere() ? tr("Marks go into %1").arg(race.name())
                                   : tr("Marks need the race of this film in split taking."));
    m_runTable->setEmptyText(
        race.isThere() && hasLine
            ? tr("No run of %1 has the film %2. Add it there as a film of the runs or as a fixed "
                 "camera.")
                  .arg(race.name(), film)
            : tr("The runs that are seen on this film are listed here."));
}

void SlitPanel::showWork(const QString& what, double share) {
    constexpr double Percent = 100;
    m_progress->setVisible(!what.isEmpty());
    m_progress->setFormat(what + QStringLiteral(" %p %"));
    m_progress->setValue(static_cast<int>(Percent * share));
}

void SlitPanel::tell(const QString& text) {
    m_note->tell(text);
}

void SlitPanel::setFiner(bool isFiner) {
    m_finer->setChecked(isFiner);
}

const SlitRunRow* SlitPanel::chosen() const {
    const int place = m_runTable->currentPlace();
    return place >= 0 && place < static_cast<int>(m_runs.rows().size())
               ? &m_runs.rows()[static_cast<std::size_t>(place)]
               : nullptr;
}

} // namespace kavela::desktop
