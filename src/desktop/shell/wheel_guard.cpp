#include "desktop/shell/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace kavela::desktop {

bool WheelGuard::eventFilter(QObject* object, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::Wheel && type != QEvent::Polish)
        return false;
    auto* const box = qobject_cast<QWidget*>(object);
    if (!qobject_cast<QAbstractSpinBox*>(box) && !qobject_cast<QComboBox*>(box))
        return false;
    if (type == QEvent::Polish) {
        if (box->focusPolicy() == Qt::WheelFocus)
            box->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (box->hasFocus())
        return false;
    event->ignore(); // it goes on to the page
    return true;
}

} // namespace kavela::desktop
