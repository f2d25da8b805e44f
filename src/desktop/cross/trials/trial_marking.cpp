#include "desktop/cross/trials/trial_marking.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/gate_mark_text.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/course_setup.h"

#include <algorithm>

namespace kavela::desktop {

TrialMarking::TrialMarking(TrialDesk& desk, const QWidget& page) : m_desk(desk), m_page(page) {}

QString TrialMarking::nextText() const {
    if (!m_desk.trial())
        return tr("Add the first athlete above");
    if (m_desk.mode() == TrialMode::Splits) {
        const RunMarks marks = m_desk.runMarks();
        return marks.start ? tr("M marks split %1").arg(marks.marks.size() + 1)
                           : tr("M marks the start");
    }
    const auto next = m_desk.nextGateMark();
    if (m_desk.mode() == TrialMode::Roll)
        return next ? tr("M marks the %1").arg(rollMarkText(*next)) : tr("The roll is marked");
    const auto gate = m_desk.gate();
    if (!gate)
        return tr("The cross course has no gates yet");
    return next ? tr("Gate %1: M marks the %2").arg(*gate).arg(gateMarkText(*next))
                : tr("Gate %1 is marked").arg(*gate);
}

std::optional<CMTime> TrialMarking::runningFrom() const {
    if (m_desk.mode() == TrialMode::Splits) {
        const RunMarks marks = m_desk.runMarks();
        return marks.start ? std::optional(marks.start->front()) : std::nullopt;
    }
    if (!m_desk.nextGateMark())
        return std::nullopt;
    if (m_desk.mode() == TrialMode::Roll)
        return markOf(m_desk.trial()->roll.cmtimes, GateMark::Entrance);
    return m_desk.upstream() ? markOf(m_desk.upstream()->cmtimes, GateMark::Entrance)
                             : std::nullopt;
}

void TrialMarking::mark(const CMTime& moment) {
    if (!m_desk.trial()) {
        emit m_desk.told(nextText());
        return;
    }
    emit m_desk.told({});
    switch (m_desk.mode()) {
    case TrialMode::Splits:
        markSplit(moment);
        break;
    case TrialMode::Upstreams:
        markGate(moment);
        break;
    case TrialMode::Roll:
        markRoll(moment);
        break;
    }
}

/// A time from elsewhere is replaced only when that is meant.
bool TrialMarking::mayMarkAnew() const {
    if (m_desk.trial()->time <= 0 || m_desk.runMarks() != RunMarks())
        return true;
    return m_desk.desk().workspace.ask(
        {"", tr("The time of this trial was taken without marks on the film. Marking it anew "
                "replaces it.")
                 .toStdString()},
        tr("Mark anew"), m_page.window());
}

void TrialMarking::markSplit(const CMTime& moment) {
    if (!mayMarkAnew())
        return;
    RunMarks marks = m_desk.runMarks();
    if (const auto refused = markNext(marks, {moment}, MostSplits)) {
        refuses(refused->text);
        return;
    }
    const std::size_t place = markAt(marks, moment).value_or(marks.marks.size());
    const bool isStart = place == 0;
    m_desk.setRunMarks(isStart ? tr("start mark") : tr("split %1").arg(place), marks);
    m_desk.selectWhere([place](const TrialMark& mark) {
        return mark.mode == TrialMode::Splits && mark.place == place;
    });
    const double seconds = isStart ? 0 : splitTimes(marks).at(place - 1);
    emit m_desk.flashed(isStart ? tr("Start")
                                : tr("%1:  %2").arg(place).arg(shownHundredths(seconds)));
    if (!isStart && place < marks.marks.size())
        emit m_desk.told(
            tr("Split %1 was put in between two marks. Ctrl+Z takes it out again.").arg(place));
}

void TrialMarking::markGate(const CMTime& moment) {
    const auto which = m_desk.nextGateMark();
    const auto front = m_desk.gate();
    if (!front || !which) {
        emit m_desk.told(front ? tr("Gate %1 is marked. N goes to the next gate, Shift+M moves "
                                    "the selected mark.")
                                     .arg(*front)
                               : tr("The cross course has no gates yet: they are set above."));
        return;
    }
    const std::int64_t gate = *front;
    const GateMarks before = m_desk.upstream() ? m_desk.upstream()->cmtimes : GateMarks();
    if (refuses(refusalOfGateMark(before, *which, moment)))
        return;
    m_desk.edit(tr("%1 of gate %2").arg(gateMarkText(*which)).arg(gate), [&](ttdata030& trial) {
        markUpstream(trial, m_desk.desk().cross().crossinfo, gate, *which, moment);
    });
    emit m_desk.flashed(tr("Gate %1 %2").arg(gate).arg(gateMarkText(*which)));
    m_desk.selectWhere([&](const TrialMark& mark) {
        return mark.mode == TrialMode::Upstreams && mark.gate == gate && mark.which == which;
    });
    if (*which == GateMark::Exit)
        m_desk.goOn();
}

void TrialMarking::markRoll(const CMTime& moment) {
    const auto which = m_desk.nextGateMark();
    if (!which) {
        emit m_desk.told(
            tr("The roll is marked. Shift+M moves the selected mark, Delete removes it."));
        return;
    }
    if (refuses(refusalOfGateMark(m_desk.trial()->roll.cmtimes, *which, moment, NamesOfRoll)))
        return;
    m_desk.edit(rollMarkText(*which),
                [&](ttdata030& trial) { setMark(trial.roll.cmtimes, *which, moment); });
    emit m_desk.flashed(rollMarkText(*which));
    m_desk.selectWhere(
        [&](const TrialMark& mark) { return mark.mode == TrialMode::Roll && mark.which == which; });
}

/// Whether a mark is refused, which is told then.
bool TrialMarking::refuses(const std::optional<std::string>& why) {
    if (why) {
        emit m_desk.told(qtText(*why));
        emit m_desk.flashed(qtText(*why));
    }
    return why.has_value();
}

std::optional<std::string> TrialMarking::refusalToMove(const TrialMark& mark,
                                                       const CMTime& moment) const {
    if (mark.mode == TrialMode::Splits) {
        const auto refused = kavela::refusalToMove(m_desk.runMarks(), mark.place, moment);
        return refused ? std::optional(refused->text) : std::nullopt;
    }
    ttdata030 trial = *m_desk.trial();
    return mark.which ? refusalOfGateMark(listOf(trial, mark), *mark.which, moment,
                                          mark.mode == TrialMode::Roll ? NamesOfRoll : NamesAtGate)
                      : std::nullopt;
}

void TrialMarking::move(const CMTime& moment) {
    if (!m_desk.trial() || !m_desk.selectedMark()) {
        emit m_desk.told(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    const TrialMark mark = *m_desk.selected();
    emit m_desk.told({});
    if (refuses(refusalToMove(mark, moment))) {
        emit m_desk.marksChanged(); // where it was, if it was dragged
        return;
    }
    moveSelected(mark, moment);
    m_desk.select(mark);
}

void TrialMarking::moveSelected(const TrialMark& mark, const CMTime& moment) {
    const QString what = tr("mark moved");
    if (mark.mode != TrialMode::Splits) {
        m_desk.edit(what, [&](ttdata030& trial) { moveGateMark(trial, mark, moment); });
        return;
    }
    RunMarks marks = m_desk.runMarks();
    if (mark.place == 0)
        setStart(marks, {moment});
    else
        kavela::moveMark(marks, mark.place, {moment});
    m_desk.setRunMarks(what, marks);
}

void TrialMarking::remove() {
    if (!m_desk.trial())
        return;
    if (!m_desk.selectedMark()) {
        removeGate();
        return;
    }
    const TrialMark mark = *m_desk.selected();
    m_desk.dropSelection();
    removeSelected(mark);
    emit m_desk.marksChanged();
}

void TrialMarking::removeSelected(const TrialMark& mark) {
    const QString what = tr("mark removed");
    if (mark.mode != TrialMode::Splits) {
        m_desk.edit(what, [&](ttdata030& trial) { removeGateMark(trial, mark); });
        return;
    }
    RunMarks marks = m_desk.runMarks();
    if (mark.place == 0)
        marks.start.reset();
    else
        kavela::removeMark(marks, mark.place);
    m_desk.setRunMarks(what, marks);
    if (mark.place == 0 && !marks.marks.empty())
        emit m_desk.told(
            tr("Without a start mark the time counts from the beginning of the film."));
}

void TrialMarking::removeGate() {
    if (m_desk.mode() != TrialMode::Upstreams || !m_desk.upstream() ||
        !m_desk.upstream()->cmtimes.empty())
        return;
    const std::int64_t gate = *m_desk.gate();
    m_desk.edit(tr("gate %1 removed").arg(gate), [gate](ttdata030& trial) {
        eraseEntry(trial.upstreams, *upstreamAt(trial, gate));
    });
}

void TrialMarking::goToNumber(int number) {
    const auto place = static_cast<std::size_t>(number);
    const TrialMode mode = m_desk.mode();
    if (mode == TrialMode::Upstreams) {
        const auto& gates = m_desk.desk().cross().crossinfo.gates;
        if (place <= gates.size())
            m_desk.setGate(gates[place - 1]);
        return;
    }
    for (const TrialMark& mark : m_desk.marks()) {
        const bool isIt = mode == TrialMode::Splits
                              ? mark.place == place
                              : mark.which && static_cast<int>(*mark.which) == number - 1;
        if (mark.mode == mode && isIt) {
            m_desk.goTo(mark);
            return;
        }
    }
}

} // namespace kavela::desktop
