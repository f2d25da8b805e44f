#pragma once

#include <QDialog>
#include <QList>
#include <QString>

class QMainWindow;
class QScrollArea;

namespace kavela::desktop {

/// A key, and what it does.
struct ShownKey {
    QString key;
    QString title;
};

/// Keys under a title.
struct ShownKeys {
    QString title;
    QList<ShownKey> keys;
};

/// All keys of a window at a glance: those of its menus, menu by menu, then the others. Any key
/// closes it, but for those that scroll where the screen is too small for all.
class KeyOverlay : public QDialog {
    Q_OBJECT

public:
    explicit KeyOverlay(const QMainWindow& window, QWidget* parent);
    /// Of a window that has no menus to tell them.
    KeyOverlay(const QWidget& window, const QList<ShownKeys>& groups, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool isScrolledBy(int key);

    QScrollArea* m_area;
};

} // namespace kavela::desktop
