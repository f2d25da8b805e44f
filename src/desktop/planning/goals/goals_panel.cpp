#include "desktop/planning/goals/goals_panel.h"

#include "desktop/planning/goals/goal_delegate.h"
#include "desktop/shell/edit_order.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

using Kind = GoalPlace::Kind;

constexpr int StatusWidth = 300;

std::vector<std::size_t> shapeOf(const yearsplannings_v6& season) {
    std::vector<std::size_t> shape;
    for (std::size_t group = 0; group < goalGroupCount(season); ++group) {
        shape.push_back(goalsOf(season, group).size());
        shape.push_back(subgoalsOf(season, group).size());
    }
    return shape;
}

QString newText(Kind kind) {
    switch (kind) {
    case Kind::Group:
        return GoalsPanel::tr("New group");
    case Kind::Goal:
        return GoalsPanel::tr("New goal");
    case Kind::Subgoal:
        break;
    }
    return GoalsPanel::tr("New sub-goal");
}

} // namespace

GoalsPanel::GoalsPanel(PlanningDocument& document, QWidget* parent)
    : SeasonPanel(document, parent),
      m_tree(new EditOrder<QTreeWidget>),
      m_empty(new QLabel),
      m_stack(new QStackedWidget) {
    makeTree();
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(m_tree);
    m_stack->addWidget(m_empty);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeButtons());
    column->addWidget(m_stack, 1);
    makeKeys();
    enableButtons();
}

void GoalsPanel::makeTree() {
    m_tree->setObjectName("goals");
    m_tree->setColumnCount(GoalColumns);
    m_tree->setHeaderLabels({tr("Goal"), tr("Status")});
    m_tree->setItemDelegate(new GoalDelegate(m_tree));
    m_tree->setIndentation(theme::LargeSpacing);
    m_tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    QHeaderView* const header = m_tree->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(GoalTextColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(GoalStatusColumn, QHeaderView::Interactive);
    header->resizeSection(GoalStatusColumn, grown(*this, StatusWidth));
    connect(m_tree, &QTreeWidget::itemChanged, this,
            [this](const QTreeWidgetItem* item, int column) {
                if (!m_isFilling)
                    take(*item, column);
            });
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &GoalsPanel::enableButtons);
    connect(m_tree, &QTreeWidget::itemCollapsed, this,
            [this](const QTreeWidgetItem* item) { m_closed.insert(item->text(GoalTextColumn)); });
    connect(m_tree, &QTreeWidget::itemExpanded, this,
            [this](const QTreeWidgetItem* item) { m_closed.remove(item->text(GoalTextColumn)); });
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        const auto place = current();
        if (!place || place->kind != Kind::Subgoal)
            return;
        QMenu menu;
        for (const std::string_view status : GoalStatuses)
            menu.addAction(QString::fromUtf8(status.data(), static_cast<qsizetype>(status.size())),
                           this, [this, place, status] { setStatus(*place, status); });
        menu.exec(m_tree->viewport()->mapToGlobal(at));
    });
}

QWidget* GoalsPanel::makeButtons() {
    auto* const bar = new QWidget;
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    const auto button = [&](const char* name, const QString& text, const QString& tip,
                            const std::function<void()>& act) {
        auto* const made = new QPushButton(text);
        made->setObjectName(name);
        made->setToolTip(tip);
        connect(made, &QPushButton::clicked, this, act);
        row->addWidget(made);
        return made;
    };
    button("addGroup", tr("Add group"), tr("A group of goals, such as “Technique”"),
           [this] { add(Kind::Group); });
    m_addGoal = button("addGoal", tr("Add goal"), tr("To the group that is chosen"),
                       [this] { add(Kind::Goal); });
    m_addSubgoal = button("addSubgoal", tr("Add sub-goal"),
                          tr("To the group that is chosen, with a status (Insert)"),
                          [this] { add(Kind::Subgoal); });
    row->addSpacing(theme::Spacing);
    m_up = button("up", tr("Up"), tr("Alt+Up"), [this] { move(true); });
    m_down = button("down", tr("Down"), tr("Alt+Down"), [this] { move(false); });
    row->addSpacing(theme::Spacing);
    m_remove = button("remove", tr("Remove"), tr("Delete"), [this] { removeCurrent(); });
    row->addStretch(1);
    return bar;
}

