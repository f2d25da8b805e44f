#pragma once

#include <QDialog>

class QMainWindow;
class QScrollArea;

namespace kavela::desktop {

/// All keys of a window at a glance: those of its menus, menu by menu, then the others. Any key
/// closes it, but for those that scroll where the screen is too small for all.
class KeyOverlay : public QDialog {
    Q_OBJECT

public:
    explicit KeyOverlay(const QMainWindow& window, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool isScrolledBy(int key);

    QScrollArea* m_area;
};

} // namespace kavela::desktop
