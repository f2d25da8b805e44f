#include "desktop/planning/intervals/intervals_panel.h"

#include "desktop/planning/intervals/interval_form.h"
#include "desktop/planning/intervals/interval_texts.h"
#include "desktop/planning/intervals/timer_dialog.h"
#include "desktop/planning/ranking/plain_table.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/theme.h"
#include "planning/interval_timer.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum Column { TitleColumn, MakeUpColumn, TotalColumn, WorkColumn };

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
      m_table(plainTable({tr("Session"), tr("Make-up"), tr("Total"), tr("Work")})),
      m_empty(new QLabel(tr("No favourite sessions yet. “Add” begins the first."))),
      m_form(new IntervalForm) {
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
    makeKeys();
    connect(&document, &PlanningDocument::changed, this, &IntervalsPanel::invalidate);
    connect(m_form, &IntervalForm::changed, this, [this](const IntervalForm::Change& change) {
        if (const auto at = current())
            m_document.edit(tr("interval session"),
                            [&](planningdatac_v6& plan) { change(plan.favintses[*at]); });
    });
    showCurrent();
}

void IntervalsPanel::makeTable() {
    m_table->setObjectName("intervals");
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    QHeaderView* const header = m_table->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(TitleColumn, QHeaderView::Stretch);
    for (const int column : {TotalColumn, WorkColumn})
        m_table->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_table, &QTableWidget::currentCellChanged, this, [this] {
        if (!m_isFilling)
            followTable();
    });
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &IntervalsPanel::startTimer);
}

QWidget* IntervalsPanel::makeList() {
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(theme::Spacing);
    const auto button = [&](const char* name, const QString& text, const QString& tip,
                            const std::function<void()>& act) {
        auto* const made = new QPushButton(text);
        made->setObjectName(name);
        made->setToolTip(tip);
        connect(made, &QPushButton::clicked, this, act);
        buttons->addWidget(made);
        return made;
    };
    button("add", tr("Add"), tr("Insert"), [this] { add(); });
    m_forOne = {button("duplicate", tr("Duplicate"), tr("Ctrl+D"), [this] { duplicate(); }),
                button("up", tr("Up"), tr("Alt+Up"), [this] { move(true); }),
                button("down", tr("Down"), tr("Alt+Down"), [this] { move(false); }),
                button("remove", tr("Remove"), tr("Delete"), [this] { removeCurrent(); })};
    buttons->addStretch(1);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    auto* const list = new QWidget;
    auto* const column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(buttons);
    column->addWidget(m_table, 1);
    column->addWidget(m_empty, 1);
    return list;
}

QWidget* IntervalsPanel::makeDetails() {
    m_timer = new QPushButton(tr("Start the timer…"));
    m_timer->setObjectName("timer");
    m_timer->setToolTip(tr("A clock for the bank, readable from afar. Double click on a session "
                           "opens it too."));
    connect(m_timer, &QPushButton::clicked, this, &IntervalsPanel::startTimer);
    m_forOne.push_back(m_timer);
    auto* const details = new QWidget;
    auto* const column = new QVBoxLayout(details);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->setSpacing(theme::LargeSpacing);
    column->addWidget(m_timer, 0, Qt::AlignLeft);
    column->addWidget(m_form, 1);
    return details;
}

void IntervalsPanel::makeKeys() {
    const auto key = [this](const QString& text, const QKeySequence& keys,
                            const std::function<void()>& act) {
        auto* const action = new QAction(text, m_table);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        m_table->addAction(action);
    };
    key(tr("Add a session"), Qt::Key_Insert, [this] { add(); });
    key(tr("Remove the session"), Qt::Key_Delete, [this] { removeCurrent(); });
    key(tr("Another one like it"), Qt::CTRL | Qt::Key_D, [this] { duplicate(); });
    key(tr("Up"), Qt::ALT | Qt::Key_Up, [this] { move(true); });
    key(tr("Down"), Qt::ALT | Qt::Key_Down, [this] { move(false); });
}

const std::vector<favInvervalSessions_v2>& IntervalsPanel::sessions() const {
    return m_document.value().favintses;
}

std::optional<std::size_t> IntervalsPanel::current() const {
    const int row = m_table->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= sessions().size())
        return std::nullopt;
    return static_cast<std::size_t>(row);
}

void IntervalsPanel::choose(std::size_t session) {
    m_table->setCurrentCell(static_cast<int>(session), TitleColumn);
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
    m_isFilling = true;
    const int before = m_table->currentRow();
    m_table->setRowCount(static_cast<int>(sessions().size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const favInvervalSessions_v2& session = sessions()[static_cast<std::size_t>(row)];
        const auto plan = IntervalPlan::of(session);
        setText(*m_table, row, TitleColumn, QString::fromStdString(session.title));
        setText(*m_table, row, MakeUpColumn, makeUpText(session));
        setNumber(*m_table, row, TotalColumn,
                  plan ? durationText(plan->sessionTime()) : QString("–"));
        setNumber(*m_table, row, WorkColumn, plan ? durationText(plan->workTime()) : QString("–"));
    }
    const int row = std::clamp(before, 0, std::max(m_table->rowCount() - 1, 0));
    if (m_table->rowCount() > 0 && row != m_table->currentRow())
        m_table->setCurrentCell(row, TitleColumn);
    m_isFilling = false;
    m_table->setVisible(!sessions().empty());
    m_empty->setVisible(sessions().empty());
    showCurrent();
}

/// A session whose form holds what cannot be taken stays in front.
void IntervalsPanel::followTable() {
    if (!m_shown || !showRefusedEntry(*m_form)) {
        showCurrent();
        return;
    }
    // Later: the table is not done yet with choosing the other row.
    if (current() != m_shown)
        QMetaObject::invokeMethod(
            this, [this] { choose(m_shown.value_or(0)); }, Qt::QueuedConnection);
}

void IntervalsPanel::showCurrent() {
    const auto at = current();
    m_shown = at;
    m_form->show(at ? &sessions()[*at] : nullptr);
    for (QPushButton* const button : m_forOne)
        button->setEnabled(at.has_value());
    if (at)
        m_timer->setEnabled(whyNotTimed(sessions()[*at]).empty());
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
