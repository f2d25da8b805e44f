#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QKeySequence;
class QMenu;

namespace kavela::desktop {

class FindWindow;

/// The menus of the search and their keys.
class FindActions : public QObject {
    Q_OBJECT

public:
    explicit FindActions(FindWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();

private:
    void makeFileMenu();
    void makeQueryMenu();
    void makeResultMenu();
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& keys,
                 std::function<void()> act, std::function<bool()> isPossible = {});

    FindWindow& m_window;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
