#include "desktop/planning/plan/plan_view.h"

#include "desktop/planning/plan/week_form.h"
#include "desktop/planning/plan/year_strip.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"
#include "planning/weeks.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

using namespace std::chrono;

enum Scope { OfWeek, OfBlock, OfMesocycle, OfSeason };

constexpr int LowHeight = 520;       ///< in which the year leaves more to the week
constexpr int LeastWeekHeight = 240; ///< below which the plan scrolls

QScrollArea* scrolled(QWidget& content) {
    auto* area = new QScrollArea;
    area->setWidget(&content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

} // namespace

PlanView::PlanView(PlanningDocument& document, QWidget* parent)
    : SeasonPanel(document, parent),
      m_strip(new YearStrip),
      m_grid(new WeekGrid),
      m_form(new WeekForm),
      m_totals(totalsColumns(typedTotals())),
      m_scope(new QComboBox),
      m_empty(new QLabel) {
    makeParts();
    connectParts();
}

void PlanView::makeParts() {
    auto* below = new QSplitter(Qt::Vertical);
    below->addWidget(scrolled(*m_grid));
    below->addWidget(makeTotals());
    below->setStretchFactor(0, 3);
    below->setStretchFactor(1, 2);
    below->setChildrenCollapsible(false);
    below->setSizes({340, 200});
    QScrollArea* form = scrolled(*m_form);
    form->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* parts = new QSplitter;
    parts->addWidget(below);
    parts->addWidget(form);
    parts->setStretchFactor(0, 1);
    parts->setSizes({760, 260});
    parts->setChildrenCollapsible(false);
    QScrollArea* strip = scrolled(*m_strip);
    strip->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    strip->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_stripArea = strip;
    parts->setMinimumHeight(LeastWeekHeight);
    auto* plan = new QWidget;
    auto* column = new QVBoxLayout(plan);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(strip);
    column->addWidget(parts, 1);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_stack = new QStackedLayout(this);
    m_stack->addWidget(plan);
    m_stack->addWidget(m_empty);
}

void PlanView::resizeEvent(QResizeEvent* event) {
    m_strip->setLow(height() < LowHeight);
    m_stripArea->setFixedHeight(m_strip->sizeHint().height());
    SeasonPanel::resizeEvent(event);
}

QWidget* PlanView::makeTotals() {
    m_scope->setObjectName("scope");
    m_scope->addItems({tr("Totals of the week"), tr("Totals of the chosen weeks"),
                       tr("Totals of the mesocycle"), tr("Totals of the season")});
    auto* table = new ColumnTable(m_totals, "");
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::SmallSpacing);
    table->stretch({static_cast<int>(TotalsColumn::Category)});
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    auto* head = new QHBoxLayout;
    head->addWidget(m_scope);
    head->addStretch(1);
    column->addLayout(head);
    column->addWidget(table, 1);
    return part;
}

void PlanView::connectParts() {
    connect(m_strip, &YearStrip::chosen, this, &PlanView::chooseBlock);
    connect(m_strip, &YearStrip::activated, m_grid, qOverload<>(&QWidget::setFocus));
    connect(m_grid, &WeekGrid::moved, this, &PlanView::moveSession);
    connect(m_grid, &WeekGrid::activated, this,
            [this] { m_grid->session() ? editSession() : addSession(); });
    connect(m_form, &WeekForm::edited, this,
            [this](const QString& what, const WeekForm::Change& change, bool wholeBlock) {
                const WeekBlock block =
                    wholeBlock ? m_block : WeekBlock{m_block.current, m_block.current};
                editWeeks(what, [&](std::vector<microsplanning_v5>& weeks) {
                    for (std::size_t i = block.first(); i <= block.last(); ++i)
                        change(weeks[i]);
                });
            });
    connect(m_scope, &QComboBox::currentIndexChanged, this, &PlanView::showTotals);
}

TypedTotals PlanView::typedTotals() {
    return {[this] { return m_scope->currentIndex() == OfWeek; },
            [this](std::size_t category, std::int64_t sessions) {
                editWeek(tr("planned sessions"), [=](microsplanning_v5& week) {
                    week.total.resize(std::max(week.total.size(), category + 1));
                    week.total[category] = sessions;
                });
            },
            [this](std::size_t category, double quantity) {
                editWeek(tr("planned quantity"), [=](microsplanning_v5& week) {
                    week.totalq.resize(std::max(week.totalq.size(), category + 1));
                    week.totalq[category] = quantity;
                });
            }};
}

