#include "desktop/planning/intervals/intervals_panel.h"

#include "desktop/planning/intervals/interval_form.h"
#include "desktop/planning/intervals/interval_texts.h"
#include "desktop/planning/intervals/timer_dialog.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_panel.h"
#include "desktop/shell/theme.h"
#include "planning/interval_timer.h"

#include <QAction>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

using Session = favInvervalSessions_v2;

constexpr int TitleColumn = 0;

/// A column of what a session takes in all; a dash where that cannot be reckoned.
Column<Session> timeColumn(const QString& title, double (*seconds)(const IntervalPlan&)) {
    return {.title = title, .kind = ColumnKind::Number, .show = [seconds](const Session& session) {
                const auto plan = IntervalPlan::of(session);
                if (!plan)
                    return Cell{QStringLiteral("–")};
                const double time = seconds(*plan);
                return Cell{.text = durationText(time), .sortValue = time};
            }};
}

std::vector<Column<Session>> sessionColumns() {
    return {
        {.title = IntervalsPanel::tr("Session"),
         .show =
             [](const Session& session) { return Cell{QString::fromStdString(session.title)}; }},
        {.title = IntervalsPanel::tr("Make-up"),
         .show = [](const Session& session) { return Cell{makeUpText(session)}; }},
        timeColumn(IntervalsPanel::tr("Total"),
                   [](const IntervalPlan& plan) -> double { return plan.sessionTime(); }),
        timeColumn(IntervalsPanel::tr("Work"),
                   [](const IntervalPlan& plan) -> double { return plan.workTime(); })};
}

favInvervalSessions_v2 newSession() {
    favInvervalSessions_v2 session;
    session.title = IntervalsPanel::tr("New session").toStdString();
    session.sets = 1;
    session.reps = 10;
    session.worktime = 60;
    session.workrest = 60;
    return session;
}

} // namespace

IntervalsPanel::IntervalsPanel(PlanningDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(sessionColumns()),
      m_table(new ColumnTable(m_model, "intervals")),
      m_form(new IntervalForm([this](const QString&, const auto& change) {
          if (const auto at = current())
              m_document.edit(tr("interval session"),
                              [&](planningdatac_v6& plan) { change(plan.favintses[*at]); });
      })) {
    makeTable();
    auto* const splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(makeList());
    splitter->addWidget(makeDetails());
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    whole->addWidget(splitter);
    connect(&document, &PlanningDocument::changed, this, &IntervalsPanel::invalidate);
    showCurrent(true);
}

void IntervalsPanel::makeTable() {
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEmptyText(tr("No favourite sessions yet. “Add” begins the first."));
    m_table->stretch({TitleColumn});
    m_table->keepOneChosen();
    connect(m_table, &ColumnTable::chosen, this, &IntervalsPanel::followTable);
    connect(m_table, &QTableView::doubleClicked, this, &IntervalsPanel::startTimer);
}

QWidget* IntervalsPanel::makeList() {
    auto* const list = new TablePanel(m_table);
    const auto command = [&](const char* name, const QString& text, const QString& what,
                             const QKeySequence& keys, const std::function<void()>& act) {
        QAction& action = m_table->addCommand(what, keys, act);
        list->addButton(buttonFor(action, text, name));
        m_forOne.push_back(&action);
    };
    QAction& added = m_table->setAdd(tr("Add a session"), [this] { add(); });
    list->addButton(buttonFor(added, tr("Add"), "add"));
    command("duplicate", tr("Duplicate"), tr("Another one like it"), Qt::CTRL | Qt::Key_D,
            [this] { duplicate(); });
    command("up", tr("Up"), tr("Up"), Qt::ALT | Qt::Key_Up, [this] { move(true); });
    command("down", tr("Down"), tr("Down"), Qt::ALT | Qt::Key_Down, [this] { move(false); });
    QAction& removed = m_table->setRemove(tr("Remove the session"),
                                          [this](const std::vector<int>&) { removeCurrent(); });
    list->addButton(buttonFor(removed, tr("Remove"), "remove"));
    list->setContentsMargins(0, 0, theme::Spacing, 0);
    return list;
}

QWidget* IntervalsPanel::makeDetails() {
    m_timer = new QPushButton(tr("Start the timer…"));
    m_timer->setObjectName("timer");
    m_timer->setToolTip(tr("A clock for the bank, readable from afar. Double click on a session "
                           "opens it too."));
    connect(m_timer, &QPushButton::clicked, this, &IntervalsPanel::startTimer);
    auto* const details = new QWidget;
    auto* const column = new QVBoxLayout(details);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->setSpacing(theme::LargeSpacing);
    column->addWidget(m_timer, 0, Qt::AlignLeft);
    column->addWidget(m_form);
    column->addStretch(1);
    return details;
}

const std::vector<favInvervalSessions_v2>& IntervalsPanel::sessions() const {
    return m_document.value().favintses;
}

std::optional<std::size_t> IntervalsPanel::current() const {
    const int place = m_table->currentPlace();
    if (place < 0 || static_cast<std::size_t>(place) >= sessions().size())
        return std::nullopt;
    return static_cast<std::size_t>(place);
}

void IntervalsPanel::choose(std::size_t session) {
    m_table->choose(static_cast<int>(session), TitleColumn);
}

void IntervalsPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_isStale)
        invalidate();
}

