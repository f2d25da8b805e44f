#pragma once

#include "desktop/shell/command_palette.h"

class QMenu;

namespace kavela::desktop {

class PlanningWindow;

/// The menus of the planning window beside saving and undoing.
void makePlanningMenus(PlanningWindow& window, QMenu& file);

/// Every athlete, for the search of everything.
[[nodiscard]] Commands planningCommands(PlanningWindow& window);

} // namespace kavela::desktop
