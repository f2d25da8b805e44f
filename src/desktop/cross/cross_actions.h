#pragma once

#include "desktop/shell/command_palette.h"

#include <QKeySequence>
#include <QObject>

#include <functional>

class QAction;
class QMenu;

namespace kavela::desktop {

class CrossWindow;
class Workspace;

/// The menus and keys of kayak cross.
class CrossActions : public QObject {
    Q_OBJECT

public:
    CrossActions(CrossWindow& window, Workspace& workspace);

private:
    using Act = std::function<void()>;

    void makeFileMenu();
    void chooseFiles();
    void makeEditMenu();
    void makeMarkMenu();
    void makeTrialMenu();
    void makeHeatMenu();
    void compareFilms();
    void makeViewMenu();
    QAction* add(QMenu& menu, const QString& text, const QList<QKeySequence>& keys, Act act);
    /// Saves, then hands the file on to another tool.
    [[nodiscard]] Act savedThen(std::function<void(const QString& path)> request);
    void showWhatCanBeDone();
    [[nodiscard]] Commands athletes() const;

    CrossWindow& m_window;
    Workspace& m_workspace;
    std::vector<QAction*> m_ofTrials; ///< that need the page of the time trials
    std::vector<QAction*> m_ofHeats;
    std::vector<QAction*> m_ofResults;
};

} // namespace kavela::desktop
