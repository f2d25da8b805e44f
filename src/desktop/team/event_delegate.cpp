#include "desktop/team/event_delegate.h"

#include "desktop/shell/theme.h"
#include "results/team_records.h"

#include <QComboBox>

namespace kavela::desktop {

QWidget* EventDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (!index.parent().isValid())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* combo = new QComboBox(parent);
    for (const char* event : team::Events)
        combo->addItem(event);
    return combo;
}

QSize EventDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return size.expandedTo({0, option.fontMetrics.height() + theme::SmallSpacing});
}

void EventDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (auto* const combo = qobject_cast<QComboBox*>(editor))
        combo->setCurrentText(index.data(Qt::EditRole).toString());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void EventDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    if (const auto* const combo = qobject_cast<QComboBox*>(editor))
        model->setData(index, combo->currentText());
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

} // namespace kavela::desktop
