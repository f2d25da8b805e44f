#include "desktop/cross/trials/gate_form.h"
#include "desktop/cross/trials/trial_list.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/gate_mark_text.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/cross_heats.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/course_setup.h"
#include "splittaking/video_names.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

/// What the page of the time trials changes. Every change is one step that can be undone.
namespace kavela::desktop {

namespace {

/// The starts when a trial is gone and those behind it move up.
TrialStarts startsWithout(const TrialStarts& starts, std::size_t trial) {
    TrialStarts left;
    for (const auto& [place, start] : starts)
        if (place != trial)
            left.emplace(place > trial ? place - 1 : place, start);
    return left;
}

} // namespace

void TrialPage::commit() {
    auto* const field = qobject_cast<QLineEdit*>(focusWidget());
    if (field && field->hasFocus())
        field->clearFocus(); // ends the editing of a cell
}

void TrialPage::editTrial(const QString& what, const std::function<void(ttdata030&)>& change) {
    if (record())
        edit(what, [&](crossdata030& cross) { change(cross.timetrials.at(*m_trial)); });
}

void TrialPage::addTrial(const QString& athlete, const QString& film) {
    edit(tr("time trial of %1").arg(athlete), [&](crossdata030& cross) {
        (void)kavela::addTrial(cross, athlete.toStdString(), film.toStdString());
    });
    selectTrial(m_desk.cross().timetrials.size() - 1);
}

void TrialPage::addFilms(const QStringList& names) {
    std::vector<std::string> fresh;
    for (const QString& name : names) {
        const auto& trials = m_desk.cross().timetrials;
        if (std::ranges::find(trials, name.toStdString(), &ttdata030::videoname) == trials.end())
            fresh.push_back(name.toStdString());
    }
    if (fresh.empty())
        return;
    const std::string pattern = m_desk.document.filmPattern().toStdString();
    const std::size_t first = m_desk.cross().timetrials.size();
    edit(tr("films imported"), [&](crossdata030& cross) {
        for (const std::string& film : fresh)
            (void)kavela::addTrial(cross, crewText(filmFacts(film, pattern).names), film);
    });
    selectTrial(first);
}

void TrialPage::setFilm(const QString& name) {
    editTrial(tr("film of the trial"),
              [&](ttdata030& trial) { trial.videoname = name.toStdString(); });
    emit filmChanged();
}

void TrialPage::rename(std::size_t trial, const QString& athlete) {
    const std::string name = athlete.trimmed().toStdString();
    if (name.empty() || name == m_desk.cross().timetrials.at(trial).athlete) {
        refresh(); // shows the name that stays
        return;
    }
    edit(tr("athlete renamed"),
         [&](crossdata030& cross) { cross.timetrials[trial].athlete = name; });
}

void TrialPage::startAdding() {
    m_list->startAdding();
}

void TrialPage::startRenaming() {
    if (m_trial)
        m_list->startRenaming(*m_trial);
}

void TrialPage::removeTrial() {
    if (!record())
        return;
    const std::size_t trial = *m_trial;
    m_selected.reset();
    m_desk.document.editCross(tr("time trial removed"),
                              startsWithout(m_desk.document.trialStarts(), trial),
                              [&](crossdata030& cross) { kavela::removeTrial(cross, trial); });
    emit filmChanged();
    emit marksChanged();
}

/// A start without a split stands beside the document, the rest in the trial.
void TrialPage::setRunMarks(const QString& what, const RunMarks& marks) {
    const bool hasSplit =
        std::ranges::any_of(marks.marks, [](const Stamps& stamps) { return !stamps.empty(); });
    const bool hasStart = marks.start && !marks.start->empty();
    TrialStarts starts = m_desk.document.trialStarts();
    starts.erase(*m_trial);
    if (hasStart && !hasSplit)
        starts.emplace(*m_trial, marks.start->front());
    const bool isInTrial = marks.marks != record()->splittimes || hasSplit;
    if (!isInTrial && starts == m_desk.document.trialStarts())
        return;
    m_desk.document.editCross(what, std::move(starts), [&](crossdata030& cross) {
        if (!isInTrial)
            return;
        applyMarks(marks, cross.timetrials.at(*m_trial));
        rankTrials(cross);
    });
}

void TrialPage::mark(const CMTime& moment) {
    if (!record()) {
        emit told(frontText());
        return;
    }
    emit told({});
    switch (m_mode) {
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
bool TrialPage::mayMarkAnew() const {
    if (record()->time <= 0 || runMarks() != RunMarks())
        return true;
    return m_desk.workspace.ask({"", tr("The time of this trial was taken without marks on the "
                                        "film. Marking it anew replaces it.")
                                         .toStdString()},
                                tr("Mark anew"), window());
}

void TrialPage::markSplit(const CMTime& moment) {
    if (!mayMarkAnew())
        return;
    RunMarks marks = runMarks();
    if (const auto refused = markNext(marks, {moment}, MostSplits)) {
        refuses(refused->text);
        return;
    }
    const std::size_t place = markAt(marks, moment).value_or(marks.marks.size());
    const bool isStart = place == 0;
    setRunMarks(isStart ? tr("start mark") : tr("split %1").arg(place), marks);
    selectWhere([place](const TrialMark& mark) {
        return mark.mode == TrialMode::Splits && mark.place == place;
    });
    const double seconds = isStart ? 0 : splitTimes(marks).at(place - 1);
    emit flashed(isStart ? tr("Start") : tr("%1:  %2").arg(place).arg(shownHundredths(seconds)));
    if (!isStart && place < marks.marks.size())
        emit told(
            tr("Split %1 was put in between two marks. Ctrl+Z takes it out again.").arg(place));
}

/// Whether a mark is refused, which is told then.
bool TrialPage::refuses(const std::optional<std::string>& why) {
    if (why) {
        emit told(QString::fromStdString(*why));
        emit flashed(QString::fromStdString(*why));
    }
    return why.has_value();
}

void TrialPage::markGate(const CMTime& moment) {
    const auto which = nextGateMark();
    if (!m_gate || !which) {
        emit told(m_gate ? tr("Gate %1 is marked. N goes to the next gate, Shift+M moves the "
                              "selected mark.")
                               .arg(*m_gate)
                         : tr("The cross course has no gates yet: they are set above."));
        return;
    }
    const std::int64_t gate = *m_gate;
    const GateMarks before = upstream() ? upstream()->cmtimes : GateMarks();
    if (refuses(refusalOfGateMark(before, *which, moment)))
        return;
    editTrial(tr("%1 of gate %2").arg(gateMarkText(*which)).arg(gate), [&](ttdata030& trial) {
        markUpstream(trial, m_desk.cross().crossinfo, gate, *which, moment);
    });
    emit flashed(tr("Gate %1 %2").arg(gate).arg(gateMarkText(*which)));
    selectWhere([&](const TrialMark& mark) {
        return mark.mode == TrialMode::Upstreams && mark.gate == gate && mark.which == which;
    });
    if (*which == GateMark::Exit)
        goOn();
}

void TrialPage::markRoll(const CMTime& moment) {
    const auto which = nextGateMark();
    if (!which) {
        emit told(tr("The roll is marked. Shift+M moves the selected mark, Delete removes it."));
        return;
    }
    if (refuses(refusalOfGateMark(record()->roll.cmtimes, *which, moment, NamesOfRoll)))
        return;
    editTrial(rollMarkText(*which),
              [&](ttdata030& trial) { setMark(trial.roll.cmtimes, *which, moment); });
    emit flashed(rollMarkText(*which));
    selectWhere(
        [&](const TrialMark& mark) { return mark.mode == TrialMode::Roll && mark.which == which; });
}

std::optional<std::string> TrialPage::refusalToMove(const TrialMark& mark,
                                                    const CMTime& moment) const {
    if (mark.mode == TrialMode::Splits) {
        const auto refused = kavela::refusalToMove(runMarks(), mark.place, moment);
        return refused ? std::optional(refused->text) : std::nullopt;
    }
    ttdata030 trial = *record();
    return mark.which ? refusalOfGateMark(listOf(trial, mark), *mark.which, moment,
                                          mark.mode == TrialMode::Roll ? NamesOfRoll : NamesAtGate)
                      : std::nullopt;
}

void TrialPage::moveMark(const CMTime& moment) {
    if (!record() || !selectedMark()) {
        emit told(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    const TrialMark mark = *m_selected;
    const QString what = tr("mark moved");
    emit told({});
    if (refuses(refusalToMove(*m_selected, moment))) {
        emit marksChanged(); // where it was, if it was dragged
        return;
    }
    if (mark.mode != TrialMode::Splits) {
        editTrial(what, [&](ttdata030& trial) { moveGateMark(trial, mark, moment); });
    } else {
        RunMarks marks = runMarks();
        if (mark.place == 0)
            setStart(marks, {moment});
        else
            kavela::moveMark(marks, mark.place, {moment});
        setRunMarks(what, marks);
    }
    select(mark);
}

void TrialPage::removeMark() {
    if (!record())
        return;
    const QString what = tr("mark removed");
    if (!selectedMark()) {
        if (m_mode == TrialMode::Upstreams && upstream() && upstream()->cmtimes.empty())
            editTrial(tr("gate %1 removed").arg(*m_gate), [this](ttdata030& trial) {
                eraseEntry(trial.upstreams, *upstreamAt(trial, *m_gate));
            });
        return;
    }
    const TrialMark mark = *m_selected;
    m_selected.reset();
    if (mark.mode != TrialMode::Splits) {
        editTrial(what, [&](ttdata030& trial) { removeGateMark(trial, mark); });
    } else {
        RunMarks marks = runMarks();
        if (mark.place == 0)
            marks.start.reset();
        else
            kavela::removeMark(marks, mark.place);
        setRunMarks(what, marks);
        if (mark.place == 0 && !marks.marks.empty())
            emit told(tr("Without a start mark the time counts from the beginning of the film."));
    }
    emit marksChanged();
}

void TrialPage::makeHeats() {
    const auto boats = static_cast<std::size_t>(m_boats->currentData().toInt());
    const auto heats = seededHeats(m_desk.cross(), boats);
    if (heats.empty()) {
        emit told(tr("No trial has a time yet: heats are made from the fastest ones."));
        return;
    }
    const bool isSure =
        m_desk.cross().eliphase.empty() ||
        m_desk.workspace.ask({"", tr("There are heats already. They stay as they are, and those "
                                     "from the trials come behind them.")
                                      .toStdString()},
                             tr("Make heats"), window());
    if (!isSure)
        return;
    try {
        edit(tr("heats from the trials"), [&](crossdata030& cross) {
            for (const auto& athletes : heats)
                (void)addHeat(cross, {}, athletes);
        });
    } catch (const std::invalid_argument& fault) {
        emit told(QString::fromUtf8(fault.what()));
        return;
    }
    emit heatsMade();
}

} // namespace kavela::desktop
