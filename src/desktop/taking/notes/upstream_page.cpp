#include "desktop/taking/notes/upstream_page.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/gate_mark_text.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/gate_strip.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/annotations/upstream_gates.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString upstreamTurn(const UpstreamRow& row) {
    return row.taken ? qtText(labelOf(LabelList::UpstreamDirection, row.taken->direction) + ", " +
                              labelOf(LabelList::UpstreamStyle, row.taken->style))
                     : QString();
}

/// 0 was not timed.
Column<UpstreamRow> upstreamTime(const QString& title, double upstreamdata025::*seconds) {
    return numberColumn<UpstreamRow>(
        title,
        [seconds](const UpstreamRow& row) {
            return row.taken && (*row.taken).*seconds != 0 ? std::optional((*row.taken).*seconds)
                                                           : std::nullopt;
        },
        shownHundredths);
}

std::vector<Column<UpstreamRow>> upstreamColumns() {
    return {numberColumn<UpstreamRow>(UpstreamPage::tr("Gate"), &UpstreamRow::gate,
                                      [](double gate) { return shownNumber(gate); }),
            upstreamTime(UpstreamPage::tr("In"), &upstreamdata025::timeEntrace),
            upstreamTime(UpstreamPage::tr("Out"), &upstreamdata025::timeExit),
            upstreamTime(UpstreamPage::tr("Total"), &upstreamdata025::time),
            textColumn<UpstreamRow>(UpstreamPage::tr("Turn"), upstreamTurn)};
}

} // namespace

UpstreamPage::UpstreamPage(NoteDesk& desk)
    : NotePage(desk),
      m_front(new QLabel),
      m_times(new QLabel),
      m_withMiddle(new QCheckBox(tr("Mark the pole line too"))),
      m_turn([this](const QString&, const auto& act) { change(act); }),
      m_gates(upstreamColumns(), RowsKnownBy::Number),
      m_table(noteTable(m_gates, "upstreams", [this](int place) { clickGate(place); })) {
    m_front->setObjectName("upstreamFront");
    m_front->setFont(theme::titleFont(*this));
    m_times->setObjectName("upstreamTimes");
    m_withMiddle->setObjectName("upstreamMiddle");
    m_withMiddle->setChecked(true);
    m_turn.code({.name = "upstreamDirection", .label = tr("Turn to the")},
                LabelList::UpstreamDirection, &upstreamdata025::direction);
    m_turn.code({.name = "upstreamStyle", .label = tr("Style")}, LabelList::UpstreamStyle,
                &upstreamdata025::style);
    m_turn.layout()->setSpacing(theme::SmallSpacing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_front);
    column->addWidget(m_times);
    column->addWidget(m_withMiddle);
    column->addWidget(&m_turn);
    column->addWidget(m_table, 1);
    connect(m_withMiddle, &QCheckBox::toggled, this, &UpstreamPage::refresh);
}

/// Its marks are what the keys mean then.
void UpstreamPage::clickGate(int place) {
    const auto clicked = m_gates.row(place).gate;
    emit rowChosen();
    m_desk.gates.setCurrent(static_cast<int>(clicked));
    m_clicked = {m_desk.run, clicked};
}

std::optional<Alert> UpstreamPage::refusal() const {
    return upstreamModeRefusal(m_desk.document.info());
}

void UpstreamPage::enter() {
    if (!gate() || !nextMark())
        goOn();
    if (!gate()) // all are marked
        m_desk.gates.setCurrent(static_cast<int>(upstreamGates(m_desk.document.info()).front()));
}

/// The gate in front when it is an upstream gate.
std::optional<std::int64_t> UpstreamPage::gate() const {
    const auto gates = upstreamGates(m_desk.document.info());
    const std::int64_t current = m_desk.gates.current();
    return std::ranges::find(gates, current) == gates.end() ? std::nullopt : std::optional(current);
}

const upstreamdata025* UpstreamPage::entry() const {
    const athletedata031* const run = m_desk.record();
    const auto place = run && gate() ? upstreamAt(*run, *gate()) : std::nullopt;
    return place ? &run->upstreams[*place] : nullptr;
}

/// The mark that the gate in front still wants; a middle left out of a finished gate is not asked
/// for again.
std::optional<GateMark> UpstreamPage::nextMark() const {
    const upstreamdata025* const upstream = entry();
    return kavela::nextMark(upstream ? upstream->cmtimes : GateMarks(), m_withMiddle->isChecked());
}

