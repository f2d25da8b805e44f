#include "desktop/cross/trials/trial_page.h"

#include "desktop/cross/trials/gate_form.h"
#include "desktop/cross/trials/roll_form.h"
#include "desktop/cross/trials/trial_list.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/gate_mark_text.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>

#include <algorithm>

/// What the page shows; trial_moves.cpp has how it gets there, trial_edits.cpp what it changes.
namespace kavela::desktop {

namespace {

constexpr int BoatsThatGoOn[] = {4, 8, 16, 32};

/// Of a gate or roll the first mark has the name, the selected one says what it is.
QString markName(const TrialMark& mark, bool isSelected) {
    if (mark.mode == TrialMode::Splits)
        return mark.place == 0 ? TrialPage::tr("Start") : QString::number(mark.place);
    const bool isRoll = mark.mode == TrialMode::Roll;
    if (isSelected && mark.which)
        return isRoll ? rollMarkText(*mark.which)
                      : TrialPage::tr("Gate %1 %2").arg(mark.gate).arg(gateMarkText(*mark.which));
    if (mark.which != GateMark::Entrance)
        return {};
    return isRoll ? TrialPage::tr("Roll") : TrialPage::tr("Gate %1").arg(mark.gate);
}

} // namespace

TrialPage::TrialPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_list(new TrialList),
      m_boats(new QComboBox),
      m_bar(new QTabBar),
      m_front(new QLabel),
      m_running(new QLabel),
      m_stack(new QStackedWidget),
      m_splits(textTable({tr("Split"), tr("Time"), tr("From the start")})),
      m_gates(new GateForm),
      m_roll(new RollForm) {
    auto* upper = new QWidget;
    auto* list = new QVBoxLayout(upper);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(theme::Spacing);
    list->addWidget(m_list, 1);
    list->addWidget(makeSeeding());
    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(upper);
    parts->addWidget(makeModes());
    parts->setSizes({330, 300});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->addWidget(parts, 1);
    setFocusProxy(m_list);
    connectParts();
    connectForms();
}

QWidget* TrialPage::makeSeeding() {
    for (const int boats : BoatsThatGoOn)
        m_boats->addItem(tr("%1 boats").arg(boats), boats);
    m_boats->setObjectName("boats");
    m_boats->setCurrentIndex(1);
    m_boats->setToolTip(tr("How many boats go on to the heats"));
    auto* make = new QPushButton(tr("Make heats from the trials"));
    make->setObjectName("makeHeats");
    make->setToolTip(tr("Heats of four, the fastest against the slowest. Heats that exist stay."));
    make->setFocusPolicy(Qt::NoFocus);
    connect(make, &QPushButton::clicked, this, &TrialPage::makeHeats);
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_boats);
    row->addWidget(make, 1);
    return box;
}

QWidget* TrialPage::makeModes() {
    m_bar->setObjectName("trialModes");
    m_bar->setExpanding(false);
    m_bar->setDrawBase(false);
    m_bar->setFocusPolicy(Qt::NoFocus);
    for (const QString& title : {tr("Splits"), tr("Upstream gates"), tr("Roll")})
        m_bar->addTab(title);
    m_front->setObjectName("trialFront");
    m_front->setFont(theme::titleFont(*this));
    m_front->setWordWrap(true);
    m_running->setObjectName("trialRunning");
    m_running->setFont(theme::titleFont(*this));
    m_splits->setObjectName("trialSplits");
    m_splits->setToolTip(tr("A click shows the frame of a split"));
    m_stack->addWidget(m_splits);
    m_stack->addWidget(m_gates);
    m_stack->addWidget(m_roll);
    auto* front = new QHBoxLayout;
    front->addWidget(m_front, 1);
    front->addWidget(m_running, 0, Qt::AlignRight | Qt::AlignTop);
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_bar);
    column->addLayout(front);
    column->addWidget(m_stack, 1);
    return box;
}