void IntervalsPanel::invalidate() {
    m_isStale = !isVisible();
    if (!m_isStale)
        refresh();
}

void IntervalsPanel::refresh() {
    m_model.show(sessions());
    showCurrent(false);
}

/// A session whose form holds what cannot be taken stays in front.
void IntervalsPanel::followTable() {
    if (m_shown && current() == m_shown)
        return; // it was brought back to the front
    if (!m_shown || !showRefusedEntry(*m_form)) {
        showCurrent(true);
        return;
    }
    // Later: the table is not done yet with choosing the other row.
    QMetaObject::invokeMethod(
        this, [this] { choose(m_shown.value_or(0)); }, Qt::QueuedConnection);
}

void IntervalsPanel::showCurrent(bool isOther) {
    const auto at = current();
    m_shown = at;
    m_form->show(at ? &sessions()[*at] : nullptr, isOther);
    for (QAction* const action : m_forOne)
        action->setEnabled(at.has_value());
    m_timer->setEnabled(at && whyNotTimed(sessions()[*at]).empty());
}

void IntervalsPanel::insert(std::size_t at, const QString& what, favInvervalSessions_v2 session) {
    m_document.edit(what, [&](planningdatac_v6& plan) {
        plan.favintses.insert(plan.favintses.begin() + static_cast<std::ptrdiff_t>(at),
                              std::move(session));
    });
    choose(at);
    m_form->editTitle();
}

void IntervalsPanel::add() {
    if (showRefusedEntry(*m_form))
        return;
    insert(sessions().size(), tr("new interval session"), newSession());
}

void IntervalsPanel::duplicate() {
    const auto at = current();
    if (!at || showRefusedEntry(*m_form))
        return;
    favInvervalSessions_v2 copy = sessions()[*at];
    copy.title = tr("%1, copy").arg(QString::fromStdString(copy.title)).toStdString();
    insert(*at + 1, tr("copy of an interval session"), std::move(copy));
}

void IntervalsPanel::move(bool isUp) {
    const auto at = current();
    if (!at || (isUp ? *at == 0 : *at + 1 >= sessions().size()) || showRefusedEntry(*m_form))
        return;
    const std::size_t to = isUp ? *at - 1 : *at + 1;
    m_document.edit(tr("order of the interval sessions"), [&](planningdatac_v6& plan) {
        std::swap(plan.favintses[*at], plan.favintses[to]);
    });
    choose(to);
}

void IntervalsPanel::removeCurrent() {
    if (const auto at = current())
        m_document.edit(tr("removal of an interval session"), [&](planningdatac_v6& plan) {
            plan.favintses.erase(plan.favintses.begin() + static_cast<std::ptrdiff_t>(*at));
        });
}

void IntervalsPanel::startTimer() {
    const auto at = current();
    if (!at || showRefusedEntry(*m_form))
        return;
    const favInvervalSessions_v2& session = sessions()[*at];
    const auto plan = IntervalPlan::of(session);
    if (!plan) {
        emit refused(QString::fromStdString(whyNotTimed(session)));
        return;
    }
    auto* const dialog = new IntervalTimerDialog(QString::fromStdString(session.title), *plan,
                                                 steadySeconds(), beeps(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->showMaximized();
}

} // namespace kavela::desktop
