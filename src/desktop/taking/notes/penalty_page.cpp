#include "desktop/taking/notes/penalty_page.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/code_combo.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/gate_strip.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/refusals.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

std::size_t placeOf(PenaltyField field) {
    return static_cast<std::size_t>(field);
}

Column<PenaltyEntry> codeColumn(const QString& title, PenaltyField field) {
    return textColumn<PenaltyEntry>(title, [field](const PenaltyEntry& entry) {
        return entry[field] ? qtText(labelOf(*labelListOf(field), *entry[field])) : QString();
    });
}

std::vector<Column<PenaltyEntry>> penaltyColumns() {
    return {numberColumn<PenaltyEntry>(
                PenaltyPage::tr("Gate"),
                [](const PenaltyEntry& entry) { return entry[PenaltyField::Gate]; },
                [](double gate) { return shownNumber(gate); }),
            codeColumn(PenaltyPage::tr("Penalty"), PenaltyField::Kind),
            codeColumn(PenaltyPage::tr("Pole"), PenaltyField::Pole),
            codeColumn(PenaltyPage::tr("With"), PenaltyField::Way)};
}

} // namespace

PenaltyPage::PenaltyPage(NoteDesk& desk)
    : NotePage(desk),
      m_front(new QLabel),
      m_outOfStep(new QLabel),
      m_another(new QPushButton(tr("Another at this gate"))),
      m_entries(penaltyColumns(), RowsKnownBy::Number),
      m_table(noteTable(m_entries, "penalties", [this](int row) { choose(row); })) {
    m_front->setObjectName("penaltyFront");
    m_front->setFont(theme::titleFont(*this));
    m_front->setWordWrap(true);
    m_outOfStep->setObjectName("penaltyOutOfStep");
    m_outOfStep->setWordWrap(true);
    m_another->setObjectName("penaltyAnother");
    m_another->setToolTip(tr("Choose what else happened at the gate in front; M adds it"));
    connect(m_another, &QPushButton::clicked, this, &PenaltyPage::begin);
    addCodes();
}

void PenaltyPage::addCodes() {
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(m_front);
    struct Row {
        PenaltyField field;
        QString title;
        const char* name;
    };
    for (const Row& row : {Row{PenaltyField::Kind, tr("Penalty"), "penaltyKind"},
                           Row{PenaltyField::Pole, tr("Pole"), "penaltyPole"},
                           Row{PenaltyField::Way, tr("With"), "penaltyWay"},
                           Row{PenaltyField::Moment, tr("Moment"), "penaltyMoment"},
                           Row{PenaltyField::GateKind, tr("Gate is"), "penaltyGateKind"},
                           Row{PenaltyField::Direction, tr("Boat moves"), "penaltyDirection"},
                           Row{PenaltyField::Style, tr("Style"), "penaltyStyle"},
                           Row{PenaltyField::Eye, tr("Eyes"), "penaltyEye"}}) {
        auto* combo = new CodeCombo(*labelListOf(row.field));
        combo->setObjectName(row.name);
        m_codes[placeOf(row.field)] = combo;
        form->addRow(row.title, combo);
        connect(combo, &CodeCombo::codeChosen, this,
                [this, field = row.field](std::int64_t code) { change(field, code); });
    }
    form->addRow(m_another);
    form->addRow(m_outOfStep);
    form->addRow(m_table);
}

std::int64_t PenaltyPage::codeOf(PenaltyField field) const {
    return m_codes[placeOf(field)]->code();
}

void PenaltyPage::forget() {
    m_run = -1;
}

void PenaltyPage::refresh() {
    const athletedata031* const run = m_desk.record();
    m_entries.show(run ? penaltyEntries(*run) : std::vector<PenaltyEntry>());
    const bool isChosenThere =
        m_chosen && std::ranges::any_of(m_entries.rows(), [&](const auto& entry) {
            return entry.handle == *m_chosen && entry[PenaltyField::Gate] == m_chosenGate;
        });
    const bool isSamePlace = m_gate == m_desk.gates.current() && m_run == m_desk.run;
    m_isBeginning = m_isBeginning && isSamePlace;
    if (!m_isBeginning && (!isChosenThere || !isSamePlace))
        chooseAtGate();
    showChosen();
    showOutOfStep();
}

