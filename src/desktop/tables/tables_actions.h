#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QKeySequence;
class QMenu;

namespace kavela::desktop {

class TablesWindow;

/// The menus of the window of tables, and their keys.
class TablesActions : public QObject {
    Q_OBJECT

public:
    explicit TablesActions(TablesWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();
    /// What can be done with the column that has the cursor.
    [[nodiscard]] QMenu* columnMenu() const { return m_column; }

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeColumnMenu();
    void makeKindMenu();
    void makeAddMenu();
    void makeAthleteMenu();
    void makeShowMenu();
    /// Only possible with a list.
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& keys,
                 std::function<void()> act);

    TablesWindow& m_window;
    QMenu* m_column = nullptr;
    QList<QAction*> m_ofList;
    QList<QAction*> m_ofColumn;
    QAction* m_whoIsMeant = nullptr;
    QAction* m_refused = nullptr;
};

} // namespace kavela::desktop
