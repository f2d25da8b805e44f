#pragma once

#include <QList>
#include <QString>

class QAction;
class QMainWindow;
class QWidget;

namespace kavela::desktop {

/// An action that has a key.
struct ListedKey {
    QAction* action = nullptr;
    QWidget* part = nullptr; ///< where the key is heard; null: in the whole window
};

struct KeyGroup {
    QString title;
    QList<ListedKey> keys;
};

/// The text of an action without its marks: "Open" of "&Open…".
[[nodiscard]] QString plainTitle(QString text);
/// All keys of a window: those of its menus, menu by menu, then those of its visible parts.
[[nodiscard]] QList<KeyGroup> keyGroups(const QMainWindow& window);

} // namespace kavela::desktop
