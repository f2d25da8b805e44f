#include "desktop/planning/gym/exercise_delegate.h"

#include "desktop/planning/gym/exercise_model.h"

#include <QCompleter>
#include <QLineEdit>

namespace kavela::desktop {

QWidget* ExerciseDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    if (index.column() != ExerciseModel::ExerciseColumn)
        return CellDelegate::createEditor(parent, option, index);
    auto* const field = new QLineEdit(parent);
    field->setFrame(false);
    auto* const completer = new QCompleter(m_names, field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    field->setCompleter(completer);
    return field;
}

} // namespace kavela::desktop
