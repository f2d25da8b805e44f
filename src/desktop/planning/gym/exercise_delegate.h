#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

namespace kavela::desktop {

/// Completes the name of an exercise from those that were used before.
class ExerciseDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setNames(const QStringList& names) { m_names = names; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

private:
    QStringList m_names;
};

} // namespace kavela::desktop