void TrialPage::connectParts() {
    connect(m_list, &TrialList::chosen, this, &TrialPage::selectTrial);
    connect(m_list, &TrialList::nameTyped, this,
            [this](const QString& athlete) { addTrial(athlete, {}); });
    connect(m_list, &TrialList::renamed, this, &TrialPage::rename);
    connect(m_list, &TrialList::filmWanted, this, &TrialPage::filmWanted);
    connect(m_list, &TrialList::removalWanted, this, &TrialPage::removeTrial);
    connect(m_bar, &QTabBar::currentChanged, this,
            [this](int mode) { setMode(static_cast<TrialMode>(mode)); });
    connect(m_splits, &QTableWidget::cellClicked, this, [this](int row) { pressNumber(row + 1); });
}

void TrialPage::connectForms() {
    connect(m_gates, &GateForm::middleToggled, this, &TrialPage::showMode);
    connect(m_gates, &GateForm::gateChosen, this, [this](std::int64_t gate) {
        setGate(gate);
        const auto marks = trialMarks();
        const auto first = std::ranges::find_if(marks, [gate](const TrialMark& mark) {
            return mark.mode == TrialMode::Upstreams && mark.gate == gate;
        });
        if (first != marks.end())
            goTo(*first);
    });
    const auto changeGate = [this](std::int64_t ttupstream030::*member) {
        return [this, member](std::int64_t code) {
            editTrial(tr("gate %1").arg(m_gate.value_or(0)), [&](ttdata030& trial) {
                if (const auto place = m_gate ? upstreamAt(trial, *m_gate) : std::nullopt)
                    trial.upstreams[*place].*member = code;
            });
        };
    };
    connect(m_gates, &GateForm::directionChosen, this, changeGate(&ttupstream030::direction));
    connect(m_gates, &GateForm::styleChosen, this, changeGate(&ttupstream030::style));
    const auto changeRoll = [this](std::int64_t ttroll030::*member) {
        return [this, member](std::int64_t code) {
            editTrial(tr("roll"), [&](ttdata030& trial) { trial.roll.*member = code; });
        };
    };
    connect(m_roll, &RollForm::directionChosen, this, changeRoll(&ttroll030::direction));
    connect(m_roll, &RollForm::styleChosen, this, changeRoll(&ttroll030::style));
}

const ttdata030* TrialPage::record() const {
    const auto& trials = m_desk.cross().timetrials;
    return m_trial && *m_trial < trials.size() ? &trials[*m_trial] : nullptr;
}

RunMarks TrialPage::runMarks() const {
    if (!record())
        return {};
    RunMarks marks = marksOf(*record());
    if (std::ranges::all_of(marks.marks, &Stamps::empty))
        marks.marks.clear(); // an older file has one empty split for none
    const TrialStarts& starts = m_desk.document.trialStarts();
    if (const auto start = starts.find(*m_trial); start != starts.end() && !marks.start)
        marks.start = Stamps{start->second};
    return marks;
}

std::vector<TrialMark> TrialPage::trialMarks() const {
    return record() ? marksOfTrial(*record(), runMarks()) : std::vector<TrialMark>();
}

const ttupstream030* TrialPage::upstream() const {
    const ttdata030* const trial = record();
    const auto place = trial && m_gate ? upstreamAt(*trial, *m_gate) : std::nullopt;
    return place ? &trial->upstreams[*place] : nullptr;
}

std::optional<GateMark> TrialPage::nextGateMark() const {
    if (m_mode == TrialMode::Roll)
        return record() ? nextMark(record()->roll.cmtimes, true) : std::nullopt;
    if (!m_gate)
        return std::nullopt;
    return upstream() ? nextMark(upstream()->cmtimes, m_gates->wantsMiddle()) : GateMark::Entrance;
}

QString TrialPage::film() const {
    return record() ? QString::fromStdString(record()->videoname) : QString();
}

/// The names of the other modes would hide each other: their marks stand without.
std::vector<LineMark> TrialPage::marks() const {
    std::vector<LineMark> line;
    for (const TrialMark& mark : trialMarks()) {
        const bool isSelected = m_selected && isSameMark(mark, *m_selected);
        line.push_back({mark.stamp, mark.mode == m_mode ? markName(mark, isSelected) : QString(),
                        line.size()});
    }
    return line;
}

