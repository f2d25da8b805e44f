#pragma once

#include "desktop/shell/command_palette.h"

class QMainWindow;

namespace kavela::desktop {

class Workspace;

/// Adds the menu that every window ends with: the guide at the chapter on windows of this kind, the
/// search for everything that can be done or opened, all keys and their changing, why a number is
/// what it is, full screen, and the look for a newer version where the program has where to look.
/// The window's other menus have to be complete: keys that the coach chose for windows of this kind
/// are set. `more` gives what the window adds to the search, when it is asked.
void addHelpMenu(QMainWindow& window, Workspace& workspace, const QString& kind,
                 std::function<Commands()> more);

} // namespace kavela::desktop
