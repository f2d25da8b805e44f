#pragma once

#include "desktop/shell/command_palette.h"

#include <QKeySequence>
#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace kavela::desktop {

class FilmsWindow;
class Workspace;

/// The menus and keys of the window of films.
class FilmsActions : public QObject {
    Q_OBJECT

public:
    FilmsActions(FilmsWindow& window, Workspace& workspace);

private:
    void makeFileMenu(Workspace& workspace);
    void makeEditMenu();
    void makeFilmsMenu(Workspace& workspace);
    void makeTagsMenu(Workspace& workspace);
    void makeCutMenu();
    void addPreference(QMenu& menu, Workspace& workspace, const QString& text, const char* key);
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& keys,
                 std::function<void()> act, std::function<bool()> isPossible = {});
    void fillRecent(QMenu& menu, const Workspace& workspace);
    void refresh();
    [[nodiscard]] Commands films() const;

    FilmsWindow& m_window;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