std::optional<std::size_t> TrialPage::selectedMark() const {
    const auto marks = trialMarks();
    for (std::size_t place = 0; m_selected && place < marks.size(); ++place)
        if (isSameMark(marks[place], *m_selected))
            return place;
    return std::nullopt;
}

void TrialPage::refresh() {
    const auto& trials = m_desk.cross().timetrials;
    if (m_path != m_desk.document.path()) {
        m_path = m_desk.document.path();
        m_trial.reset();
    }
    const bool isOther = followTrial();
    if (trials.empty())
        m_trial.reset();
    else
        m_trial = std::min(m_trial.value_or(0), trials.size() - 1);
    followMark();
    m_list->setTrials(trials, m_desk.document);
    m_list->setCurrent(m_trial);
    const auto& gates = m_desk.cross().crossinfo.gates;
    const bool isFrontGone =
        m_gate && !upstream() && std::ranges::find(gates, *m_gate) == gates.end();
    if (!m_gate || isFrontGone)
        m_gate = gates.empty() ? std::nullopt : std::optional(gates.front());
    showTrial();
    if (isOther)
        goOn();
}

void TrialPage::showTrial() {
    const RunMarks marks = runMarks();
    const std::vector<double> times = splitTimes(marks);
    std::vector<QStringList> rows;
    for (std::size_t k = 0; k < times.size(); ++k) {
        const Stamps& stamps = marks.marks[k];
        const bool isTimed = marks.start && !stamps.empty();
        rows.push_back(
            {QString::number(k + 1), stamps.empty() ? QStringLiteral("–") : timeOrDash(times[k]),
             timeOrDash(isTimed ? secondsFrom(marks.start->front(), stamps.front()) : 0)});
    }
    fillTable(*m_splits, rows);
    const bool isSplit = m_selected && m_selected->mode == TrialMode::Splits;
    const QSignalBlocker blocked(m_splits);
    if (isSplit && m_selected->place > 0)
        m_splits->setCurrentCell(static_cast<int>(m_selected->place) - 1, 0);
    else
        m_splits->setCurrentItem(nullptr);
    m_gates->setTrial(record(), m_desk.cross().crossinfo.gates);
    m_roll->setRoll(record() ? &record()->roll : nullptr);
    showMode();
}

void TrialPage::showMode() {
    m_gates->setFront(m_gate);
    m_stack->setCurrentIndex(static_cast<int>(m_mode));
    const QSignalBlocker blocked(m_bar);
    m_bar->setCurrentIndex(static_cast<int>(m_mode));
    m_front->setText(frontText());
    showFrame();
}

QString TrialPage::frontText() const {
    if (!record())
        return tr("Add the first athlete above");
    if (m_mode == TrialMode::Splits) {
        const RunMarks marks = runMarks();
        return marks.start ? tr("M marks split %1").arg(marks.marks.size() + 1)
                           : tr("M marks the start");
    }
    const auto next = nextGateMark();
    if (m_mode == TrialMode::Roll)
        return next ? tr("M marks the %1").arg(rollMarkText(*next)) : tr("The roll is marked");
    if (!m_gate)
        return tr("The cross course has no gates yet");
    return next ? tr("Gate %1: M marks the %2").arg(*m_gate).arg(gateMarkText(*next))
                : tr("Gate %1 is marked").arg(*m_gate);
}

/// From where the time runs along with the film; nothing when nothing is being timed.
std::optional<CMTime> TrialPage::runningFrom() const {
    if (m_mode == TrialMode::Splits) {
        const RunMarks marks = runMarks();
        return marks.start ? std::optional(marks.start->front()) : std::nullopt;
    }
    if (!nextGateMark())
        return std::nullopt;
    if (m_mode == TrialMode::Roll)
        return markOf(record()->roll.cmtimes, GateMark::Entrance);
    return upstream() ? markOf(upstream()->cmtimes, GateMark::Entrance) : std::nullopt;
}

void TrialPage::showFrame() {
    const auto from = runningFrom();
    const auto now = m_desk.moment();
    if (!from)
        m_running->clear();
    else if (now) // while a frame is on its way, the last one's time stays
        m_running->setText(tr("%1 s").arg(timeOrDash(std::max(0.0, secondsFrom(*from, *now)))));
}

} // namespace kavela::desktop
