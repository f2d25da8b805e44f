#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QKeySequence;
class QMenu;
class QToolBar;

namespace kavela::desktop {

class MotionWindow;
class Workspace;

/// The menus of the analyser window, its row of charts to choose from, and their keys.
class MotionActions : public QObject {
    Q_OBJECT

public:
    MotionActions(MotionWindow& window, Workspace& workspace);

    /// Shows which actions can be taken at present and which are on.
    void refresh();

private:
    void makeFileMenu();
    void makeRecordingMenu();
    void makeTimeMenu();
    void makeChartMenu(QToolBar& bar);
    void makeViewActions(QMenu& menu, QToolBar& bar);
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& keys,
                 std::function<void()> act, std::function<bool()> isPossible = {});

    MotionWindow& m_window;
    Workspace& m_workspace;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