void GoalsPanel::makeKeys() {
    const auto key = [this](const QString& text, const QKeySequence& keys,
                            const std::function<void()>& act) {
        auto* const action = new QAction(text, m_tree);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        m_tree->addAction(action);
    };
    key(tr("Add sub-goal"), Qt::Key_Insert,
        [this] { add(current() ? Kind::Subgoal : Kind::Group); });
    key(tr("Remove"), Qt::Key_Delete, [this] { removeCurrent(); });
    key(tr("Up"), Qt::ALT | Qt::Key_Up, [this] { move(true); });
    key(tr("Down"), Qt::ALT | Qt::Key_Down, [this] { move(false); });
}

GoalPlace GoalsPanel::placeOf(const QTreeWidgetItem& item) {
    const QTreeWidgetItem& group = item.parent() ? *item.parent() : item;
    return {static_cast<Kind>(item.data(GoalTextColumn, GoalKindRole).toInt()),
            static_cast<std::size_t>(group.data(GoalTextColumn, GoalIndexRole).toInt()),
            item.parent()
                ? static_cast<std::size_t>(item.data(GoalTextColumn, GoalIndexRole).toInt())
                : 0};
}

QTreeWidgetItem* GoalsPanel::itemAt(const GoalPlace& place) const {
    QTreeWidgetItem* const group = m_tree->topLevelItem(static_cast<int>(place.group));
    if (!group || place.kind == Kind::Group)
        return group;
    for (int i = 0; i < group->childCount(); ++i)
        if (placeOf(*group->child(i)) == place)
            return group->child(i);
    return nullptr;
}

std::optional<GoalPlace> GoalsPanel::current() const {
    const QTreeWidgetItem* const item = m_tree->currentItem();
    return item ? std::optional(placeOf(*item)) : std::nullopt;
}

void GoalsPanel::choose(const GoalPlace& place) {
    if (QTreeWidgetItem* const item = itemAt(place)) {
        if (item->parent())
            item->parent()->setExpanded(true);
        m_tree->setCurrentItem(item, GoalTextColumn);
    }
}

void GoalsPanel::refresh() {
    const yearsplannings_v6* const shown = season();
    m_stack->setCurrentIndex(shown && goalGroupCount(*shown) > 0 ? 0 : 1);
    m_empty->setText(shown ? tr("No goals are set for this season yet.\n“Add group” begins.")
                           : tr("Choose a season to see its goals."));
    m_isFilling = true;
    const std::vector<std::size_t> shape = shown ? shapeOf(*shown) : std::vector<std::size_t>();
    // A tree that is filled afresh closes the editor, so it is only where entries came or went.
    if (shape != m_shape) {
        const auto before = current();
        m_shape = shape;
        m_tree->clear();
        if (shown)
            fill(*shown);
        choose(before.value_or(GoalPlace()));
    }
    if (shown)
        showTexts(*shown);
    m_isFilling = false;
    enableButtons();
}

void GoalsPanel::fill(const yearsplannings_v6& season) {
    for (std::size_t group = 0; group < goalGroupCount(season); ++group)
        addGroup(season, group);
}

void GoalsPanel::addGroup(const yearsplannings_v6& season, std::size_t group) {
    auto* const parent = new QTreeWidgetItem(m_tree);
    const auto mark = [](QTreeWidgetItem& item, Kind kind, std::size_t index) {
        item.setData(GoalTextColumn, GoalKindRole, static_cast<int>(kind));
        item.setData(GoalTextColumn, GoalIndexRole, static_cast<int>(index));
        item.setFlags(item.flags() | Qt::ItemIsEditable);
    };
    mark(*parent, Kind::Group, group);
    for (std::size_t i = 0; i < goalsOf(season, group).size(); ++i)
        mark(*new QTreeWidgetItem(parent), Kind::Goal, i);
    for (std::size_t i = 0; i < subgoalsOf(season, group).size(); ++i)
        mark(*new QTreeWidgetItem(parent), Kind::Subgoal, i);
    parent->setExpanded(!m_closed.contains(qtText(goalGroupName(season, group))));
}

