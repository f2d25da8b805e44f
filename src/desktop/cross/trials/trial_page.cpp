#include "desktop/cross/trials/trial_page.h"

#include "desktop/cross/trials/gate_form.h"
#include "desktop/cross/trials/roll_form.h"
#include "desktop/cross/trials/trial_list.h"
#include "desktop/film/film_deck.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/gate_mark_text.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/cross_heats.h"
#include "splittaking/video_names.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <stdexcept>
#include <utility>

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

Column<SplitRow> trialSplitColumn(const QString& title, QString SplitRow::*text) {
    return {.title = title, .kind = ColumnKind::Number, .show = [text](const SplitRow& row) {
                return Cell{row.*text};
            }};
}

std::vector<Column<SplitRow>> trialSplitColumns() {
    return {trialSplitColumn(TrialPage::tr("Split"), &SplitRow::number),
            trialSplitColumn(TrialPage::tr("Time"), &SplitRow::time),
            trialSplitColumn(TrialPage::tr("From the start"), &SplitRow::fromStart)};
}

/// The starts when a trial is gone and those behind it move up.
TrialStarts startsWithout(const TrialStarts& starts, std::size_t trial) {
    TrialStarts left;
    for (const auto& [place, start] : starts)
        if (place != trial)
            left.emplace(place > trial ? place - 1 : place, start);
    return left;
}

} // namespace

TrialPage::TrialPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_front(desk),
      m_marking(m_front, *this),
      m_splitRows(trialSplitColumns(), RowsKnownBy::Number),
      m_list(new TrialList),
      m_boats(new QComboBox),
      m_bar(new QTabBar),
      m_next(new QLabel),
      m_running(new QLabel),
      m_stack(new QStackedWidget),
      m_splits(filmTable(m_splitRows, "trialSplits")),
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
    m_next->setObjectName("trialFront");
    m_next->setFont(theme::titleFont(*this));
    m_next->setWordWrap(true);
    m_running->setObjectName("trialRunning");
    m_running->setFont(theme::titleFont(*this));
    m_splits->setToolTip(tr("A click shows the frame of a split"));
    m_stack->addWidget(m_splits);
    m_stack->addWidget(m_gates);
    m_stack->addWidget(m_roll);
    auto* front = new QHBoxLayout;
    front->addWidget(m_next, 1);
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
    connect(m_splits, &ColumnTable::clicked, this,
            [this](const QModelIndex& cell) { pressNumber(m_splits->placeAt(cell) + 1); });
    connect(&m_front, &TrialDesk::trialChanged, this, &TrialPage::showTrial);
    connect(&m_front, &TrialDesk::frontChanged, this, &TrialPage::showMode);
    connect(&m_front, &TrialDesk::marksChanged, this, &TrialPage::marksChanged);
    connect(&m_front, &TrialDesk::told, this, &TrialPage::told);
    connect(&m_front, &TrialDesk::flashed, this, &TrialPage::flashed);
}

void TrialPage::connectForms() {
    connect(m_gates, &GateForm::middleToggled, &m_front, &TrialDesk::setWantsMiddle);
    connect(m_gates, &GateForm::gateChosen, this, [this](std::int64_t gate) {
        m_front.setGate(gate);
        const auto marks = m_front.marks();
        const auto first = std::ranges::find_if(marks, [gate](const TrialMark& mark) {
            return mark.mode == TrialMode::Upstreams && mark.gate == gate;
        });
        if (first != marks.end())
            m_front.goTo(*first);
    });
    connect(m_gates, &GateForm::edited, this,
            [this](const std::function<void(ttupstream030&)>& change) {
                const auto gate = m_front.gate();
                m_front.edit(tr("gate %1").arg(gate.value_or(0)), [&](ttdata030& trial) {
                    if (const auto place = gate ? upstreamAt(trial, *gate) : std::nullopt)
                        change(trial.upstreams[*place]);
                });
            });
    connect(m_roll, &RollForm::edited, this, [this](const std::function<void(ttroll030&)>& change) {
        m_front.edit(tr("roll"), [&](ttdata030& trial) { change(trial.roll); });
    });
}

void TrialPage::refresh() {
    const bool isOther = m_front.follow();
    m_list->setTrials(m_desk.cross().timetrials, m_desk.document);
    m_list->setCurrent(trial());
    showTrial();
    if (isOther)
        m_front.goOn();
}

void TrialPage::showTrial() {
    const ttdata030* const record = m_front.trial();
    showSplits();
    m_gates->setTrial(record, m_desk.cross().crossinfo.gates);
    m_roll->setRoll(record ? &record->roll : nullptr);
    showMode();
}

