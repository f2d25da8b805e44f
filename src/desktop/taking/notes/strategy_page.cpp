#include "desktop/taking/notes/strategy_page.h"

#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/upstream_gates.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace kavela::desktop {

namespace {

enum WayColumn { Chosen, Way, Seconds, Gap };

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

StrategyPage::StrategyPage(NoteDesk& desk) : NotePage(desk) {
    makeParts();
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
    form->addRow(m_options);
    form->addRow(newOption);
    form->addRow(m_cost);
    form->addRow(tr("Time from"), m_run);
    form->addRow(tr("Section"), m_section);
    form->addRow(QString(), m_take);
    form->addRow(m_comment);
    connect(add, &QPushButton::clicked, this, &StrategyPage::addComparison);
    connect(m_title->lineEdit(), &QLineEdit::returnPressed, this, &StrategyPage::addComparison);
    connect(addOption, &QPushButton::clicked, this, &StrategyPage::addWay);
    connect(m_newOption, &QLineEdit::editingFinished, this, &StrategyPage::addWay);
    connect(m_take, &QPushButton::clicked, this, &StrategyPage::takeSectionTime);
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
    m_options = textTable({QString(), tr("Way"), tr("Time"), tr("Gap")});
    m_options->setObjectName("strategyWays");
    m_cells = new CellDelegate(*m_options);
    m_options->setFixedHeight(120);
    m_options->setEditTriggers(QAbstractItemView::DoubleClicked |
                               QAbstractItemView::EditKeyPressed);
    m_options->setToolTip(tr("The tick is at the way that the run took. Names and times are edited "
                             "by a double click."));
    m_newOption = new QLineEdit;
    m_newOption->setObjectName("strategyNewWay");
    m_newOption->setPlaceholderText(tr("Another way, such as spin or direct"));
    m_run = narrowCombo("strategyRun");
    m_section = narrowCombo("strategySection");
    m_take = button(tr("Take its time"), "strategyTake");
    m_cost = new QLabel;
    m_cost->setObjectName("strategyCost");
    m_cost->setWordWrap(true);
    m_comment = new QLineEdit;
    m_comment->setObjectName("strategyComment");
    m_comment->setPlaceholderText(tr("Comment"));
    connect(m_comparisons, &QComboBox::activated, this, [this](int place) {
        m_strategy = static_cast<std::size_t>(place);
        m_from.reset();
        m_options->setCurrentCell(0, Way);
        refresh();
    });
    connect(m_options, &QTableWidget::cellChanged, this, &StrategyPage::takeCell);
    connect(m_options, &QTableWidget::currentCellChanged, this, [this](int row, int, int before) {
        if (row != before)
            m_from.reset();
        showNextMark();
    });
    connect(m_options, &QTableWidget::cellClicked, this, &StrategyPage::rowChosen);
    connect(m_comment, &QLineEdit::editingFinished, this, [this] {
        const std::string text = m_comment->text().trimmed().toStdString();
        const bool isTyped = m_comment->isModified();
        m_comment->setModified(false); // taken, whatever is undone in the field afterwards
        if (strategy() && isTyped && text != strategy()->comments)
            change(tr("comment on ways"), [&](strategy001& changed) { changed.comments = text; });
    });
}

std::optional<Alert> StrategyPage::refusal() const {
    return sectionModeRefusal(m_desk.document.info());
}

const strategy001* StrategyPage::strategy() const {
    const athletedata031* const run = m_desk.record();
    return run && m_strategy < run->strategies.size() ? &run->strategies[m_strategy] : nullptr;
}

std::optional<std::size_t> StrategyPage::option() const {
    const int row = m_options->currentRow();
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
}

void StrategyPage::refresh() {
    if (m_owner != m_desk.run) {
        m_owner = m_desk.run;
        m_strategy = 0;
        m_from.reset();
    }
    const athletedata031* const run = m_desk.record();
    setEnabled(run);
    if (run && !run->strategies.empty())
        m_strategy = std::min(m_strategy, run->strategies.size() - 1);
    showComparisons();
    showOptions();
    showChoices();
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

void StrategyPage::showOptions() {
    const auto options = strategy() ? optionsOf(*strategy()) : std::vector<StrategyOption>();
    const auto best = strategy() ? bestOption(*strategy()) : std::nullopt;
    std::vector<QStringList> rows;
    for (const StrategyOption& each : options) {
        const double gap = best ? each.seconds - options[*best].seconds : 0;
        const QString gapText = each.seconds == 0 ? QString()
                                : each.isBest     ? tr("best")
                                                  : '+' + shownHundredths(gap);
        rows.push_back(
            {QString(), QString::fromStdString(each.name), timeOrDash(each.seconds), gapText});
    }
    fillTable(*m_options, rows);
    const QSignalBlocker blocked(m_options);
    for (int row = 0; row < m_options->rowCount(); ++row) {
        QTableWidgetItem* const tick = m_options->item(row, Chosen);
        const bool isChosen = options[static_cast<std::size_t>(row)].isChosen;
        tick->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        tick->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
        m_options->item(row, Seconds)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_options->item(row, Gap)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
    if (m_options->currentRow() < 0 && m_options->rowCount() > 0)
        m_options->setCurrentCell(0, Way);
}

void StrategyPage::showChoices() {
    QStringList runs;
    for (int run = 0; run < m_desk.document.runCount(); ++run)
        runs.append(runName(m_desk.document.run(run)));
    fillCombo(*m_run, runs, m_run->count() > 0 ? m_run->currentIndex() : m_desk.run);
    fillCombo(*m_section, sectionNames(m_desk.document.info()), m_section->currentIndex());
    m_take->setEnabled(strategy());
    m_newOption->setEnabled(strategy());
    m_comment->setEnabled(strategy());
    if (!m_comment->hasFocus() || !m_comment->isModified()) {
        m_comment->setText(strategy() ? QString::fromStdString(strategy()->comments) : QString());
        m_comment->setCursorPosition(0);
    }
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
        m_next->setText((m_from ? tr("M marks where %1 ends") : tr("M marks where %1 begins"))
                            .arg(m_options->item(static_cast<int>(*inHand), Way)->text()));
}

void StrategyPage::addComparison() {
    const std::string title = m_title->currentText().trimmed().toStdString();
    const athletedata031* const run = m_desk.record();
    if (!run || title.empty()) {
        emit told(tr("Choose a section, or write a name for the place."));
        return;
    }
    m_strategy = run->strategies.size();
    m_from.reset();
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
    m_options->setCurrentCell(static_cast<int>(option), Way);
    showNextMark();
}

void StrategyPage::takeCell(int row, int column) {
    const QTableWidgetItem* const cell = m_options->item(row, column);
    const auto place = static_cast<std::size_t>(row);
    if (!cell || !strategy() || place >= optionsOf(*strategy()).size())
        return;
    if (column == Chosen) {
        change(tr("way of the run"), [&](strategy001& changed) { chooseOption(changed, place); });
    } else if (column == Way) {
        const std::string name = cell->text().trimmed().toStdString();
        change(tr("way renamed"),
               [&](strategy001& changed) { renameOption(changed, place, name); });
    } else if (column == Seconds) {
        takeSeconds(place, cell->text());
    }
}

void StrategyPage::takeSeconds(std::size_t option, const QString& text) {
    try {
        const NumberRange range{0, LongestWay,
                                tr("A time is a number of seconds such as 4.35, or 1:04.35")};
        const bool isEmptied = text.trimmed().isEmpty(); // to be timed anew
        const double typed = isEmptied ? 0 : typedSeconds(text, range);
        change(tr("time of a way"),
               [&](strategy001& changed) { setOptionSeconds(changed, option, typed); });
    } catch (const RefusedEntry& refusal) {
        m_cells->refuse(refusal.reason());
        showOptions();
    }
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
    if (!m_from && timed.seconds > 0) {
        emit refused(tr("%1 is timed: %2 s. Empty its time to mark it anew.")
                         .arg(QString::fromStdString(timed.name), timeOrDash(timed.seconds)));
        return;
    }
    if (!m_from) {
        m_from = moment;
        emit flashed(tr("Start"));
        showNextMark();
        return;
    }
    if (orderOf(*m_from, moment) != std::strong_ordering::less) {
        emit refused(tr("The end of a way comes after its beginning at %1.")
                         .arg(timeOrDash(m_from->seconds())));
        return;
    }
    const CMTime from = *m_from;
    m_from.reset();
    change(tr("way timed"),
           [&](strategy001& changed) { timeOption(changed, *inHand, from, moment); });
    emit flashed(m_options->item(static_cast<int>(*inHand), Seconds)->text());
    if (*inHand + 1 < optionsOf(*strategy()).size())
        setInHand(*inHand + 1);
}

bool StrategyPage::removeCurrent() {
    if (!strategy())
        return false;
    m_from.reset();
    if (const auto inHand = option()) {
        change(tr("way removed"), [&](strategy001& changed) { removeOption(changed, *inHand); });
        return true;
    }
    const std::size_t removed = m_strategy;
    edit(tr("ways removed"), [&](athletedata031& run) { removeStrategy(run, removed); });
    return true;
}

} // namespace kavela::desktop
