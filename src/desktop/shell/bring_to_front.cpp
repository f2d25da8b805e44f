#include "desktop/shell/bring_to_front.h"

#include <QApplication>
#include <QWidget>

namespace kavela::desktop {

void bringToFront(QWidget& window) {
    if (window.isMinimized())
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
    QApplication::alert(&window);
}

} // namespace kavela::desktop
