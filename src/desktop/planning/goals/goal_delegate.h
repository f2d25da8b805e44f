#pragma once

#include <QStyledItemDelegate>

namespace kavela::desktop {

/// What the tree of goals keeps of an entry beside its texts.
enum GoalRole {
    GoalKindRole = Qt::UserRole, ///< GoalPlace::Kind
    GoalIndexRole,               ///< of the goal or sub-goal within its group
    GoalHintRole,                ///< stands quietly where the text is empty
    GoalReachedRole,             ///< of a group: sub-goals reached
    GoalCountRole                ///< of a group: sub-goals
};

enum GoalColumn { GoalTextColumn, GoalStatusColumn, GoalColumns };

/// Paints goals bold and sub-goals below them, with a sign and a word for the status, and a group's
/// progress as a bar and in figures. A status is chosen from a list.
class GoalDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace kavela::desktop