void PlanView::setToday(sys_days today) {
    m_today = today;
    m_strip->setToday(today);
    m_grid->setToday(today);
}

const microsplanning_v5* PlanView::week() const {
    const yearsplannings_v6* const shown = season();
    return shown && m_block.current < shown->micros.size() ? &shown->micros[m_block.current]
                                                           : nullptr;
}

void PlanView::refresh() {
    const yearsplannings_v6* const shown = season();
    const bool hasWeeks = shown && !shown->micros.empty();
    m_stack->setCurrentIndex(hasWeeks ? 0 : 1);
    m_empty->setText(!athlete() ? tr("Add an athlete with Ctrl+N to begin a plan.")
                     : !shown   ? tr("Add a season with Ctrl+Shift+N: 52 empty weeks to fill.")
                                : tr("This season has no weeks. Add one with the menu Week."));
    m_strip->setWeeks(hasWeeks ? shown->micros : std::vector<microsplanning_v5>{});
    const bool isAnother = m_shown != place();
    m_shown = place();
    if (!hasWeeks) {
        m_grid->setWeek(nullptr);
        m_form->setWeek(nullptr, {});
        return;
    }
    const std::size_t last = shown->micros.size() - 1;
    if (isAnother) {
        const auto now = m_today ? weekOf(shown->micros, *m_today) : std::nullopt;
        const std::size_t week = now.value_or(std::min(m_block.current, last));
        m_block = {week, week};
    }
    m_block = {std::min(m_block.anchor, last), std::min(m_block.current, last)};
    showWeek();
}

void PlanView::showWeek() {
    m_strip->setBlock(m_block);
    m_grid->setWeek(week());
    m_form->setWeek(season(), m_block);
    showTotals();
}

std::vector<microsplanning_v5> PlanView::scopeOfTotals() const {
    const std::vector<microsplanning_v5>& weeks = season()->micros;
    const auto from = weeks.begin();
    const auto at = [&](std::size_t i) { return from + static_cast<std::ptrdiff_t>(i); };
    switch (m_scope->currentIndex()) {
    case OfBlock:
        return {at(m_block.first()), at(m_block.last() + 1)};
    case OfMesocycle: {
        std::size_t first = m_block.current;
        std::size_t end = first + 1;
        const std::string& name = weeks[first].mesocycle;
        while (first > 0 && weeks[first - 1].mesocycle == name)
            --first;
        while (end < weeks.size() && weeks[end].mesocycle == name)
            ++end;
        return {at(first), at(end)};
    }
    case OfSeason:
        return weeks;
    default:
        return {weeks[m_block.current]};
    }
}

void PlanView::showTotals() {
    if (week())
        m_totals.show(totalsOf(scopeOfTotals()));
}

void PlanView::chooseBlock(const WeekBlock& block) {
    m_form->commit();
    if (showRefusedEntry(*m_form)) {
        m_strip->setBlock(m_block);
        return;
    }
    const yearsplannings_v6* const shown = season();
    if (!shown || std::max(block.anchor, block.current) >= shown->micros.size())
        return;
    m_block = block;
    showWeek();
}

void PlanView::stepWeek(int weeks) {
    const yearsplannings_v6* const shown = season();
    if (!shown || shown->micros.empty())
        return;
    const auto last = static_cast<int>(shown->micros.size()) - 1;
    const auto to =
        static_cast<std::size_t>(std::clamp(static_cast<int>(m_block.current) + weeks, 0, last));
    chooseBlock({to, to});
}

void PlanView::goToToday() {
    const yearsplannings_v6* const shown = season();
    const auto now = shown && m_today ? weekOf(shown->micros, *m_today) : std::nullopt;
    if (now)
        chooseBlock({*now, *now});
    else
        emit refused(tr("This season has no week of today."));
}

void PlanView::editWeeks(const QString& what,
                         const std::function<void(std::vector<microsplanning_v5>&)>& change) {
    edit(what, [&](yearsplannings_v6& season) { change(season.micros); });
}

void PlanView::editWeek(const QString& what,
                        const std::function<void(microsplanning_v5&)>& change) {
    if (week())
        editWeeks(what,
                  [&](std::vector<microsplanning_v5>& weeks) { change(weeks[m_block.current]); });
}

void PlanView::commit() {
    m_form->commit();
}

} // namespace kavela::desktop
