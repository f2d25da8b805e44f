#pragma once

#include "desktop/planning/season_panel.h"
#include "planning/season_goals.h"

#include <QSet>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace kavela::desktop {

/// The goals of a season: groups, their goals, and sub-goals with a status each.
class GoalsPanel : public SeasonPanel {
    Q_OBJECT

public:
    explicit GoalsPanel(PlanningDocument& document, QWidget* parent = nullptr);

    [[nodiscard]] QTreeWidget& tree() const { return *m_tree; }
    [[nodiscard]] std::optional<GoalPlace> current() const;
    void choose(const GoalPlace& place);

    /// Adds to the group that is chosen; a group is added behind the others.
    void add(GoalPlace::Kind kind);
    void move(bool isUp);
    void removeCurrent();
    /// Of a sub-goal.
    void setStatus(const GoalPlace& place, std::string_view status);

protected:
    void refresh() override;

private:
    void makeTree();
    [[nodiscard]] QWidget* makeButtons();
    void makeKeys();
    void fill(const yearsplannings_v6& season);
    void addGroup(const yearsplannings_v6& season, std::size_t group);
    void showTexts(const yearsplannings_v6& season);
    void showGroup(QTreeWidgetItem& item, const yearsplannings_v6& season, std::size_t group);
    void take(const QTreeWidgetItem& item, int column);
    void enableButtons();
    [[nodiscard]] static GoalPlace placeOf(const QTreeWidgetItem& item);
    [[nodiscard]] QTreeWidgetItem* itemAt(const GoalPlace& place) const;

    QTreeWidget* m_tree;
    QLabel* m_empty;
    QStackedWidget* m_stack;
    QPushButton* m_addGoal = nullptr;
    QPushButton* m_addSubgoal = nullptr;
    QPushButton* m_up = nullptr;
    QPushButton* m_down = nullptr;
    QPushButton* m_remove = nullptr;
    std::vector<std::size_t> m_shape; ///< goals and sub-goals by group, as the tree shows them
    QSet<QString> m_closed;           ///< names of groups
    bool m_isFilling = false;
};

} // namespace kavela::desktop
