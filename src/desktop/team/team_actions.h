#pragma once

#include "desktop/shell/command_palette.h"

class QMenu;

namespace kavela::desktop {

class TeamWindow;

/// The menus and keys of the team tool, beside those that every editor has.
void makeTeamMenus(TeamWindow& window, QMenu& file, QMenu& edit);

/// The athletes, for the search of everything.
[[nodiscard]] Commands teamCommands(TeamWindow& window);

} // namespace kavela::desktop
