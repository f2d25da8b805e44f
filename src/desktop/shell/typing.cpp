#include "desktop/shell/typing.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>

namespace kavela::desktop {

namespace {

/// What is no number stays for the box to refuse, once it loses the focus.
void interpret(QAbstractSpinBox& number) {
    if (number.hasAcceptableInput())
        number.interpretText();
}

/// The box knows what it takes and what it refuses.
void takeNumber(QAbstractSpinBox& number) {
    if (auto* const box = qobject_cast<NumberBox*>(&number))
        box->takeTyped();
    else if (auto* const whole = qobject_cast<WholeBox*>(&number))
        whole->takeTyped();
    else
        interpret(number);
}

/// Where the cursor belongs once a field has been left: for the editor of a cell, the table.
QWidget* placeOf(QWidget& field) {
    QWidget* const above = field.parentWidget();
    auto* const table = above ? qobject_cast<QAbstractItemView*>(above->parentWidget()) : nullptr;
    return table && table->viewport() == above ? table : &field;
}

bool isCellEditor(QLineEdit& line) {
    return placeOf(line) != &line;
}

/// What takes the text may show a box over it, or take the field away.
void takeLine(QLineEdit& line) {
    const QPointer<QLineEdit> field(&line);
    emit field->returnPressed();
    if (field)
        emit field->editingFinished();
    if (field && !field->isModified())
        field->setText(field->text()); // what was taken is undone in the document
    if (field)
        field->selectAll();
}

/// A part that takes the focus has it by the time of the press, and the field has lost it.
class PressGuard : public QObject {
public:
    explicit PressGuard(QWidget& part) : QObject(&part), m_part(part) {
        part.installEventFilter(this);
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        const bool isPress = event->type() == QEvent::MouseButtonPress ||
                             event->type() == QEvent::MouseButtonDblClick;
        if (!isPress)
            return false;
        const QWidget* const window = m_part.window();
        const QWidget* const focus = QApplication::focusWidget();
        const bool isTypedElsewhere = focus && qobject_cast<const QLineEdit*>(focus) &&
                                      window->isAncestorOf(focus) && !m_part.isAncestorOf(focus);
        return (isTypedElsewhere && !takeTyping(*window)) || showRefusedEntry(*window, &m_part);
    }

private:
    QWidget& m_part;
};

} // namespace

bool endTyping() {
    QWidget* const focus = QApplication::focusWidget();
    auto* const number = qobject_cast<QAbstractSpinBox*>(focus);
    auto* const choice = qobject_cast<QComboBox*>(focus);
    auto* const field = qobject_cast<QLineEdit*>(focus);
    if (number) {
        takeNumber(*number);
    } else if (field && isCellEditor(*field)) {
        focus->clearFocus(); // the table takes it
    } else if (field) {
        takeLine(*field);
    } else if (choice && choice->isEditable()) {
        takeLine(*choice->lineEdit());
    } else {
        return false;
    }
    return true;
}

void endTypingIn(const QWidget& part) {
    QWidget* const field = QApplication::focusWidget();
    if (!field || !part.isAncestorOf(field))
        return;
    if (auto* const number = qobject_cast<QAbstractSpinBox*>(field))
        interpret(*number);
    field->clearFocus(); // an editor of a table closes and hands its text over
}

bool takeTyping(const QWidget& window) {
    QWidget* const field = QApplication::focusWidget();
    const QPointer<QWidget> place = field && window.isAncestorOf(field) ? placeOf(*field) : nullptr;
    endTypingIn(window);
    if (showRefusedEntry(window))
        return false;
    if (place)
        place->setFocus();
    return true;
}

void takeTypingBeforePresses(QWidget& part) {
    new PressGuard(part);
}

bool stepNumber(int step) {
    auto* const number = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    if (number)
        number->stepBy(step);
    return number != nullptr;
}

} // namespace kavela::desktop