void UpstreamPage::goOn() {
    const athletedata031* const run = m_desk.record();
    if (!run)
        return;
    if (const auto next = nextUpstreamMark(*run, m_desk.document.info(), m_withMiddle->isChecked()))
        m_desk.gates.setCurrent(static_cast<int>(next->gate));
}

void UpstreamPage::mark(const Stamps& stamps) {
    m_clicked.reset();
    const auto front = gate();
    const auto which = front ? nextMark() : std::nullopt;
    if (!which) {
        emit told(front ? tr("Gate %1 is marked. N goes to the next gate, Shift+M moves the "
                             "selected mark.")
                              .arg(*front)
                        : tr("Gate %1 is no upstream gate. N goes to the next one.")
                              .arg(m_desk.gates.current()));
        return;
    }
    const GateMarks marks = entry() ? entry()->cmtimes : GateMarks();
    if (refuses(refusalOfGateMark(marks, *which, stamps.front())))
        return;
    edit(tr("%1 of gate %2").arg(gateMarkText(*which)).arg(*front), [&](athletedata031& run) {
        markUpstream(run, m_desk.document.info(), *front, *which, stamps.front());
    });
    emit flashed(tr("Gate %1 %2").arg(*front).arg(gateMarkText(*which)));
    emit marked(MarkKind::Upstream, stamps.front());
    if (*which == GateMark::Exit)
        goOn();
}

void UpstreamPage::choose(const LaneMark& mark) {
    m_desk.gates.setCurrent(
        static_cast<int>(m_desk.record()->upstreams.at(mark.handle.record).num));
}

bool UpstreamPage::removeCurrent() {
    const bool isMeant =
        entry() && (entry()->cmtimes.empty() || m_clicked == std::pair(m_desk.run, *gate()));
    m_clicked.reset();
    if (!isMeant)
        return false;
    const std::int64_t removed = *gate();
    edit(tr("gate %1 removed").arg(removed),
         [removed](athletedata031& run) { removeUpstream(run, removed); });
    emit told(tr("The marks of gate %1 are removed. Ctrl+Z brings them back.").arg(removed));
    return true;
}

bool UpstreamPage::stepGate(int step) {
    const auto gates = upstreamGates(m_desk.document.info());
    const std::int64_t current = m_desk.gates.current();
    std::optional<std::int64_t> found;
    for (const std::int64_t gate : gates)
        if (step < 0 ? gate < current : gate > current && !found)
            found = gate;
    if (found)
        m_desk.gates.setCurrent(static_cast<int>(*found));
    return true;
}

void UpstreamPage::refresh() {
    m_turn.show(entry());
    if (!gate())
        m_front->setText(tr("Gate %1 is no upstream gate").arg(m_desk.gates.current()));
    else if (const auto which = nextMark())
        m_front->setText(tr("Gate %1: M marks the %2").arg(*gate()).arg(gateMarkText(*which)));
    else
        m_front->setText(tr("Gate %1 is marked").arg(*gate()));
    showTable();
    showFrame();
}

void UpstreamPage::showTable() {
    std::vector<UpstreamRow> rows;
    const athletedata031* const run = m_desk.record();
    for (const std::int64_t number : upstreamGates(m_desk.document.info())) {
        const auto place = run ? upstreamAt(*run, number) : std::nullopt;
        rows.push_back({number, place ? std::optional(run->upstreams[*place]) : std::nullopt});
    }
    m_gates.show(std::move(rows));
}

/// The time at the gate in front runs along with the film until its exit is marked.
void UpstreamPage::showFrame() {
    const upstreamdata025* const upstream = entry();
    const auto from = upstream ? markOf(upstream->cmtimes, GateMark::Entrance) : std::nullopt;
    const auto now = m_desk.moment();
    double seconds = upstream ? upstream->time : 0;
    if (from && now && nextMark())
        seconds = std::max(0.0, secondsFrom(*from, *now));
    m_times->setText(tr("%1 s in the gate").arg(hundredthsOrDash(seconds)));
}

void UpstreamPage::change(const std::function<void(upstreamdata025&)>& act) {
    edit(tr("gate %1").arg(m_desk.gates.current()), [&](athletedata031& run) {
        if (const auto place = upstreamAt(run, m_desk.gates.current()))
            act(run.upstreams[*place]);
    });
}

} // namespace kavela::desktop
