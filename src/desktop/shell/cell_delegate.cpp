#include "desktop/shell/cell_delegate.h"

#include "desktop/shell/refused_entry.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QToolTip>

namespace kavela::desktop {

namespace {

constexpr const char* TakenProperty = "taken"; ///< what the model took of an editor

QVariant typedIn(const QWidget& editor) {
    return editor.metaObject()->userProperty().read(&editor);
}

bool endsTyping(const QWidget& editor, const QEvent& event) {
    if (event.type() == QEvent::FocusOut) {
        // The list that a choice drops down is a window below its box.
        const QWidget* focus = QApplication::focusWidget();
        while (focus && focus != &editor)
            focus = focus->parentWidget();
        return !focus;
    }
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return ||
           key == Qt::Key_Enter;
}

} // namespace

CellDelegate::CellDelegate(QAbstractItemView& view)
    : QStyledItemDelegate(&view), m_view(view), m_viewport(view.viewport()) {
    view.setItemDelegate(this);
    view.viewport()->installEventFilter(this);
}

/// Also called when another value of the row changed, which must not cost what was typed.
void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    m_editor = editor;
    const auto* const line = qobject_cast<const QLineEdit*>(editor);
    const bool isTyped = line && line->isModified();
    if (!m_isHandingOver && !isTyped && !isRefused(*editor))
        QStyledItemDelegate::setEditorData(editor, index);
}

/// The same text is handed over again when the editor closes; a model need not be asked twice.
void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const {
    const QVariant typed = typedIn(*editor);
    if (typed.isValid() && editor->property(TakenProperty) == typed)
        return;
    m_editor = editor;
    m_isRefused = false;
    m_isHandingOver = true;
    QStyledItemDelegate::setModelData(editor, model, index);
    m_isHandingOver = false;
    editor->setProperty(TakenProperty, m_isRefused ? QVariant() : typed);
    if (!m_isRefused)
        acceptEntry(*editor);
}

void CellDelegate::refuse(const QString& reason) {
    m_isRefused = true;
    if (m_isHandingOver && m_editor) {
        refuseEntry(*m_editor, reason);
        return;
    }
    const QPoint cell = m_view.visualRect(m_view.currentIndex()).bottomLeft();
    QToolTip::showText(m_view.viewport()->mapToGlobal(cell), reason, &m_view);
}

/// The text goes to the model before the base class closes the editor over it.
bool CellDelegate::eventFilter(QObject* object, QEvent* event) {
    const bool isInTable = object == m_viewport;
    if (isInTable) {
        // A click on another cell would close the editor.
        const bool isHeld = m_editor && isRefused(*m_editor);
        const bool isClick = event->type() == QEvent::MouseButtonPress ||
                             event->type() == QEvent::MouseButtonDblClick;
        return isHeld && isClick && showRefusedEntry(m_view);
    }
    auto* const editor = qobject_cast<QWidget*>(object);
    if (editor && endsTyping(*editor, *event)) {
        emit commitData(editor);
        if (isRefused(*editor))
            return event->type() == QEvent::KeyPress;
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace kavela::desktop
