#pragma once

#include <QObject>

class QAction;

namespace kavela::desktop {

class PenaltiesWindow;

/// The menus of the window of penalties, and their keys.
class PenaltiesActions : public QObject {
    Q_OBJECT

public:
    explicit PenaltiesActions(PenaltiesWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();

private:
    void makeFileMenu();
    void makeShowMenu();

    PenaltiesWindow& m_window;
    QAction* m_saveChart = nullptr;
    QAction* m_saveTable = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_showFailed = nullptr;
    QAction* m_wholeChart = nullptr;
};

} // namespace kavela::desktop
