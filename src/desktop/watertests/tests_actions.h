#pragma once

#include "desktop/shell/command_palette.h"

class QMenu;

namespace kavela::desktop {

class TestsWindow;

/// The menus of the tests and what stands for them in the menus for files and editing.
void makeTestsMenus(TestsWindow& window, QMenu& file, QMenu& edit);

/// Every test, for the command palette.
[[nodiscard]] Commands testsCommands(TestsWindow& window);

} // namespace kavela::desktop
