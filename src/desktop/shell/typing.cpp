#include "desktop/shell/typing.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace kavela::desktop {

bool endTyping() {
    QWidget* const focus = QApplication::focusWidget();
    auto* const number = qobject_cast<QAbstractSpinBox*>(focus);
    auto* const choice = qobject_cast<QComboBox*>(focus);
    auto* const field = qobject_cast<QLineEdit*>(focus);
    if (number)
        number->interpretText();
    else if (field)
        emit field->returnPressed();
    else if (!choice || !choice->isEditable())
        return false;
    focus->clearFocus();
    return true;
}

void endTypingIn(const QWidget& part) {
    QWidget* const focus = QApplication::focusWidget();
    if (!focus || !part.isAncestorOf(focus))
        return;
    if (auto* const number = qobject_cast<QAbstractSpinBox*>(focus))
        number->interpretText();
    focus->clearFocus(); // an editor of a table closes and hands its text over
}

bool stepNumber(int step) {
    auto* const number = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    if (number)
        number->stepBy(step);
    return number != nullptr;
}

} // namespace kavela::desktop
