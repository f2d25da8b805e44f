#include "desktop/shell/field_keys.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// What is typed in, of the widget that has the focus; null for any other widget.
QLineEdit* lineOf(QWidget* focus) {
    if (auto* const choice = qobject_cast<QComboBox*>(focus))
        return choice->lineEdit();
    if (auto* const number = qobject_cast<QAbstractSpinBox*>(focus))
        return number->findChild<QLineEdit*>();
    return qobject_cast<QLineEdit*>(focus);
}

/// A cell that is being edited: its table knows what Enter and Esc mean there.
bool isCell(const QLineEdit& line) {
    const QWidget* const parent = line.parentWidget();
    return parent && qobject_cast<const QAbstractItemView*>(parent->parentWidget());
}

/// Keys that move the film, and in a field its cursor or nothing.
bool isOfFilm(const QKeyEvent& key) {
    constexpr int Keys[] = {Qt::Key_Home,     Qt::Key_End,  Qt::Key_PageUp,
                            Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Right};
    return !key.modifiers().testFlag(Qt::AltModifier) &&
           std::ranges::find(Keys, key.key()) != std::end(Keys);
}

bool isPage(int key) {
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isForDocument(const QKeyEvent& key, const QLineEdit& line) {
    const bool isRedo = key.matches(QKeySequence::Redo) ||
                        key.keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    return isRedo ? !line.isRedoAvailable()
                  : key.matches(QKeySequence::Undo) && !line.isUndoAvailable();
}

} // namespace

FieldKeys::FieldKeys(QMainWindow& window, std::function<void()> leave)
    : QObject(&window), m_window(window), m_leave(std::move(leave)) {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { emit typingChanged(fieldIn(now) != nullptr); });
}

QLineEdit* FieldKeys::fieldIn(QObject* watched) const {
    auto* const focus = qobject_cast<QWidget*>(watched);
    if (!focus || focus->window() != &m_window)
        return nullptr;
    QLineEdit* const line = lineOf(focus);
    return line && !line->isReadOnly() ? line : nullptr;
}

bool FieldKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool isQuestion = event->type() == QEvent::ShortcutOverride;
    if (!isQuestion && event->type() != QEvent::KeyPress)
        return false;
    QLineEdit* const line = watched == QApplication::focusWidget() ? fieldIn(watched) : nullptr;
    if (!line)
        return false;
    auto* const key = static_cast<QKeyEvent*>(event);
    if (isQuestion && isForDocument(*key, *line)) {
        key->ignore();
        return true;
    }
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (isQuestion && (isOfFilm(*key) || (isEnter && isCell(*line)))) {
        key->accept();
        return true;
    }
    if (!isQuestion && isPage(key->key()) && watched->inherits("QComboBox"))
        return true; // would choose another text than the one that is typed
    if (isQuestion || key->key() != Qt::Key_Escape || isCell(*line))
        return false;
    while (line->isUndoAvailable())
        line->undo();
    m_leave();
    return true;
}

} // namespace kavela::desktop