void GoalsPanel::showTexts(const yearsplannings_v6& season) {
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        QTreeWidgetItem* const parent = m_tree->topLevelItem(row);
        showGroup(*parent, season, static_cast<std::size_t>(row));
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem& item = *parent->child(i);
            const GoalPlace place = placeOf(item);
            const QString text = qtText(goalText(season, place));
            item.setText(GoalTextColumn, text);
            item.setToolTip(GoalTextColumn, text);
            if (place.kind != Kind::Subgoal)
                continue;
            item.setText(GoalStatusColumn, qtText(subgoalStatus(season, place.group, place.index)));
            item.setData(GoalStatusColumn, GoalHintRole, QStringLiteral("–"));
        }
    }
}

void GoalsPanel::showGroup(QTreeWidgetItem& item, const yearsplannings_v6& season,
                           std::size_t group) {
    const GoalProgress progress = goalProgress(season, group);
    item.setText(GoalTextColumn, qtText(goalGroupName(season, group)));
    item.setData(GoalTextColumn, GoalHintRole, tr("Group %1").arg(group + 1));
    item.setData(GoalStatusColumn, GoalReachedRole, static_cast<int>(progress.reached));
    item.setData(GoalStatusColumn, GoalCountRole, static_cast<int>(progress.count));
    QString text = tr("%1 of %2 reached").arg(progress.reached).arg(progress.count);
    if (progress.givenUp > 0)
        text += tr(", %1 given up").arg(progress.givenUp);
    item.setData(GoalStatusColumn, GoalHintRole, progress.count > 0 ? text : QString());
}

/// What was typed or chosen in the tree.
void GoalsPanel::take(const QTreeWidgetItem& item, int column) {
    if (!season())
        return;
    const GoalPlace place = placeOf(item);
    const std::string text = item.text(column).trimmed().toStdString();
    if (column == GoalTextColumn && text != goalText(*season(), place))
        edit(tr("text of a goal"),
             [&](yearsplannings_v6& changed) { renameGoal(changed, place, text); });
    else if (column == GoalStatusColumn && place.kind == Kind::Subgoal)
        setStatus(place, text);
    else
        refresh();
}

void GoalsPanel::setStatus(const GoalPlace& place, std::string_view status) {
    if (!season() || place.kind != Kind::Subgoal ||
        subgoalStatus(*season(), place.group, place.index) == status)
        return;
    edit(tr("status of a goal"), [&](yearsplannings_v6& changed) {
        setGoalStatus(changed, place.group, place.index, std::string(status));
    });
}

void GoalsPanel::add(Kind kind) {
    const auto chosen = current();
    if (!season() || (kind != Kind::Group && !chosen))
        return;
    GoalPlace place;
    edit(tr("new goal"), [&](yearsplannings_v6& changed) {
        place = addGoal(changed, kind, chosen ? chosen->group : 0, newText(kind).toStdString());
    });
    choose(place);
    m_tree->setFocus();
    if (QTreeWidgetItem* const item = itemAt(place))
        m_tree->editItem(item, GoalTextColumn);
}

void GoalsPanel::move(bool isUp) {
    const auto place = current();
    if (!season() || !place)
        return;
    yearsplannings_v6 tried = *season();
    const GoalPlace to = moveGoal(tried, *place, isUp);
    if (to == *place)
        return;
    edit(tr("order of the goals"),
         [&](yearsplannings_v6& changed) { moveGoal(changed, *place, isUp); });
    choose(to);
}

void GoalsPanel::removeCurrent() {
    const auto place = current();
    if (!season() || !place)
        return;
    edit(tr("removal of a goal"), [&](yearsplannings_v6& changed) { removeGoal(changed, *place); });
    if (!itemAt(*place)) {
        GoalPlace near = *place;
        if (near.kind != Kind::Group && near.index > 0)
            --near.index;
        else if (near.kind != Kind::Group)
            near = {Kind::Group, near.group, 0};
        else if (near.group > 0)
            --near.group;
        choose(near);
    }
}

void GoalsPanel::enableButtons() {
    const bool hasPlace = season() && m_tree->currentItem();
    for (QPushButton* const button : {m_addGoal, m_addSubgoal, m_up, m_down, m_remove})
        if (button)
            button->setEnabled(hasPlace);
    if (auto* const group = findChild<QPushButton*>("addGroup"))
        group->setEnabled(season() != nullptr);
}

} // namespace kavela::desktop
