#include "desktop/team/event_delegate.h"

#include "desktop/shell/theme.h"
#include "desktop/team/season_model.h"
#include "results/team_records.h"

#include <QComboBox>

namespace kavela::desktop {

QWidget* EventDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (!index.parent().isValid() || index.column() != SeasonModel::TitleColumn)
        return CellDelegate::createEditor(parent, option, index);
    auto* combo = new QComboBox(parent);
    for (const char* event : team::Events)
        combo->addItem(event);
    return combo;
}

QSize EventDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize size = CellDelegate::sizeHint(option, index);
    return size.expandedTo({0, option.fontMetrics.height() + theme::SmallSpacing});
}

} // namespace kavela::desktop
