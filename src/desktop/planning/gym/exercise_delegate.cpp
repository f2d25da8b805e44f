#include "desktop/planning/gym/exercise_delegate.h"

#include <QCompleter>
#include <QLineEdit>

namespace kavela::desktop {

QWidget* ExerciseDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex&) const {
    auto* const field = new QLineEdit(parent);
    field->setFrame(false);
    auto* const completer = new QCompleter(m_names, field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    field->setCompleter(completer);
    return field;
}

} // namespace kavela::desktop
