#pragma once

#include <QList>
#include <QObject>

class QAction;

namespace kavela::desktop {

class SeasonWindow;

/// The menus of the window of a season, and their keys.
class SeasonActions : public QObject {
    Q_OBJECT

public:
    explicit SeasonActions(SeasonWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();

private:
    void makeFileMenu();
    void makeShowMenu();
    void makeAthleteMenu();

    SeasonWindow& m_window;
    QList<QAction*> m_ofSeason; ///< that need one
    QAction* m_ownStarts = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_showFailed = nullptr;
};

} // namespace kavela::desktop