void TrialPage::showSplits() {
    const RunMarks marks = m_front.runMarks();
    const std::vector<double> times = splitTimes(marks);
    std::vector<SplitRow> rows;
    for (std::size_t k = 0; k < times.size(); ++k) {
        const Stamps& stamps = marks.marks[k];
        const bool isTimed = marks.start && !stamps.empty();
        rows.push_back(
            {QString::number(k + 1),
             stamps.empty() ? QStringLiteral("–") : hundredthsOrDash(times[k]),
             hundredthsOrDash(isTimed ? secondsFrom(marks.start->front(), stamps.front()) : 0)});
    }
    m_splitRows.show(std::move(rows));
    const auto& selected = m_front.selected();
    const bool isSplit = selected && selected->mode == TrialMode::Splits && selected->place > 0;
    const int place = isSplit ? static_cast<int>(selected->place) - 1 : -1;
    if (place != m_splits->currentPlace())
        m_splits->choose(place, 0);
}

void TrialPage::showMode() {
    m_gates->setFront(gate());
    m_stack->setCurrentIndex(static_cast<int>(mode()));
    const QSignalBlocker blocked(m_bar);
    m_bar->setCurrentIndex(static_cast<int>(mode()));
    m_next->setText(m_marking.nextText());
    showFrame();
}

void TrialPage::showFrame() {
    const auto from = m_marking.runningFrom();
    const auto now = m_desk.moment();
    if (!from)
        m_running->clear();
    else if (now) // while a frame is on its way, the last one's time stays
        m_running->setText(
            tr("%1 s").arg(hundredthsOrDash(std::max(0.0, secondsFrom(*from, *now)))));
}

void TrialPage::commit() {
    auto* const field = qobject_cast<QLineEdit*>(focusWidget());
    if (field && field->hasFocus())
        field->clearFocus(); // ends the editing of a cell
}

QString TrialPage::film() const {
    return m_front.trial() ? qtText(m_front.trial()->videoname) : QString();
}

/// The names of the other modes would hide each other: their marks stand without.
std::vector<LineMark> TrialPage::marks() const {
    const auto& selected = m_front.selected();
    std::vector<LineMark> line;
    for (const TrialMark& mark : m_front.marks()) {
        const bool isSelected = selected && isSameMark(mark, *selected);
        line.push_back({mark.stamp, mark.mode == mode() ? markName(mark, isSelected) : QString(),
                        line.size()});
    }
    return line;
}

void TrialPage::selectMark(std::size_t mark) {
    const auto marks = m_front.marks();
    if (mark < marks.size())
        m_front.select(marks[mark]);
}

std::optional<std::size_t> TrialPage::lastMark() const {
    const auto splits =
        mode() == TrialMode::Splits
            ? std::ranges::count(m_front.marks(), TrialMode::Splits, &TrialMark::mode) // come first
            : 0;
    return splits > 0 ? std::optional(static_cast<std::size_t>(splits) - 1) : std::nullopt;
}

bool TrialPage::stopsAt(std::size_t mark) const {
    return m_front.marks().at(mark).mode == mode();
}

void TrialPage::selectTrial(std::size_t trial) {
    if (trial >= m_desk.cross().timetrials.size() || m_front.place() == trial)
        return;
    m_desk.deck.finishPresses(); // they belong to the trial in front
    m_front.open(trial);
    refresh();
    m_front.goOn();
    emit told({});
    emit filmChanged();
    emit marksChanged();
}

void TrialPage::stepRow(int step) {
    const auto trials = static_cast<std::ptrdiff_t>(m_desk.cross().timetrials.size());
    const auto next = static_cast<std::ptrdiff_t>(trial().value_or(0)) + step;
    if (next >= 0 && next < trials)
        selectTrial(static_cast<std::size_t>(next));
}

bool TrialPage::stepGate(int step) {
    const auto& gates = m_desk.cross().crossinfo.gates;
    if (gates.empty() || mode() != TrialMode::Upstreams)
        return true;
    const auto front = gate() ? std::ranges::find(gates, *gate()) : gates.end();
    const std::ptrdiff_t place = front == gates.end() ? 0 : front - gates.begin() + step;
    if (place >= 0 && place < std::ssize(gates))
        m_front.setGate(gates[static_cast<std::size_t>(place)]);
    return true;
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
    m_front.edit(tr("film of the trial"),
                 [&](ttdata030& trial) { trial.videoname = name.toStdString(); });
    emit filmChanged();
}

void TrialPage::rename(std::size_t trial, const QString& athlete) {
    edit(tr("athlete renamed"),
         [&](crossdata030& cross) { cross.timetrials.at(trial).athlete = athlete.toStdString(); });
}

void TrialPage::startAdding() {
    m_list->startAdding();
}

void TrialPage::startRenaming() {
    if (trial())
        m_list->startRenaming(*trial());
}

void TrialPage::removeTrial() {
    if (!m_front.trial())
        return;
    const std::size_t removed = *trial();
    m_front.dropSelection();
    m_desk.document.editCross(tr("time trial removed"),
                              startsWithout(m_desk.document.trialStarts(), removed),
                              [&](crossdata030& cross) { kavela::removeTrial(cross, removed); });
    emit filmChanged();
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