/// The last penalty of the gate in front; a gate without one offers the codes that are likely
/// there.
void PenaltyPage::chooseAtGate() {
    m_gate = m_desk.gates.current();
    m_run = m_desk.run;
    m_chosen.reset();
    m_chosenGate = m_gate;
    for (const PenaltyEntry& entry : m_entries.rows())
        if (entry[PenaltyField::Gate] == m_gate)
            m_chosen = entry.handle;
    if (m_chosen)
        return;
    const bool isUpstream = std::ranges::count(m_desk.document.info().upGates, m_gate) > 0;
    for (CodeCombo* const combo : m_codes)
        if (combo)
            combo->setCode(0);
    m_codes[placeOf(PenaltyField::GateKind)]->setCode(
        kavela::codeOf(LabelList::PenaltyGateKind, isUpstream ? "upstream" : "downstream")
            .value_or(0));
}

/// What the lists say stays, and is a penalty of its own from now on.
void PenaltyPage::begin() {
    m_isBeginning = true;
    m_chosen.reset();
    m_gate = m_desk.gates.current();
    m_run = m_desk.run;
    emit rowChosen();
    refresh();
}

void PenaltyPage::showChosen() {
    const athletedata031* const run = m_desk.record();
    const std::int64_t seconds =
        run ? entryOrZero(run->sectioninfo.pens, static_cast<std::size_t>(m_gate - 1)) : 0;
    m_front->setText((m_chosen ? tr("Gate %1: %2 s. The lists change its penalty.")
                               : tr("Gate %1: %2 s. M adds a penalty."))
                         .arg(m_gate)
                         .arg(seconds));
    m_another->setEnabled(m_chosen.has_value());
    const auto chosen = std::ranges::find(m_entries.rows(), m_chosen, &PenaltyEntry::handle);
    m_table->choose(m_chosen ? static_cast<int>(chosen - m_entries.rows().begin()) : -1);
    if (!m_chosen)
        return;
    for (std::size_t field = 0; field < PenaltyFields; ++field) {
        if (m_codes[field] && chosen->codes[field])
            m_codes[field]->setCode(*chosen->codes[field]);
        else if (m_codes[field])
            m_codes[field]->clearCode();
    }
}

void PenaltyPage::showOutOfStep() {
    QStringList gates;
    if (const athletedata031* const run = m_desk.record())
        for (const std::int64_t gate : gatesOutOfStep(*run, m_desk.document.info().gates))
            gates.append(QString::number(gate));
    m_outOfStep->setVisible(!gates.isEmpty());
    m_outOfStep->setText(
        tr("The seconds differ from the penalties listed at gate %1.").arg(gates.join(", ")));
}

void PenaltyPage::choose(int row) {
    const PenaltyEntry entry = m_entries.row(row); // refreshed meanwhile
    const auto gate = entry[PenaltyField::Gate].value_or(0);
    if (gate >= 1 && gate <= m_desk.document.info().gates)
        m_desk.gates.setCurrent(static_cast<int>(gate));
    m_isBeginning = false;
    m_gate = m_desk.gates.current();
    m_chosen = entry.handle;
    m_chosenGate = entry[PenaltyField::Gate];
    emit rowChosen();
    refresh();
}

void PenaltyPage::mark(const Stamps&) {
    const auto gates = m_desk.document.info().gates;
    if (gates <= 0) {
        emit told(tr("The course has no gates yet: Ctrl+G sets it up."));
        return;
    }
    const PenaltyDetail detail{m_gate,
                               codeOf(PenaltyField::GateKind),
                               codeOf(PenaltyField::Kind),
                               codeOf(PenaltyField::Pole),
                               codeOf(PenaltyField::Way),
                               codeOf(PenaltyField::Moment),
                               codeOf(PenaltyField::Direction),
                               codeOf(PenaltyField::Style),
                               codeOf(PenaltyField::Eye)};
    if (const auto why = refusalOfPenalty(*m_desk.record(), detail)) {
        emit refused(QString::fromStdString(*why) + ' ' +
                     tr("\"%1\" begins a second one.").arg(m_another->text()));
        return;
    }
    m_isBeginning = false;
    m_chosenGate = m_gate;
    edit(tr("penalty at gate %1").arg(m_gate),
         [&](athletedata031& run) { m_chosen = addPenalty(run, detail, gates); });
}

bool PenaltyPage::removeCurrent() {
    if (!m_chosen)
        return false;
    const PenaltyHandle removed = *m_chosen;
    m_chosen.reset();
    edit(tr("penalty removed"),
         [&](athletedata031& run) { removePenalty(run, removed, m_desk.document.info().gates); });
    return true;
}

void PenaltyPage::change(PenaltyField field, std::int64_t code) {
    if (m_chosen)
        edit(tr("penalty at gate %1").arg(m_gate), [&](athletedata031& run) {
            changePenalty(run, *m_chosen, field, code, m_desk.document.info().gates);
        });
}

} // namespace kavela::desktop
