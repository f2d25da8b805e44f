#include "desktop/taking/notes/strategy_page.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/upstream_gates.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int WayName = 1; ///< its column

constexpr double LongestWay = 3600;

QPushButton* button(const QString& text, const char* name) {
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    return made;
}

QComboBox* narrowCombo(const char* name) {
    auto* combo = new QComboBox;
    combo->setObjectName(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(5);
    return combo;
}

/// Fills a combo box anew; the entry that was chosen by its place stays so.
void fillCombo(QComboBox& combo, const QStringList& texts, int current) {
    const QSignalBlocker blocked(combo);
    combo.clear();
    combo.addItems(texts);
    combo.setCurrentIndex(std::clamp(current, texts.isEmpty() ? -1 : 0, combo.count() - 1));
}

} // namespace

StrategyPage::StrategyPage(NoteDesk& desk)
    : NotePage(desk),
      m_ways(columns(), RowsKnownBy::Number),
      m_table(noteTable(m_ways, "strategyWays", [this](int) { emit rowChosen(); })),
      m_words([this](const QString& what, const auto& act) { change(what, act); }) {
    makeTable();
    makeParts();
    makeLayout();
}

std::vector<Column<WayRow>> StrategyPage::columns() {
    const auto seconds = [](const WayRow& row) {
        const double time = row.way.seconds;
        return Cell{.text = hundredthsOrDash(time),
                    .number = time == 0 ? std::nullopt : std::optional(time),
                    .typed = secondsOrNothing(time)};
    };
    const auto gap = [](const WayRow& row) {
        return row.way.seconds == 0
                   ? Cell()
                   : Cell{.text = row.way.isBest ? tr("best") : '+' + shownHundredths(row.gap),
                          .number = row.gap};
    };
    const auto choose = [this](std::size_t way, const WayRow&, bool isTicked) {
        if (isTicked)
            change(tr("way of the run"), [&](strategy001& ways) { chooseOption(ways, way); });
    };
    const auto rename = [this](std::size_t way, const WayRow&, const QString& typed) {
        change(tr("way renamed"),
               [&](strategy001& ways) { renameOption(ways, way, typed.toStdString()); });
    };
    const auto retime = [this](std::size_t way, const WayRow&, const QString& typed) {
        const double entered = typedSecondsOrNone( // emptied to be timed anew
            typed, {0, LongestWay, tr("A time is a number of seconds such as 4.35, or 1:04.35")});
        change(tr("time of a way"),
               [&](strategy001& ways) { setOptionSeconds(ways, way, entered); });
    };
    return {
        Column<WayRow>{.title = tr("Taken"),
                       .show = [](const WayRow& row) { return Cell{.isTicked = row.way.isChosen}; },
                       .tick = choose},
        Column<WayRow>{.title = tr("Way"),
                       .show = [](const WayRow& row) { return Cell{qtText(row.way.name)}; },
                       .take = rename},
        Column<WayRow>{
            .title = tr("Time"), .kind = ColumnKind::Number, .show = seconds, .take = retime},
        Column<WayRow>{.title = tr("Gap"), .kind = ColumnKind::Number, .show = gap}};
}

void StrategyPage::makeTable() {
    m_table->stretch({WayName});
    m_table->setFixedHeight(grown(*this, 120));
    // A letter is a key of the film that was missed, and no name.
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_table->setToolTip(tr("The tick is at the way that the run took. Names and times are edited "
                           "by a double click."));
    m_table->setAdd(tr("Add a way"), [this] { m_newOption->setFocus(); });
    connect(m_table, &ColumnTable::chosen, this, [this] {
        if (m_begun && option() != m_begun->option)
            m_begun.reset();
        showNextMark();
    });
}

void StrategyPage::makeParts() {
    m_title = narrowCombo("strategyTitle");
    m_title->setEditable(true);
    m_title->setInsertPolicy(QComboBox::NoInsert);
    m_title->setToolTip(tr("A section, or a name for the place"));
    m_comparisons = narrowCombo("strategies");
    m_next = new QLabel;
    m_next->setObjectName("strategyNext");
    m_next->setWordWrap(true);
    m_newOption = new QLineEdit;
    m_newOption->setObjectName("strategyNewWay");
    m_newOption->setPlaceholderText(tr("Another way, such as spin or direct"));
    m_run = narrowCombo("strategyRun");
    m_section = narrowCombo("strategySection");
    m_take = button(tr("Take its time"), "strategyTake");
    m_cost = new QLabel;
    m_cost->setObjectName("strategyCost");
    m_cost->setWordWrap(true);
    m_words.remark({.name = "strategyComment",
                    .label = {},
                    .what = tr("comment on ways"),
                    .placeholder = tr("Comment")},
                   &strategy001::comments);
    connect(m_comparisons, &QComboBox::activated, this, [this](int place) {
        (void)m_words.commit(); // what is typed belongs to the comparison before
        m_strategy = static_cast<std::size_t>(place);
        refresh();
    });
}

