#pragma once

#include "desktop/shell/command_palette.h"

#include <QKeySequence>
#include <QObject>

#include <functional>

class QAction;
class QMenu;

namespace kavela::desktop {

class TakingWindow;
class Workspace;

/// The menus and keys of split taking.
class TakingActions : public QObject {
    Q_OBJECT

public:
    TakingActions(TakingWindow& window, Workspace& workspace);

    /// Shows what can be done now.
    void refresh();

private:
    using Act = std::function<void()>;

    void makeFileMenu();
    void makeEditMenu();
    void makeMarkMenu();
    void makePenaltyMenu();
    void makeCameraMenu();
    void showSlit();
    QAction* add(QMenu& menu, const QString& text, const QList<QKeySequence>& keys, Act act);
    [[nodiscard]] Commands athletes() const;
    void chooseFolder();

    TakingWindow& m_window;
    Workspace& m_workspace;
    std::vector<QAction*> m_ofRun; ///< that need a run
};

} // namespace kavela::desktop
