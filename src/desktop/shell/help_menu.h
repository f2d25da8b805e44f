#pragma once

#include "desktop/shell/command_palette.h"

class QMainWindow;

namespace kavela::desktop {

class Workspace;

/// Adds the menus that every window ends with: full screen, the search for everything that can be
/// done or opened, and all keys. `more` gives what the window adds to the search, when it is asked.
void addHelpMenu(QMainWindow& window, Workspace& workspace, std::function<Commands()> more);

} // namespace kavela::desktop