void StrategyPage::makeLayout() {
    auto* add = button(tr("Add"), "strategyAdd");
    auto* addOption = button(tr("Add"), "strategyAddWay");
    for (QPushButton* const narrow : {add, addOption})
        narrow->setMaximumWidth(fontMetrics().horizontalAdvance(narrow->text()) +
                                theme::LargeSpacing);
    auto* created = new QHBoxLayout;
    created->addWidget(m_title, 1);
    created->addWidget(add);
    auto* newOption = new QHBoxLayout;
    newOption->addWidget(m_newOption, 1);
    newOption->addWidget(addOption);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(tr("New"), created);
    form->addRow(tr("Compared"), m_comparisons);
    form->addRow(m_next);
    form->addRow(m_table);
    form->addRow(newOption);
    form->addRow(m_cost);
    form->addRow(tr("Time from"), m_run);
    form->addRow(tr("Section"), m_section);
    form->addRow(QString(), m_take);
    form->addRow(&m_words);
    connect(add, &QPushButton::clicked, this, &StrategyPage::addComparison);
    connect(m_title->lineEdit(), &QLineEdit::returnPressed, this, &StrategyPage::addComparison);
    connect(addOption, &QPushButton::clicked, this, &StrategyPage::addWay);
    connect(m_newOption, &QLineEdit::editingFinished, this, &StrategyPage::addWay);
    connect(m_take, &QPushButton::clicked, this, &StrategyPage::takeSectionTime);
}

std::optional<Alert> StrategyPage::refusal() const {
    return sectionModeRefusal(m_desk.document.info());
}

const strategy001* StrategyPage::strategy() const {
    const athletedata031* const run = m_desk.record();
    return run && m_strategy < run->strategies.size() ? &run->strategies[m_strategy] : nullptr;
}

std::optional<std::size_t> StrategyPage::option() const {
    const int row = m_table->currentPlace();
    return strategy() && row >= 0 && std::cmp_less(row, optionsOf(*strategy()).size())
               ? std::optional(static_cast<std::size_t>(row))
               : std::nullopt;
}

void StrategyPage::change(const QString& what, const std::function<void(strategy001&)>& act) {
    if (strategy())
        edit(what, [&](athletedata031& run) { act(run.strategies.at(m_strategy)); });
}

void StrategyPage::forget() {
    m_owner = -1;
    m_shown.reset();
}

void StrategyPage::commit() {
    (void)m_words.commit();
    NotePage::commit();
}

void StrategyPage::refresh() {
    if (std::exchange(m_owner, m_desk.run) != m_desk.run)
        m_strategy = 0;
    const athletedata031* const run = m_desk.record();
    setEnabled(run);
    if (run && !run->strategies.empty())
        m_strategy = std::min(m_strategy, run->strategies.size() - 1);
    const std::pair inHand(m_owner, m_strategy);
    const bool isOther = std::exchange(m_shown, inHand) != inHand;
    if (isOther)
        m_begun.reset();
    showComparisons();
    showOptions(isOther);
    showChoices();
    m_words.show(strategy(), isOther);
    showNextMark();
}

void StrategyPage::showComparisons() {
    const QString typed = m_title->currentText();
    fillCombo(*m_title, sectionNames(m_desk.document.info()), 0);
    if (!typed.isEmpty())
        m_title->setEditText(typed);
    QStringList titles;
    if (const athletedata031* const run = m_desk.record())
        for (const strategy001& each : run->strategies)
            titles.append(each.title.empty() ? tr("Without a name")
                                             : QString::fromStdString(each.title));
    fillCombo(*m_comparisons, titles, static_cast<int>(m_strategy));
    m_comparisons->setEnabled(!titles.isEmpty());
}

void StrategyPage::showOptions(bool isOther) {
    const auto options = strategy() ? optionsOf(*strategy()) : std::vector<StrategyOption>();
    const auto best = strategy() ? bestOption(*strategy()) : std::nullopt;
    std::vector<WayRow> rows;
    for (const StrategyOption& each : options)
        rows.push_back({each, best ? each.seconds - options[*best].seconds : 0});
    m_ways.show(std::move(rows), isOther);
    if (m_table->currentPlace() < 0)
        m_table->choose(0, WayName);
}

