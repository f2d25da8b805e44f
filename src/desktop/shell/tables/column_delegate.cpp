#include "desktop/shell/tables/column_delegate.h"

#include "desktop/shell/tables/row_model.h"

#include <QCompleter>
#include <QLineEdit>

namespace kavela::desktop {

QWidget* ColumnDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    const QStringList proposals = index.data(RowModel::ProposalsRole).toStringList();
    if (proposals.isEmpty())
        return CellDelegate::createEditor(parent, option, index);
    auto* const field = new QLineEdit(parent);
    field->setFrame(false);
    auto* const completer = new QCompleter(proposals, field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    field->setCompleter(completer);
    return field;
}

} // namespace kavela::desktop
