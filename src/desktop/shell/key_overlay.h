#pragma once

#include <QDialog>

class QMainWindow;

namespace kavela::desktop {

/// All keys of a window at a glance: those of its menus, menu by menu, then the others. Any key
/// closes it.
class KeyOverlay : public QDialog {
    Q_OBJECT

public:
    explicit KeyOverlay(const QMainWindow& window, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace kavela::desktop
