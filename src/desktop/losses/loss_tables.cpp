#include "desktop/losses/loss_tables.h"

#include "desktop/losses/loss_state.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/why/why_popup.h"

#include <QScopedValueRollback>
#include <QTabBar>

#include <algorithm>
#include <array>

namespace kavela::desktop {

LossTables::LossTables(LossState& state, QWidget* parent)
    : QTabWidget(parent),
      m_state(state),
      m_stretches(stretchColumns(1), [](const StretchLine& line) { return line.stretch.first; }),
      m_runs(runColumns([&state](std::size_t run) {
                 state.setReference({LossReferenceKind::Run, state.facts().runs()[run].number});
             }),
             [](const RunLine& line) { return line.losses.run; }),
      m_gates(gateColumns(),
              [](const GateLine& line) { return static_cast<std::size_t>(line.gate.gate); }),
      m_notes(noteColumns()),
      m_ways(wayColumns()),
      m_stretchTable(new ColumnTable(m_stretches, "stretches")),
      m_runTable(new ColumnTable(m_runs, "runs")),
      m_gateTable(new ColumnTable(m_gates, "gates")),
      m_noteTable(new ColumnTable(m_notes, "notes")),
      m_wayTable(new ColumnTable(m_ways, "ways")) {
    setDocumentMode(true);
    tabBar()->setDrawBase(false); // white on dark
    m_gateTable->setEmptyText(tr("Both runs have no upstream gate timed in common."));
    m_noteTable->setEmptyText(tr("No time lost is noted of this run."));
    m_wayTable->setEmptyText(tr("No ways are compared in this run."));
    addTab(m_stretchTable, tr("Sections"));
    addTab(m_runTable, tr("Runs"));
    addTab(m_gateTable, tr("Gates"));
    addTab(m_noteTable, tr("Notes"));
    addTab(m_wayTable, tr("Ways"));
    m_stretchTable->addCommand(tr("&Play both films"), {}, [this] {
        if (const int place = m_stretchTable->currentPlace(); place >= 0)
            emit stretchActivated(static_cast<std::size_t>(place));
    });
    m_runTable->addCommand(tr("Hold all against this &run"), {}, [this] { makeChosenReference(); });
    connectTables();
    makeAnswers();
    showState();
}

void LossTables::connectTables() {
    connect(&m_state, &LossState::changed, this, &LossTables::showState);
    connect(&m_state, &LossState::sectionChosen, this, &LossTables::showSection);
    connect(m_stretchTable, &ColumnTable::chosen, this, &LossTables::takeStretch);
    connect(m_runTable, &ColumnTable::chosen, this, &LossTables::takeRun);
    connect(m_gateTable, &ColumnTable::chosen, this, &LossTables::takeGate);
    connect(m_stretchTable, &ColumnTable::activated, this, [this](const QModelIndex& cell) {
        emit stretchActivated(static_cast<std::size_t>(m_stretchTable->placeAt(cell)));
    });
    // The first column has the sign for playing, which is there to be clicked.
    connect(m_stretchTable, &ColumnTable::clicked, this, [this](const QModelIndex& cell) {
        const int place = m_stretchTable->placeAt(cell);
        if (cell.column() == 0 && m_stretches.row(place).hasClip)
            emit stretchActivated(static_cast<std::size_t>(place));
    });
    connect(m_gateTable, &ColumnTable::activated, this, [this](const QModelIndex&) {
        if (const Stretch* const stretch = m_state.stretch())
            emit stretchActivated(
                static_cast<std::size_t>(stretch - m_state.losses().stretches.data()));
    });
    connect(m_runTable, &ColumnTable::activated, this,
            [this](const QModelIndex&) { goToTable(0); });
}

void LossTables::makeAnswers() {
    answerWhy(m_stretchTable, [this](const QModelIndex& cell) {
        return whyOf(m_state, m_stretches.row(m_stretchTable->placeAt(cell)), cell.column(),
                     m_gateColumns);
    });
    answerWhy(m_runTable, [this](const QModelIndex& cell) {
        return whyOf(m_state, m_runs.row(m_runTable->placeAt(cell)), cell.column());
    });
    answerWhy(m_gateTable, [this](const QModelIndex& cell) {
        return whyOf(m_state, m_gates.row(m_gateTable->placeAt(cell)), cell.column());
    });
    answerWhy(m_noteTable, [this](const QModelIndex& cell) {
        return whyOf(m_state, m_notes.row(m_noteTable->placeAt(cell)), cell.column());
    });
    answerWhy(m_wayTable, [this](const QModelIndex& cell) {
        return whyOf(m_state, m_ways.row(m_wayTable->placeAt(cell)), cell.column());
    });
}

void LossTables::showState() {
    {
        const QScopedValueRollback showing(m_isShowing, true);
        m_stretchTable->setEmptyText(nothingToShow(m_state));
        if (const std::size_t gates = mostGates(m_state.losses()); gates != m_gateColumns) {
            m_gateColumns = gates;
            m_stretches.setColumns(stretchColumns(gates));
        }
        m_stretches.show(stretchLines(m_state));
        m_runs.show(runLines(m_state));
        m_gates.show(gateLines(m_state));
        m_notes.show(noteLines(m_state));
        m_ways.show(wayLines(m_state));
        const int place = m_state.hasRun() ? m_runs.placeOfKey(m_state.run()) : -1;
        if (place >= 0 && place != m_runTable->currentPlace())
            m_runTable->choose(place);
    }
    std::size_t unfinished = 0;
    if (m_state.hasRun()) {
        const std::array run{m_state.run()};
        unfinished = lossNotesOf(m_state.facts(), run).unfinished;
    }
    setTabText(indexOf(m_noteTable),
               unfinished > 0 ? tr("Notes (%1 unfinished)").arg(unfinished) : tr("Notes"));
    showSection();
}

void LossTables::showSection() {
    const QScopedValueRollback showing(m_isShowing, true);
    const Stretch* const stretch = m_state.stretch();
    if (!stretch)
        return;
    const int place = m_stretches.placeOfKey(stretch->first);
    if (place >= 0 && place != m_stretchTable->currentPlace())
        m_stretchTable->choose(place);
}

void LossTables::takeStretch() {
    const int place = m_stretchTable->currentPlace();
    if (!m_isShowing && place >= 0)
        m_state.chooseSection(m_stretches.row(place).stretch.first);
}

void LossTables::takeRun() {
    const int place = m_runTable->currentPlace();
    if (!m_isShowing && place >= 0)
        m_state.setRun(m_runs.row(place).losses.run);
}

/// A gate shows its section in the charts.
void LossTables::takeGate() {
    const int place = m_gateTable->currentPlace();
    if (m_isShowing || place < 0)
        return;
    for (const Stretch& stretch : m_state.losses().stretches)
        for (const GateLoss& gate : stretch.gates)
            if (gate.gate == m_gates.row(place).gate.gate) {
                m_state.chooseSection(stretch.first);
                return;
            }
}

void LossTables::goToTable(int index) {
    setCurrentIndex(index);
    currentWidget()->setFocus();
}

void LossTables::makeChosenReference() {
    if (const int place = m_runTable->currentPlace(); place >= 0)
        m_state.setReference(
            {LossReferenceKind::Run, m_state.facts().runs()[m_runs.row(place).losses.run].number});
}

} // namespace kavela::desktop