void StrategyPage::showChoices() {
    QStringList runs;
    for (int run = 0; run < m_desk.document.runCount(); ++run)
        runs.append(runName(m_desk.document.run(run)));
    fillCombo(*m_run, runs, m_run->count() > 0 ? m_run->currentIndex() : m_desk.run);
    fillCombo(*m_section, sectionNames(m_desk.document.info()), m_section->currentIndex());
    m_take->setEnabled(strategy());
    m_newOption->setEnabled(strategy());
    const auto cost = strategy() ? costOfChoice(*strategy()) : std::nullopt;
    m_cost->setText(!cost        ? QString()
                    : *cost == 0 ? tr("The run took the fastest way.")
                                 : tr("The way of the run cost %1 s.").arg(shownHundredths(*cost)));
    m_cost->setVisible(!m_cost->text().isEmpty());
}

void StrategyPage::showNextMark() {
    const auto inHand = option();
    if (!strategy())
        m_next->setText(tr("Choose a section or name a place, and add it."));
    else if (!inHand)
        m_next->setText(tr("Add the ways of paddling this place."));
    else
        m_next->setText((m_begun ? tr("M marks where %1 ends") : tr("M marks where %1 begins"))
                            .arg(qtText(optionsOf(*strategy()).at(*inHand).name)));
}

void StrategyPage::addComparison() {
    const std::string title = m_title->currentText().trimmed().toStdString();
    const athletedata031* const run = m_desk.record();
    if (!run || title.empty()) {
        emit told(tr("Choose a section, or write a name for the place."));
        return;
    }
    m_strategy = run->strategies.size();
    m_section->setCurrentIndex(std::max(0, m_title->findText(m_title->currentText())));
    edit(tr("ways at %1").arg(QString::fromStdString(title)),
         [&](athletedata031& changed) { (void)addStrategy(changed, title, {}); });
    m_newOption->setFocus();
}

void StrategyPage::addWay() {
    const std::string name = m_newOption->text().trimmed().toStdString();
    if (!strategy() || name.empty())
        return;
    m_newOption->setText({}); // nothing of it is left to undo there
    const std::size_t added = optionsOf(*strategy()).size();
    change(tr("way added"), [&](strategy001& changed) { (void)addOption(changed, name); });
    setInHand(added);
}

void StrategyPage::setInHand(std::size_t option) {
    m_table->choose(static_cast<int>(option), WayName);
}

void StrategyPage::takeSectionTime() {
    const auto inHand = option();
    if (!inHand || m_run->currentIndex() < 0 || m_section->currentIndex() < 0) {
        emit told(tr("Add a way and select it first."));
        return;
    }
    const athletedata031& run = m_desk.document.run(m_run->currentIndex());
    const double seconds =
        entryOrZero(run.sectioninfo.times, static_cast<std::size_t>(m_section->currentIndex()));
    if (!(seconds > 0)) {
        emit told(tr("%1 was not timed there.").arg(runName(run)));
        return;
    }
    change(tr("time of a way"),
           [&](strategy001& changed) { setOptionSeconds(changed, *inHand, seconds); });
}

void StrategyPage::mark(const Stamps& stamps) {
    const auto inHand = option();
    if (!inHand) {
        emit told(m_next->text());
        return;
    }
    const CMTime moment = stamps.front();
    const StrategyOption timed = optionsOf(*strategy()).at(*inHand);
    if (!m_begun && timed.seconds > 0) {
        emit refused(tr("%1 is timed: %2 s. Empty its time to mark it anew.")
                         .arg(qtText(timed.name), hundredthsOrDash(timed.seconds)));
        return;
    }
    if (!m_begun) {
        m_begun = {*inHand, moment};
        emit flashed(tr("Start"));
        showNextMark();
        return;
    }
    const CMTime from = m_begun->from;
    if (orderOf(from, moment) != std::strong_ordering::less) {
        emit refused(tr("The end of a way comes after its beginning at %1.")
                         .arg(hundredthsOrDash(from.seconds())));
        return;
    }
    m_begun.reset();
    change(tr("way timed"),
           [&](strategy001& changed) { timeOption(changed, *inHand, from, moment); });
    emit flashed(hundredthsOrDash(optionsOf(*strategy()).at(*inHand).seconds));
    if (*inHand + 1 < optionsOf(*strategy()).size())
        setInHand(*inHand + 1);
}

bool StrategyPage::removeCurrent() {
    if (!strategy())
        return false;
    m_begun.reset();
    if (const auto inHand = option()) {
        change(tr("way removed"), [&](strategy001& changed) { removeOption(changed, *inHand); });
        return true;
    }
    const std::size_t removed = m_strategy;
    edit(tr("ways removed"), [&](athletedata031& run) { removeStrategy(run, removed); });
    return true;
}

} // namespace kavela::desktop
